// Compares the export of the sample books, byte for byte, with the pages that tests/data/exports/model.py
// made. After a change to a sample, run that script again.

#include "CliFixture.h"

#include <algorithm>
#include <filesystem>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

const std::string Folder = std::string(LS_TEST_DATA) + "/exports/";

Strings NamesIn(const std::string& folder, const std::string& type)
{
    Strings names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == type) {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

class SampleExports : public test::CliFixture, public testing::WithParamInterface<std::string>
{
};

TEST_P(SampleExports, everyTopic_asExpected)
{
    files["/work/sample.IDA"] = test::ReadWholeFile(LS_SAMPLES "/" + GetParam() + ".IDA");
    const std::size_t topics = OutJson({"topics", "sample.IDA"})["topics"].Items().size();
    ASSERT_GT(topics, 0U);
    const Strings expected = NamesIn(Folder + GetParam(), ".htm");
    ASSERT_EQ(expected.size(), topics);
    for (std::size_t number = 1; number <= topics; ++number) {
        SCOPED_TRACE("topic " + std::to_string(number));
        EXPECT_EQ(Run({"export", "sample.IDA", "--number", std::to_string(number)}), 0);
        EXPECT_EQ(out, test::ReadWholeFile(Folder + GetParam() + "/" + expected[number - 1] + ".htm"));
    }
}

INSTANTIATE_TEST_SUITE_P(Books, SampleExports, testing::ValuesIn(NamesIn(LS_SAMPLES, ".IDA")),
                         [](const auto& book) { return book.param; });

} // namespace
} // namespace ls
