// Files with a line of 100 MiB: the window says what it must in short, and goes on.

#include "gui/MainFormFixture.h"

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

struct MainFormHugeTest : MainFormFixture
{
    // A file with a line of 100 MiB and a little more: what stands before its "w"s, and behind them.
    std::string WriteHuge(const char* before, const char* behind)
    {
        QFile file(QString::fromStdString(Path("Huge.IDA")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(before);
        const QByteArray piece(1024 * 1024, 'w');
        for (int i = 0; i < 100; ++i) {
            EXPECT_EQ(file.write(piece), piece.size());
        }
        file.write(behind);
        return Path("Huge.IDA");
    }
};

TEST_F(MainFormHugeTest, hundredMebibyteLine_isCutAtTheLimitOfLines)
{
    ModalScript script;
    script.Answer(Reply::Ok);
    Start(WriteHuge("LODESTAR BOOK V5.3\r\n[T]\r\n", "\r\n[Next]\r\nafter\r\n"));
    EXPECT_EQ(script.Seen(), Strings{"critical|Lodestar Advisor|Overflow"});
    EXPECT_EQ(Get<QScrollBar>("VScroll1").maximum(), 32767);
    Press(form, "NextButton");
    EXPECT_EQ(PaneText(), "after");
    ExpectUsable(script);
}

TEST_F(MainFormHugeTest, hundredMebibyteHeader_isToldInShort)
{
    ModalScript script;
    script.Answer(Reply::Ok);
    Start(WriteHuge("LODESTAR BOOK V5.3 /TITLE=", "\r\n[T]\r\nbody\r\n"));
    const std::string begin = "Invalid Lodestar Book header: <<LODESTAR BOOK V5.3 /TITLE=";
    const std::string end = ">>.  Some information may not be loaded.";
    EXPECT_EQ(script.Seen(),
              Strings{"warning|Lodestar Advisor|" + begin + std::string(1500 - begin.size(), 'w') + " ... " +
                      std::string(500 - end.size(), 'w') + end});
    EXPECT_EQ(PaneText(), "body");
    ExpectUsable(script);
}

TEST_F(MainFormHugeTest, hundredMebibyteTitle_isListedInShortAndShown)
{
    ModalScript script;
    Start(WriteHuge("LODESTAR BOOK V5.3\r\n[", "]\r\nbody\r\n"));
    EXPECT_EQ(ItemTexts(), Strings{"1. " + std::string(497, 'w')});
    EXPECT_EQ(PaneText(), "body");
    ExpectUsable(script);
}

} // namespace
} // namespace ls
