#include "reader/window/CheckItem.h"

#include "check/CheckBook.h"
#include "reader/window/MainFixture.h"
#include "support/StepProgress.h"

namespace ls {
namespace {

// Two topics with one finding each, and a header with another.
const std::string Faulty = test::CrLf({"LODESTAR BOOK V5.3 /COLOUR=\"red\"", "[Caf\xE9]", "text",
                                       "<XREF TOPIC=None></XREF>", "[B]", "b", "<XREF TOPIC=Gone></XREF>"});

struct CheckItemTest : MainFixture
{
    CheckItemTest()
    {
        view.onCheckForm = [this](const CheckedBook& checked) {
            ++forms;
            shown = checked;
            return choice;
        };
    }

    void OpenFaulty()
    {
        Open(Faulty);
        Boxes(); // drops the boxes about the header
    }

    void Check() { CheckItem_Click(book, world.Get(), view, navigation); }

    Strings Rules() const
    {
        Strings rules;
        for (const Finding& finding : shown.findings) {
            rules.push_back(std::to_string(finding.line) + " " + finding.topic + " " + finding.rule);
        }
        return rules;
    }

    // The number of the first finding in a topic.
    std::size_t FindingIn(const std::string& topic)
    {
        Check();
        for (std::size_t i = 0; i < shown.findings.size(); ++i) {
            if (shown.findings[i].topic == topic) {
                return i;
            }
        }
        ADD_FAILURE() << "no finding in " << topic;
        return 0;
    }

    int forms = 0;
    CheckedBook shown;
    std::optional<std::size_t> choice;
};

TEST_F(CheckItemTest, findings_areThoseOfCheckBook)
{
    OpenFaulty();
    Check();
    FileError error;
    EXPECT_EQ(shown.findings, CheckBook(book, world.Get(), nullptr, error));
    EXPECT_EQ(Rules(), (Strings{"1  header-keys", "4 Caf\xC3\xA9 reference-missing-topic",
                                "7 B reference-missing-topic"}));
    EXPECT_EQ(shown.summary, "3 errors and 0 warnings in Book.IDA.");
    EXPECT_EQ(shown.notes, "");
    EXPECT_EQ(Boxes(), Strings{});
}

TEST_F(CheckItemTest, cleanBook_saysThatNothingWasFound)
{
    OpenThree();
    Check();
    EXPECT_EQ(shown.findings, std::vector<Finding>{});
    EXPECT_EQ(shown.summary, "Nothing was found in Book.IDA that would surprise its author.");
    EXPECT_EQ(forms, 1);
}

TEST_F(CheckItemTest, oneError_isCountedInTheSingular)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "<XREF TOPIC=None></XREF>"}));
    Check();
    EXPECT_EQ(shown.summary, "1 error and 0 warnings in Book.IDA.");
}

TEST_F(CheckItemTest, nothingOpen_saysSo)
{
    Check();
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|There is no book to check."});
    EXPECT_EQ(forms, 0);
}

TEST_F(CheckItemTest, plainText_saysThatThereIsNoBook)
{
    world.messages.replies = {Reply::Ok};
    Open("text\r\n");
    Boxes();
    Check();
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|There is no book to check."});
}

TEST_F(CheckItemTest, newBookInMemory_isToBeSavedFirst)
{
    ASSERT_TRUE(book.TopicCount.Add());
    GrowTopicTables(book, 1);
    book.TopicNames(1) = "[A]";
    Check();
    EXPECT_EQ(Boxes(),
              Strings{"exclamation|Lodestar Advisor|Please save the book first: the check reads its file."});
}

TEST_F(CheckItemTest, chosenFinding_showsItsTopic)
{
    OpenFaulty();
    choice = FindingIn("B");
    Check();
    EXPECT_EQ(OnShow(), "[B]|b");
    EXPECT_EQ(view.ItemTexts().at(static_cast<std::size_t>(view.selected)), "2. B");
    choice = FindingIn("Caf\xC3\xA9");
    Check();
    EXPECT_EQ(view.shownName, "[Caf\xE9]");
}

TEST_F(CheckItemTest, closed_leavesTheTopicOnShow)
{
    OpenFaulty();
    const std::string before = OnShow();
    const int showings = view.showings;
    Check();
    EXPECT_EQ(OnShow(), before);
    EXPECT_EQ(view.showings, showings);
}

TEST_F(CheckItemTest, chosenFindingOutsideOfTheTopics_saysSo)
{
    OpenFaulty();
    const std::string before = OnShow();
    choice = FindingIn("");
    Check();
    EXPECT_EQ(Boxes(),
              (Strings{"exclamation|Lodestar Advisor|This is found in no topic: it stands before the "
                       "first one, or behind the last."}));
    EXPECT_EQ(OnShow(), before);
}

TEST_F(CheckItemTest, unsavedChanges_theListIsThatOfTheFileAndANoteTells)
{
    OpenFaulty();
    Check();
    const std::vector<Finding> before = shown.findings;
    book.BookChanged = true;
    std::swap(book.TopicNames(1), book.TopicNames(2));
    std::swap(book.TopicPos(1), book.TopicPos(2));
    book.TopicRecs(1).Text = "<H1> new\r\n";
    book.TopicRecs(2).Deleted = true;
    Check();
    EXPECT_EQ(shown.findings, before);
    EXPECT_EQ(shown.notes,
              "Your changes that are not saved yet were not checked: the lines are those of the file.\n");
    EXPECT_EQ(book.TopicNames(1), "[B]") << "topics in memory are unchanged";
}

TEST_F(CheckItemTest, chosenFindingInARemovedTopic_isNotFound)
{
    OpenFaulty();
    choice = FindingIn("B");
    book.TopicRecs(2).Deleted = true;
    book.BookChanged = true;
    Check();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Topic [B] was not found."});
}

TEST_F(CheckItemTest, cancelled_showsWhatWasFoundAndSaysSo)
{
    OpenThree();
    view.checkProgress = [] { return std::make_unique<test::StepProgress>(1); };
    Check();
    EXPECT_EQ(shown.summary, "Nothing was found so far in Book.IDA.");
    EXPECT_EQ(shown.notes, "The check was cancelled: this is what was found until then.\n");
}

} // namespace
} // namespace ls
