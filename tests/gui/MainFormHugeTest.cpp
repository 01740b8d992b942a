// Files with a line of 100 MiB: the window says what it must in short, and goes on.

#include "gui/MainFormFixture.h"

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

struct MainFormHugeTest : MainFormFixture
{
    // A file with a line of 100 MiB of "w", with these texts before and after it.
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

} // namespace
} // namespace ls
