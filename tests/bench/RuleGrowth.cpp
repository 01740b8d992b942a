#include "bench/AdvisorWorld.h"
#include "bench/GrowthRows.h"

namespace ls::bench {

void BenchRuleGrowth(const std::string& folder)
{
    const AdvisorBase fewRules = MakeAdvisorBase(3000);
    const AdvisorBase manyRules = MakeAdvisorBase(30000);
    AdvisorWorld small(fewRules, folder);
    AdvisorWorld large(manyRules, folder);
    const GrowthRows rows("30,000 rules beside 3,000: ");
    const auto compare = [&](const char* what, int rounds, const std::function<void(AdvisorWorld&)>& work) {
        rows.Measure(
            what, rounds, [&] { work(large); }, [&] { work(small); });
    };
    compare("load", 15, &AdvisorWorld::Load);
    compare("a whole dialogue", 15, &AdvisorWorld::Question);
    compare("check", 3, &AdvisorWorld::Check);
}

} // namespace ls::bench
