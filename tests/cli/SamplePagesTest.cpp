// Compares the printed sample books, run by run, with the pages that tests/data/pages/model.py made. After a
// change to a sample, run that script again.

#include "CliFixture.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace ls {
namespace {

using test::Json;
using Strings = std::vector<std::string>;

struct Paper
{
    const char* name;
    Strings options;
};

const Paper Letter{"letter-pica-colour",
                   {"--page", "12240", "15840", "--line-height", "272", "--cpi", "10", "--colour"}};
const Paper A4Sideways{"a4-elite-landscape",
                       {"--page", "16840", "11900", "--printable", "16120", "10460", "--line-height", "227",
                        "--cpi", "12", "--landscape"}};

// A run as a golden line: "b-u #7f0000 |A heading|", with "+" at the end if its row continues.
std::string RunLine(const Json& run)
{
    const std::vector<Json>& parts = run["colour"].Items();
    char colour[8];
    std::snprintf(colour, sizeof colour, "#%02x%02x%02x", static_cast<unsigned>(parts.at(0).Int()),
                  static_cast<unsigned>(parts.at(1).Int()), static_cast<unsigned>(parts.at(2).Int()));
    return std::string{run["bold"].Bool() ? 'b' : '-', run["italic"].Bool() ? 'i' : '-',
                       run["underline"].Bool() ? 'u' : '-'} +
           " " + colour + " |" + run["text"].String() + (run["end_row"].Bool() ? "|" : "+");
}

std::string SetupLine(const Json& setup)
{
    std::string line = "setup";
    for (const char* key : {"printable_width", "printable_height", "chars_per_line", "lines_per_page",
                            "left_margin_chars", "top_margin_lines"}) {
        line += " " + std::to_string(setup[key].Int());
    }
    return line;
}

using BookOnPaper = std::tuple<const char*, Paper>;

class SamplePrints : public test::CliFixture, public testing::WithParamInterface<BookOnPaper>
{
protected:
    // The topic of that number, or the plain text file.
    void Add(const std::string& title, const Strings& which)
    {
        Strings arguments{"pages", "sample.IDA", "--json"};
        for (const Strings& options : {which, std::get<1>(GetParam()).options}) {
            arguments.insert(arguments.end(), options.begin(), options.end());
        }
        EXPECT_EQ(Run(arguments), 0) << err;
        const Json printed = Json::Parse(out);
        if (lines.empty()) {
            lines.push_back(SetupLine(printed["setup"]));
        }
        lines.push_back("== " + title);
        int number = 0;
        for (const Json& page : printed["pages"].Items()) {
            lines.push_back("-- page " + std::to_string(++number));
            for (const Json& run : page.Items()) {
                lines.push_back(RunLine(run));
            }
        }
    }

    static Strings Golden()
    {
        const auto& [book, paper] = GetParam();
        std::ifstream file(std::string(LS_TEST_DATA) + "/pages/" + book + "-" + paper.name + ".txt",
                           std::ios::binary);
        Strings golden;
        for (std::string line; std::getline(file, line);) {
            golden.push_back(line);
        }
        return golden;
    }

    Strings lines;
};

TEST_P(SamplePrints, everyTopic_asExpected)
{
    const std::string name = std::get<0>(GetParam());
    const bool plain = name == "Tides";
    files["/work/sample.IDA"] = test::ReadWholeFile(LS_SAMPLES "/" + name + (plain ? ".TXT" : ".IDA"));
    if (plain) {
        Add("", {"--plain"});
    } else {
        const Json topics = OutJson({"topics", "sample.IDA"});
        for (const Json& topic : topics["topics"].Items()) {
            Add(topic["title"].String(), {"--number", std::to_string(topic["number"].Int())});
        }
    }
    const Strings golden = Golden();
    ASSERT_GT(golden.size(), 20U);
    ASSERT_EQ(lines.size(), golden.size());
    for (std::size_t i = 0; i < golden.size(); ++i) {
        ASSERT_EQ(lines[i], golden[i]) << "line " << i + 1;
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, SamplePrints,
                         testing::Combine(testing::Values("Guide", "Advice", "Tides"),
                                          testing::Values(Letter, A4Sideways)),
                         [](const auto& row) {
                             std::string name =
                                 std::string(std::get<0>(row.param)) + "_" + std::get<1>(row.param).name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace
} // namespace ls
