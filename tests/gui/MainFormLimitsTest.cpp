// The window with the largest counts, sizes and paths.

#include "gui/MainFormFixture.h"
#include "support/LimitBooks.h"

#include <sys/resource.h>

#include <QListWidget>
#include <QPlainTextEdit>

#include <algorithm>
#include <fstream>

namespace ls {
namespace {

using test::BookHeader;
using test::BookOfMany;
using test::Find;
using test::Limit;
using test::ModalScript;
using test::Press;

constexpr const char* TheFileForm = "form|FileForm|Lodestar Advisor Open";
constexpr const char* TheAdvForm = "form|AdvForm|Lodestar Advisor - Questions and Answers";
constexpr const char* Overflow = "critical|Lodestar Advisor|Overflow";

struct MainFormLimitsTest : MainFormFixture
{
    // Topics "A", "Hole" and "B". "Hole" has 4 GiB of zero bytes that take no room on the disk.
    std::string WriteWithHole()
    {
        const std::string path = Write("Hole.IDA", BookHeader + std::string("[A]\r\na\r\n[Hole]\r\n"));
        EXPECT_TRUE(QFile::resize(QString::fromStdString(path), qint64{1} << 32));
        std::ofstream(path, std::ios::binary | std::ios::app) << "\r\n[B]\r\nb\r\n";
        return path;
    }

    void GoTo(int index)
    {
        Get<QComboBox>("TopicList").setCurrentIndex(index);
        Press(form, "GoToButton");
    }
};

TEST_F(MainFormLimitsTest, allTopicsThatCanBeCounted_areListedAndReached)
{
    Start(Write("Many.IDA", BookOfMany(Limit, "", test::NthTopic)));
    EXPECT_EQ(Get<QComboBox>("TopicList").count(), Limit);
    GoTo(Limit - 1);
    EXPECT_EQ(PaneText(), "body 32767");
}

TEST_F(MainFormLimitsTest, allReferencesThatCanBeCounted_areListed)
{
    Start(Write("Many.IDA", BookOfMany(Limit, "[A]\r\n", test::NthReference, "[B]\r\nb\r\n")));
    ModalScript script;
    int listed = 0;
    script.Do([&listed](QWidget& window) {
        listed = Find<QListWidget>(window, "ToList")->count();
        Press(window, "CloseButton");
    });
    Press(form, "XRButton");
    EXPECT_EQ(listed, Limit);
}

struct OneMoreTest : MainFormLimitsTest, testing::WithParamInterface<std::string (*)(int)>
{
};

TEST_P(OneMoreTest, oneTopicOrReferenceMore_isRefused)
{
    Start(WriteThree());
    ModalScript script;
    const std::string path = Write("Many.IDA", BookOfMany(Limit + 1, "[A]\r\n", GetParam(), "[B]\r\nb\r\n"));
    script.Do([path](QWidget& chooser) { ChooseFile(chooser, path); }).Answer(Reply::Ok);
    Press(form, "OpenItem");
    EXPECT_EQ(script.Seen(), (Strings{TheFileForm, Overflow}));
    EXPECT_EQ(ItemTexts(), Strings{});
    ExpectUsable(script);
}

INSTANTIATE_TEST_SUITE_P(Pieces, OneMoreTest, testing::Values(test::NthTopic, test::NthReference),
                         [](const auto& row) { return row.index == 0 ? "topic" : "reference"; });

QString AdvisorText(const QWidget& window)
{
    return Find<QPlainTextEdit>(window, "MessageBox")->toPlainText();
}

TEST_F(MainFormLimitsTest, allRulesThatCanBeCounted_areAskedAndAnswered)
{
    Start(Write("Many.IDA", BookOfMany(Limit, test::RulesStart, test::NthRule, test::RulesEnd)));
    ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_EQ(AdvisorText(window), QStringLiteral("Which?"));
        auto* answers = Find<QComboBox>(window, "AnswerCombo");
        EXPECT_EQ(answers->count(), 1 + Limit);
        answers->setCurrentIndex(answers->findText(QStringLiteral("32767")));
        Press(window, "NextButton");
        EXPECT_EQ(AdvisorText(window), QStringLiteral("The last."));
        Press(window, "NextButton");
    });
    Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen(), Strings{TheAdvForm});
    ExpectUsable(script);
}

TEST_F(MainFormLimitsTest, oneRuleMoreThanCanBeCounted_isNoAdvisor)
{
    Start(Write("Many.IDA", BookOfMany(Limit + 1, test::RulesStart, test::NthRule, test::RulesEnd)));
    ModalScript script;
    QString told;
    script.Answer(Reply::Ok).Do([&told](QWidget& window) {
        told = AdvisorText(window);
        Press(window, "NextButton");
    });
    Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen(), (Strings{Overflow, TheAdvForm}));
    EXPECT_EQ(told, QStringLiteral("Failure loading logic section for topic <<[A]>>; I can't proceed."));
    ExpectUsable(script);
}

TEST_F(MainFormLimitsTest, bookPastFourGibibytes_isReadBehindThem)
{
    Start(WriteWithHole());
    EXPECT_EQ(ItemTexts(), (Strings{"1. A", "2. Hole", "3. B"}));
    GoTo(2);
    EXPECT_EQ(PaneText(), "b");
}

// Limits the memory that the program may take in addition, until it is destroyed.
class MemoryLeft
{
public:
    explicit MemoryLeft(rlim_t bytes)
    {
        getrlimit(RLIMIT_AS, &m_before);
        std::ifstream sizes("/proc/self/statm");
        rlim_t pages = 0;
        sizes >> pages;
        rlimit less = m_before;
        less.rlim_cur = pages * 4096 + bytes;
        EXPECT_EQ(setrlimit(RLIMIT_AS, &less), 0);
    }
    ~MemoryLeft() { setrlimit(RLIMIT_AS, &m_before); }
    MemoryLeft(const MemoryLeft&) = delete;
    MemoryLeft& operator=(const MemoryLeft&) = delete;

private:
    rlimit m_before{};
};

TEST_F(MainFormLimitsTest, topicThatDoesNotFitIntoMemory_isShownUntilTheLinesEnd)
{
    Start(WriteWithHole());
    ModalScript script;
    script.Answer(Reply::Ok);
    {
        const MemoryLeft left(rlim_t{1} << 30);
        Press(form, "NextButton");
    }
    EXPECT_EQ(script.Seen(), Strings{Overflow});
    GoTo(2);
    EXPECT_EQ(PaneText(), "b");
    ExpectUsable(script);
}

TEST_F(MainFormLimitsTest, topicThatDoesNotFitIntoMemory_isNotEdited)
{
    Start(WriteWithHole());
    ModalScript script;
    script.Answer(Reply::Ok).Answer(Reply::Ok);
    Press(form, "NextButton");
    {
        const MemoryLeft left(rlim_t{1} << 30);
        Press(form, "EdTextItem");
    }
    EXPECT_EQ(script.Seen(), (Strings{Overflow, "critical|Lodestar Advisor|Out of memory"}));
    EXPECT_FALSE(global.book.BookChanged);
    ExpectUsable(script);
}

TEST_F(MainFormLimitsTest, titleOfTenThousandCharacters_isListedInShortAndFollowed)
{
    const std::string title(10000, 'w');
    Start(Write("Long.IDA",
                BookHeader + ("[A]\r\n<XREF TOPIC=" + title) + ">n</XREF>\r\n[" + title + "]\r\nbody\r\n"));
    EXPECT_EQ(ItemTexts(), (Strings{"1. A", "2. " + std::string(497, 'w')}));
    ModalScript script;
    script.Do([](QWidget& window) {
        Find<QListWidget>(window, "ToList")->setCurrentRow(0);
        Press(window, "ToGoButton");
    });
    Press(form, "XRButton");
    EXPECT_EQ(PaneText(), "body");
}

TEST_F(MainFormLimitsTest, pathOfFourThousandBytes_isOpenedAndKeptAmongTheRecentFiles)
{
    std::string deep = Path("");
    while (deep.size() + 2 < 3994) {
        deep += "/" + std::string(std::min<std::size_t>(200, 3994 - deep.size() - 1), 'd');
        ASSERT_TRUE(QDir().mkdir(QString::fromStdString(deep)));
    }
    const std::string path = deep + "/a.IDA";
    ASSERT_EQ(path.size(), 4000U);
    std::ofstream(path, std::ios::binary) << BookHeader << "[A]\r\na\r\n";
    Start(WriteThree());
    ModalScript script;
    Open(script, path);
    EXPECT_EQ(PaneText(), "a");
    EXPECT_EQ(global.settings.RecentFiles[0], path);
}

} // namespace
} // namespace ls
