// When memory runs out, a command ends with a message.

#include "CliFixture.h"

#include <new>

namespace ls {
namespace {

constexpr const char* Told = "critical: Out of memory\n";

class OutOfMemory : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.IDA"] = test::SmallBook(); }

    // From read number `nth` on, memory runs out.
    void FailFromRead(int nth)
    {
        files.fail = [this, nth](const std::string& operation) {
            if (operation.rfind("read ", 0) == 0 && ++m_reads >= nth) {
                throw std::bad_alloc();
            }
            return 0;
        };
    }

private:
    int m_reads = 0;
};

TEST_F(OutOfMemory, everyCommand_saysSoAndEndsWithThree)
{
    const std::vector<std::vector<std::string>> commands = {
        {"info", "a.IDA"},           {"topics", "a.IDA"},           {"xrefs", "a.IDA"},
        {"show", "a.IDA", "Start"},  {"text", "a.IDA", "Start"},    {"export", "a.IDA", "Start"},
        {"pages", "a.IDA", "Start"}, {"advise", "a.IDA", "Advice"}, {"check", "a.IDA"},
        {"save", "a.IDA", "b.IDA"},  {"convert", "a.IDA", "c.IDA"},
    };
    for (const std::vector<std::string>& command : commands) {
        SCOPED_TRACE(command.front());
        FailFromRead(1);
        EXPECT_EQ(Run(command), 3);
        EXPECT_EQ(out, "");
        EXPECT_EQ(err, Told);
    }
    EXPECT_FALSE(files.Has("/work/b.IDA"));
    EXPECT_FALSE(files.Has("/work/c.IDA"));
}

TEST_F(OutOfMemory, json_holdsTheMessageAlone)
{
    FailFromRead(1);
    EXPECT_EQ(Run({"topics", "a.IDA", "--json"}), 3);
    EXPECT_EQ(err, Told);
    const test::Json json = test::Json::Parse(out);
    EXPECT_FALSE(json.Has("topics"));
    ASSERT_EQ(json["messages"].Items().size(), 1U);
    EXPECT_EQ(json["messages"].Items()[0]["icon"].String(), "critical");
    EXPECT_EQ(json["messages"].Items()[0]["text"].String(), "Out of memory");
}

} // namespace
} // namespace ls
