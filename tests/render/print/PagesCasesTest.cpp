// Compares every printed sample topic with the pages that tests/data/pages/model.py laid out. After a change
// to a sample that script writes them anew.

#include "base/Text.h"
#include "render/print/PageSetup.h"
#include "render/print/PrintSettings.h"
#include "render/print/PrintTopic.h"
#include "render/text/ShowTopicFixture.h"
#include "support/Json.h"
#include "support/PageText.h"

#include <algorithm>
#include <fstream>

namespace ls {
namespace {

struct Sheet
{
    const char* name;
    int width;
    int height;
    int scaleWidth;
    int scaleHeight;
    bool landscape;
    int charsPerInch;
    int lineHeight;
    bool colour;
};

constexpr Sheet Letter{"letter-pica-colour", 12240, 15840, 12240, 15840, false, 10, 272, true};
constexpr Sheet A4Sideways{"a4-elite-landscape", 16840, 11900, 16120, 10460, true, 12, 227, false};

struct SampleCase
{
    const char* book; ///< its name without extension
    const char* type;
    Sheet sheet;
};

void PrintTo(const SampleCase& sample, std::ostream* stream)
{
    *stream << sample.book << " on " << sample.sheet.name;
}

class SamplePages : public BookFixture, public testing::WithParamInterface<SampleCase>
{
protected:
    void SetUp() override
    {
        const SampleCase& sample = GetParam();
        const std::string bytes =
            test::ReadWholeFile(std::string(LS_SAMPLES) + "/" + sample.book + sample.type);
        if (bytes.starts_with("LODESTAR")) {
            ASSERT_TRUE(Scan(bytes));
        } else {
            world.messages.replies = {Reply::Ok};
            ASSERT_TRUE(Open(bytes));
            world.messages.Take();
        }
    }

    void Add(const std::string& title, int number)
    {
        const Sheet& sheet = GetParam().sheet;
        PrintSettings settings;
        settings.CharsPerInch = sheet.charsPerInch;
        settings.PrintInColour = sheet.colour;
        PrinterState state;
        state.width = sheet.width;
        state.height = sheet.height;
        state.scaleWidth = sheet.scaleWidth;
        state.scaleHeight = sheet.scaleHeight;
        state.landscape = sheet.landscape;
        PageRecorder printer(state, sheet.lineHeight);
        EXPECT_TRUE(PrintTopic(book, world.Get(), printer, settings, title, number).error.Ok());
        if (lines.empty()) {
            lines.push_back(SetupText(settings));
        }
        lines.push_back("== " + FromBook(title));
        for (std::size_t page = 0; page < printer.Pages().size(); ++page) {
            lines.push_back("-- page " + std::to_string(page + 1));
            for (const std::string& run : test::RunTexts(printer.Pages()[page])) {
                lines.push_back(run);
            }
        }
    }

    static std::string SetupText(const PrintSettings& settings)
    {
        return "setup " + std::to_string(settings.PrintableWidth) + " " +
               std::to_string(settings.PrintableHeight) + " " + std::to_string(settings.CharsPerLine) + " " +
               std::to_string(settings.LinesPerPage) + " " + std::to_string(settings.LeftMarginChars) + " " +
               std::to_string(settings.TopMarginLines);
    }

    static Strings Golden()
    {
        std::ifstream file(std::string(LS_TEST_DATA) + "/pages/" + GetParam().book + "-" +
                           GetParam().sheet.name + ".txt");
        Strings golden;
        for (std::string line; std::getline(file, line);) {
            golden.push_back(line);
        }
        return golden;
    }

    Strings lines;
};

TEST_P(SamplePages, everyTopic_printsItsPages)
{
    if (book.IsPlainText()) {
        Add("", 0);
    }
    for (int number = 1; number <= book.TopicCount; ++number) {
        Add(WithoutBrackets(book.TopicNames(number)), number);
    }
    const Strings golden = Golden();
    ASSERT_GT(golden.size(), 20U);
    ASSERT_EQ(lines.size(), golden.size());
    for (std::size_t i = 0; i < golden.size(); ++i) {
        ASSERT_EQ(lines[i], golden[i]) << "line " << i + 1;
    }
    EXPECT_EQ(world.messages.Take(), Strings{});
}

INSTANTIATE_TEST_SUITE_P(
    Samples, SamplePages,
    testing::Values(SampleCase{"Guide", ".IDA", Letter}, SampleCase{"Guide", ".IDA", A4Sideways},
                    SampleCase{"Advice", ".IDA", Letter}, SampleCase{"Advice", ".IDA", A4Sideways},
                    SampleCase{"Tides", ".TXT", Letter}, SampleCase{"Tides", ".TXT", A4Sideways}),
    [](const auto& row) {
        std::string name = std::string(row.param.book) + "_" + row.param.sheet.name;
        std::replace(name.begin(), name.end(), '-', '_');
        return name;
    });

} // namespace
} // namespace ls
