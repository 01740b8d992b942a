// The whole way of an author through the real window, on real files: open or begin a book, change it in the
// real forms, save it through the real file form, go on in the new file, and open that again.

#include "gui/AuthorFixture.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace ls {
namespace {

struct WholeWay : AuthorFixture, testing::WithParamInterface<std::string>
{
    void StartWithSample() { StartWith(Write("Book.IDA", Read(GetParam()))); }
};

Strings SampleBooks()
{
    Strings paths;
    for (const auto& entry : std::filesystem::directory_iterator(LS_SAMPLES)) {
        if (entry.path().extension() == ".IDA") {
            paths.push_back(entry.path().string());
        }
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string BookName(const testing::TestParamInfo<std::string>& row)
{
    std::string name = std::filesystem::path(row.param).stem().string();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; },
        '_');
    return name;
}

// An edited topic is saved with an empty line behind its text; where it has a reference that line is not
// shown.
void ExpectSameText(const Strings& shown, Strings before)
{
    if (shown.size() > before.size()) {
        before.emplace_back();
    }
    EXPECT_EQ(shown, before);
}

TEST_P(WholeWay, edit_firstMiddleAndLastTopic_areSavedAndAllOthersAreTheSameBytes)
{
    StartWithSample();
    const Strings titles = Titles();
    Strings bytes = TopicBytes();
    const int last = static_cast<int>(titles.size()) - 1;
    std::vector<Strings> shown;
    for (const int index : {0, last / 2, last}) {
        GoTo(index);
        const Strings before = ShownText();
        EditTopicOnShow();
        shown.push_back(ShownText());
        Strings expected = before;
        expected.insert(expected.begin(), "[" + std::string(TypedLine) + "]");
        EXPECT_EQ(shown.back(), expected);
        bytes[static_cast<std::size_t>(index)] = EditedBytes(index + 1);
    }
    EXPECT_TRUE(global.book.BookChanged);
    EXPECT_EQ(Read(Path("Book.IDA")), Read(GetParam())) << "the old file is never touched";

    Save("Book (001).IDA");
    for (int pass = 0; pass < 2; ++pass) {
        SCOPED_TRACE(pass == 0 ? "in the new file" : "opened again");
        EXPECT_EQ(Titles(), titles);
        EXPECT_EQ(TopicBytes(), bytes);
        std::size_t i = 0;
        for (const int index : {0, last / 2, last}) {
            GoTo(index);
            ExpectSameText(ShownText(), shown[i++]);
        }
        if (pass == 0) {
            OpenAgain();
        }
    }
}

TEST_P(WholeWay, topicsAddedRemovedRestoredAndMoved_areSavedSoAndTheirBytesStay)
{
    StartWithSample();
    const Strings titles = Titles();
    const Strings bytes = TopicBytes();
    ASSERT_GE(titles.size(), 4U);
    Add("Brand New", QStringLiteral("Fresh text."));
    ToggleRemoved({0, 1});
    EXPECT_EQ(Titles().size(), titles.size() - 1);
    ToggleRemoved({0}); // this restores it
    MoveToStart(-1);
    EnterProperties();
    Save("Book (001).IDA");
    Strings expectedTitles{"Brand New", titles[0]};
    expectedTitles.insert(expectedTitles.end(), titles.begin() + 2, titles.end());
    Strings expectedBytes{"[Brand New]\r\nFresh text.\r\n", bytes[0]};
    expectedBytes.insert(expectedBytes.end(), bytes.begin() + 2, bytes.end());
    for (int pass = 0; pass < 2; ++pass) {
        SCOPED_TRACE(pass == 0 ? "in the new file" : "opened again");
        EXPECT_EQ(Titles(), expectedTitles);
        EXPECT_EQ(TopicBytes(), expectedBytes);
        EXPECT_EQ(PaneText(), "Fresh text.");
        EXPECT_EQ(global.book.BookAuthor, "Ann Author");
        EXPECT_EQ(global.book.BookCopyright, "2001 A/B");
        EXPECT_EQ(global.book.BookUrl, "http://localhost/a?b=c");
        EXPECT_EQ(global.book.BookPost, "YES");
        EXPECT_TRUE(Visible("ExplainButton"));
        if (pass == 0) {
            OpenAgain();
        }
    }
}

TEST_P(WholeWay, unedited_savedTwice_isTheSameFileFromTheFirstSaveOn)
{
    StartWithSample();
    const Strings bytes = TopicBytes();
    Save("Book (001).IDA");
    EXPECT_EQ(TopicBytes(), bytes);
    Save("Book (002).IDA");
    EXPECT_EQ(Read(Path("Book (002).IDA")), Read(Path("Book (001).IDA")));
}

INSTANTIATE_TEST_SUITE_P(Samples, WholeWay, testing::ValuesIn(SampleBooks()), BookName);

} // namespace
} // namespace ls
