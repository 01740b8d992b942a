// Saves each sample book and opens it again. Its header, topics, texts, logic blocks and references stay the
// same.

#include "book/BookFixture.h"
#include "book/SaveBook.h"
#include "support/Json.h"

#include <algorithm>
#include <filesystem>

namespace ls {
namespace {

Strings SampleBooks()
{
    Strings paths;
    for (const char* folder : {LS_SAMPLES, LS_TEST_DATA "/cases/text", LS_TEST_DATA "/cases/advisor"}) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() == ".IDA") {
                paths.push_back(entry.path().string());
            }
        }
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

struct TopicTexts
{
    std::string name;
    std::string text;
    std::string logic;

    friend bool operator==(const TopicTexts&, const TopicTexts&) = default;
};

void PrintTo(const TopicTexts& topic, std::ostream* out)
{
    *out << topic.name << "\n" << topic.text << "---\n" << topic.logic;
}

struct SaveRoundTrip : BookFixture, testing::WithParamInterface<std::string>
{
    // False for a file without topics, since it cannot be saved.
    bool OpenSample() { return Scan(test::ReadWholeFile(GetParam())) && book.TopicCount > 0; }

    void SaveAndOpen()
    {
        ASSERT_EQ(SaveBook(book, world.Get(), "/work/Out.IDA"), WriteOutcome::Written);
        const std::string saved = world.files["/work/Out.IDA"];
        CloseBook(book);
        ResetBook(book);
        ASSERT_TRUE(Scan(saved));
    }

    // Loads every topic into memory, as the editors do, and returns its texts.
    std::vector<TopicTexts> LoadTopics()
    {
        std::vector<TopicTexts> topics;
        for (int i = 1; i <= book.TopicCount; ++i) {
            std::string name = book.TopicNames(i);
            Count16 number = i;
            LoadTopicRec(book, world.Get(), name, number);
            const TopicRec& rec = book.TopicRecs(i);
            topics.push_back({name, rec.Text, rec.Logic});
        }
        return topics;
    }

    void ForgetEdits()
    {
        for (TopicRec& rec : book.TopicRecs) {
            rec = {};
        }
    }

    Strings Take() { return world.messages.Take(); }
};

TEST_P(SaveRoundTrip, save_unedited_opensTheSame)
{
    world.messages.replies = {Reply::Cancel};
    if (!OpenSample()) {
        world.messages.replies.clear();
        Take();
        return;
    }
    world.messages.replies.clear();
    const std::vector<TopicTexts> topics = LoadTopics();
    ForgetEdits();
    const Strings xrefs = XrefTexts();
    const BookHeader header = book;
    Take();
    SaveAndOpen();
    EXPECT_EQ(Take(), Strings{});
    EXPECT_EQ(LoadTopics(), topics);
    EXPECT_EQ(XrefTexts(), xrefs);
    EXPECT_EQ(book.BookAuthor, header.BookAuthor);
    EXPECT_EQ(book.BookCopyright, header.BookCopyright);
    EXPECT_EQ(book.BookUrl, header.BookUrl);
    EXPECT_EQ(book.BookPost, header.BookPost);
}

// An edited topic gains only an empty line after its text and one after its logic block.
TEST_P(SaveRoundTrip, save_everyTopicEdited_opensTheSameWithAnEmptyLineMore)
{
    world.messages.replies = {Reply::Cancel};
    if (!OpenSample()) {
        world.messages.replies.clear();
        Take();
        return;
    }
    world.messages.replies.clear();
    std::vector<TopicTexts> topics = LoadTopics();
    const Strings xrefs = XrefTexts();
    Take();
    SaveAndOpen();
    EXPECT_EQ(Take(), Strings{});
    for (TopicTexts& topic : topics) {
        topic.text += topic.text.empty() ? "" : "\r\n";
        topic.logic += topic.logic.empty() ? "" : "\r\n";
    }
    EXPECT_EQ(LoadTopics(), topics);
    EXPECT_EQ(XrefTexts(), xrefs);
}

std::string BookName(const testing::TestParamInfo<std::string>& row)
{
    std::string name = std::filesystem::path(row.param).stem().string();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Books, SaveRoundTrip, testing::ValuesIn(SampleBooks()), BookName);

} // namespace
} // namespace ls
