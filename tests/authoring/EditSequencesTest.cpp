// Thousands of random editing sessions, compared with a very simple model of a book. After each save the
// file, and the book opened from it, must match the model.

#include "authoring/TopicChoices.h"
#include "authoring/TopicTable.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "book/SaveBook.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <list>
#include <random>
#include <string>
#include <vector>

namespace ls {
namespace {

struct ModelTopic
{
    std::string name;
    std::string text;
    std::string logic;
    bool edited = false;
    bool removed = false;
};

// The book as a list of topics. A move takes list nodes out and puts them back in.
struct Model
{
    std::list<ModelTopic> topics;
    const ModelTopic* current = nullptr;

    ModelTopic& At(int number) { return *std::next(topics.begin(), number - 1); }

    void Move(const std::vector<int>& selected, int after)
    {
        std::vector<std::list<ModelTopic>::iterator> moving;
        for (const int number : selected) {
            moving.push_back(std::next(topics.begin(), number - 1));
        }
        auto place = std::next(topics.begin(), after);
        const auto moves = [&](auto topic) {
            return std::find(moving.begin(), moving.end(), topic) != moving.end();
        };
        while (place != topics.end() && moves(place)) {
            ++place;
        }
        for (const auto& topic : moving) {
            topics.splice(place, topics, topic);
        }
    }

    // The changes that saving makes: an edited text gets a line end, and so does its logic.
    void Save()
    {
        topics.remove_if([](const ModelTopic& topic) { return topic.removed; });
        for (ModelTopic& topic : topics) {
            topic.text += topic.edited ? "\r\n" : "";
            topic.logic += topic.edited && !topic.logic.empty() ? "\r\n" : "";
            topic.edited = false;
        }
    }

    [[nodiscard]] std::string File() const
    {
        std::string bytes = "LODESTAR BOOK V5.3\r\n";
        for (const ModelTopic& topic : topics) {
            bytes += "[" + topic.name + "]\r\n" + topic.text + topic.logic;
        }
        return bytes;
    }
};

// One author's session: a book of random topics, random edits, saves and openings.
class Session
{
public:
    explicit Session(unsigned seed) : m_random(seed) {}

    void Run()
    {
        OpenRandomBook();
        const int rounds = Pick(1, 2);
        for (int round = 1; round <= rounds && !testing::Test::HasFailure(); ++round) {
            for (int edits = Pick(1, 10); edits > 0; --edits) {
                Edit();
                Compare();
            }
            SaveAndOpen("/work/Saved " + std::to_string(round) + ".IDA");
        }
    }

    [[nodiscard]] const std::string& Log() const { return m_log; }

private:
    int Pick(int from, int to)
    {
        return from + static_cast<int>(m_random() % static_cast<unsigned>(to - from + 1));
    }

    std::string RandomText()
    {
        std::string text;
        for (int lines = Pick(0, 3); lines > 0; --lines) {
            text += std::vector<std::string>{"word", "", "  <B>in bold</B>", "* item", "caf\xE9"}.at(
                        static_cast<std::size_t>(Pick(0, 4))) +
                    "\r\n";
        }
        return text;
    }

    void OpenRandomBook()
    {
        for (int topics = Pick(0, 7); topics > 0; --topics) {
            const std::string logic = Pick(0, 3) == 0 ? "<IXML>\r\n<LOGIC>\r\n<AV ID=1>\r\n</LOGIC>\r\n" : "";
            m_model.topics.push_back({NewName(), RandomText(), logic});
        }
        if (!m_model.topics.empty()) {
            Open("/work/Book.IDA", m_model.File());
        }
    }

    void Open(const std::string& path, const std::string& bytes)
    {
        m_world.files[path] = bytes;
        CloseBook(m_book);
        ResetBook(m_book);
        m_book.BookPath = path;
        ASSERT_TRUE(OpenBook(m_book, m_world.Get()));
        ASSERT_TRUE(ScanBook(m_book, m_world.Get()));
        m_book.CurrentTopicNo = 0;
        m_model.current = nullptr;
    }

    std::string NewName() { return "Topic " + std::to_string(++m_names); }

    void Edit()
    {
        const int what = m_book.TopicCount == 0 ? 0 : Pick(0, 4);
        switch (what) {
        case 0:
            return Add();
        case 1:
            return RemoveAndRestore();
        case 2:
            return Move();
        case 3:
            return SetText();
        default:
            return GoTo();
        }
    }

    void Add()
    {
        // Sometimes takes a name that is in use, or was in use before the last save.
        const std::string name = Pick(0, 2) > 0 ? NewName() : "Topic " + std::to_string(Pick(1, m_names + 1));
        const bool taken = std::any_of(m_model.topics.begin(), m_model.topics.end(),
                                       [&](const ModelTopic& topic) { return topic.name == name; });
        m_log += " add " + name;
        ASSERT_EQ(NameRefusal(m_book, name).empty(), !taken);
        if (!taken) {
            m_model.topics.push_back({name, "Insert text here.", "", true});
            m_model.current = &m_model.topics.back();
            ASSERT_TRUE(AddTopic(m_book, name));
        }
    }

    void RemoveAndRestore()
    {
        std::vector<RemovalChoice> choices;
        m_log += " remove";
        for (const RemovalEntry& entry : RemovalEntries(m_book, Pick(0, 1) == 0)) {
            const bool removed = Pick(0, 3) == 0 ? !entry.checked : entry.checked;
            choices.push_back({entry.itemData, removed});
            m_model.At(entry.itemData).removed = removed;
            m_log += removed ? " " + std::to_string(entry.itemData) : "";
        }
        SetRemoved(m_book, choices);
    }

    void Move()
    {
        const std::vector<TopicListItem> movable = MovableTopics(m_book);
        std::vector<int> selected;
        for (const TopicListItem& topic : movable) {
            if (Pick(0, 1) == 0) {
                selected.push_back(topic.itemData);
            }
        }
        if (!SelectionRefusal(movable, selected).empty()) {
            return;
        }
        const std::vector<TopicListItem> targets = MoveTargets(movable, selected);
        const int last = static_cast<int>(targets.size()) - 1;
        const int after = targets[static_cast<std::size_t>(Pick(0, last))].itemData;
        m_log += " move " + std::to_string(selected.size()) + " after " + std::to_string(after);
        m_model.Move(selected, after);
        MoveTopics(m_book, selected, after);
    }

    // Does what the text editor does: loads the topic if it is unedited and replaces its text.
    void SetText()
    {
        const int number = Pick(1, m_book.TopicCount);
        m_log += " text " + std::to_string(number);
        TopicRec& rec = m_book.TopicRecs(number);
        ModelTopic& topic = m_model.At(number);
        if (rec.Text.empty() && rec.Logic.empty()) {
            std::string name = topic.name;
            Count16 loaded = number;
            LoadTopicRec(m_book, m_world.Get(), name, loaded);
        }
        ASSERT_EQ(rec.Text, topic.text);
        ASSERT_EQ(rec.Logic, topic.logic);
        rec.Text = RandomText() + (Pick(0, 1) == 0 ? "end" : "end\r\n");
        topic.text = rec.Text;
        topic.edited = true;
    }

    void GoTo()
    {
        m_book.CurrentTopicNo = Pick(1, m_book.TopicCount);
        m_model.current = &m_model.At(m_book.CurrentTopicNo);
        m_log += " go " + std::to_string(m_book.CurrentTopicNo);
    }

    void Compare()
    {
        ASSERT_EQ(static_cast<std::size_t>(m_book.TopicCount), m_model.topics.size());
        int number = 0;
        for (const ModelTopic& topic : m_model.topics) {
            ++number;
            ASSERT_EQ(m_book.TopicNames(number), "[" + topic.name + "]");
            ASSERT_EQ(m_book.TopicRecs(number).Deleted, topic.removed);
            ASSERT_EQ(m_book.TopicRecs(number).Text, topic.edited ? topic.text : "");
            if (&topic == m_model.current) {
                ASSERT_EQ(m_book.CurrentTopicNo, number);
            }
        }
    }

    void SaveAndOpen(const std::string& path)
    {
        m_log += " save";
        ASSERT_EQ(SaveBook(m_book, m_world.Get(), path), WriteOutcome::Written);
        m_model.Save();
        const std::string saved = m_world.files[path];
        ASSERT_EQ(saved, m_model.File());
        Open(path, saved);
        Compare();
        int number = 0;
        for (const ModelTopic& topic : m_model.topics) {
            ++number;
            std::string name = topic.name;
            Count16 loaded = 0;
            LoadTopicRec(m_book, m_world.Get(), name, loaded);
            ASSERT_EQ(loaded, number);
            TopicRec& rec = m_book.TopicRecs(number);
            ASSERT_EQ(rec.Text, topic.text);
            ASSERT_EQ(rec.Logic, topic.logic);
            rec = TopicRec{};
        }
        ASSERT_EQ(m_world.messages.Take(), std::vector<std::string>{});
    }

    std::mt19937 m_random;
    test::TestSeams m_world;
    Book m_book;
    Model m_model;
    int m_names = 0;
    std::string m_log;
};

TEST(EditSequencesTest, tenThousandRandomSessions_savedAndOpenedAsTheModelSays)
{
    for (unsigned seed = 1; seed <= 10000; ++seed) {
        Session session(seed);
        session.Run();
        ASSERT_FALSE(HasFailure()) << "session " << seed << ":" << session.Log();
    }
}

} // namespace
} // namespace ls
