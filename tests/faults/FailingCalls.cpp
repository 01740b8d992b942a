#include "FailingCalls.h"

namespace ls::test {

namespace {

struct Plan
{
    bool active = false;
    int calls = 0;
    int failAt = 0;
    SystemFault fault{};
    const char* error = "";
    std::string path; ///< the path given to the call that failed
};

Plan plan;

} // namespace

FailingCalls::FailingCalls(int failAt, const SystemFault& fault)
{
    plan = {true, 0, failAt, fault, "", {}};
}

FailingCalls::~FailingCalls()
{
    plan.active = false;
}

std::string FailingCalls::Error() const
{
    return plan.error;
}

std::string FailingCalls::Path() const
{
    return plan.path;
}

std::optional<int> CodeOfFailing(const char* call, const std::string& path)
{
    if (!plan.active) {
        return std::nullopt;
    }
    ++plan.calls;
    if (plan.calls == plan.failAt) {
        plan.error = call;
        plan.path = path;
    }
    const bool fails =
        plan.calls == plan.failAt || (plan.fault.forGood && plan.failAt > 0 && plan.calls > plan.failAt);
    return fails ? std::optional(plan.fault.code) : std::nullopt;
}

bool CallsAreFailing()
{
    return plan.active;
}

} // namespace ls::test
