// Printing through a real printing service, which tests/gui/with-cups starts and ends.

#include "gui/MainFormFixture.h"
#include "gui/PdfTools.h"
#include "render/print/PageRecorder.h"
#include "render/print/PrintTopic.h"
#include "render/print/SystemPrinter.h"
#include "support/PageText.h"

#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRadioButton>
#include <QTransform>

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

class PrintCupsTest : public MainFormFixture
{
protected:
    void SetUp() override
    {
        out = QString::fromLocal8Bit(qgetenv("LS_CUPS_OUT"));
        ASSERT_FALSE(out.isEmpty()) << "to be run by tests/gui/with-cups";
        Clear();
        CommandLine commandLine;
        commandLine.bookPath = WriteBook();
        commandLine.iniDir = Path("");
        window.Form_Load(commandLine);
        window.show();
        Settle();
    }

    // A topic of all styles and colours, two pages long.
    std::string WriteBook()
    {
        std::string body = "<H1>First</H1>\r\n<H2>Second</H2>\r\n<H3>Third</H3>\r\n";
        for (int line = 1; line <= 60; ++line) {
            body += "- line " + std::to_string(line) +
                    " is <B>bold</B>, <I>slanted</I> and <U>underlined</U>\r\n";
        }
        return Write("Long.IDA", "LODESTAR BOOK V5.3\r\n[A Long Topic]\r\n" + body);
    }

    void Clear() const
    {
        for (const QString& name : QDir(out).entryList(QDir::Files)) {
            QFile::remove(QDir(out).filePath(name));
        }
    }

    // The one file that a job arrives in; empty when none comes.
    [[nodiscard]] std::string Arrived() const
    {
        std::string path;
        for (int i = 0; i < 300 && path.empty(); ++i) {
            QTest::qWait(100);
            for (const QString& name : QDir(out).entryList({QStringLiteral("*.pdf")}, QDir::Files)) {
                QFile file(QDir(out).filePath(name));
                const bool whole =
                    file.open(QIODevice::ReadOnly) && file.readAll().trimmed().endsWith("%%EOF");
                path = whole ? QDir(out).filePath(name).toStdString() : std::string();
            }
        }
        return path;
    }

    // Chooses in the print dialog; empty names keep what it shows.
    static void Choose(QWidget& dialog, const char* printerName, const char* paper = "", bool elite = false)
    {
        ASSERT_EQ(dialog.objectName(), QStringLiteral("PrtForm"));
        test::Find<QComboBox>(dialog, "PrinterCombo")->setCurrentText(QString::fromLatin1(printerName));
        Q_EMIT test::Find<QComboBox>(dialog, "PrinterCombo")
            ->activated(test::Find<QComboBox>(dialog, "PrinterCombo")->currentIndex());
        if (*paper != '\0') {
            test::Find<QComboBox>(dialog, "PaperCombo")->setCurrentText(QString::fromLatin1(paper));
        }
        test::Find<QComboBox>(dialog, "TypeSizeCombo")->setCurrentIndex(elite ? 1 : 0);
    }

    static bool RunTool(const char* variable, const char* argument = "")
    {
        const QString command =
            QString::fromLocal8Bit(qgetenv(variable)) + QLatin1Char(' ') + QString::fromLatin1(argument);
        return QProcess::execute(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command}) == 0;
    }

    // The topic as a PDF file, printed as the printer was set last.
    std::string PrintPdf(int paper)
    {
        EXPECT_TRUE(systemPrinter.Choose(PrintToPdf).Ok());
        EXPECT_TRUE(systemPrinter.SetPaperSize(paper).Ok());
        EXPECT_TRUE(systemPrinter.SetColour(global.print.PrintInColour).Ok());
        systemPrinter.SetFile(Path("own.pdf"), true);
        const Printed printed = PrintTopic(global.book, seams, systemPrinter, global.print,
                                           global.book.CurrentTopicName, global.book.CurrentTopicNo);
        EXPECT_TRUE(printed.error.Ok());
        return Path("own.pdf");
    }

    QString out;
    std::unique_ptr<PrintService> service = MakePrintService();
    SystemPrinter systemPrinter{files, *service};
    MainForm window{global, seams, {*volumes, dde, registry, systemPrinter}};
};

TEST_F(PrintCupsTest, queues_areListedAndTheDefaultIsShown)
{
    Strings listed;
    QString current;
    QString paper;
    ModalScript script;
    script.Do([&](QWidget& dialog) {
        const auto* combo = test::Find<QComboBox>(dialog, "PrinterCombo");
        for (int i = 0; i < combo->count(); ++i) {
            listed.push_back(combo->itemText(i).toStdString());
        }
        current = combo->currentText();
        paper = test::Find<QComboBox>(dialog, "PaperCombo")->currentText();
        Press(dialog, "CancelButton");
    });
    Press(window, "PrintItem");
    std::sort(listed.begin(), listed.end());
    EXPECT_EQ(listed, (Strings{"Laser", "Paper", "Print to PDF", "Sideways", "Small"}));
    EXPECT_EQ(systemPrinter.Names().back(), "Print to PDF") << "behind the installed ones";
    EXPECT_EQ(current, QStringLiteral("Paper"));
    EXPECT_EQ(paper, QStringLiteral("Letter 8.5 x 11 in."));
}

TEST_F(PrintCupsTest, job_arrivesWithItsPagesAndLooksLikeThePdf)
{
    for (const int paper : {1, 9}) {
        Clear();
        ModalScript script;
        script.Do([paper](QWidget& dialog) {
            Choose(dialog, "Paper", paper == 9 ? "A4 Letter 21 x 29.7 cm" : "Letter 8.5 x 11 in.");
            test::Find<QRadioButton>(dialog, "ColourOption")->setChecked(true);
            Press(dialog, "OKButton");
        });
        Press(window, "PrintItem");
        const std::string job = Arrived();
        ASSERT_NE(job, "");
        EXPECT_TRUE(
            QFileInfo(QString::fromStdString(job)).fileName().startsWith(QStringLiteral("A_Long_Topic")))
            << job;
        const std::string own = PrintPdf(paper);
        EXPECT_EQ(test::PdfInfo(job, "Pages"), test::PdfInfo(own, "Pages"));
        EXPECT_EQ(test::PdfInfo(job, "Page size"),
                  paper == 9 ? "595 x 842 pts (A4)" : "612 x 792 pts (letter)");
        const std::vector<QImage> jobPages = test::PdfPictures(job);
        const std::vector<QImage> ownPages = test::PdfPictures(own);
        ASSERT_EQ(jobPages.size(), ownPages.size());
        ASSERT_EQ(ownPages.size(), 2U);
        for (std::size_t page = 0; page < ownPages.size(); ++page) {
            const double part = test::DifferingPart(jobPages[page], ownPages[page]);
            EXPECT_LT(part, 0.01) << "page " << page + 1;
            RecordProperty("differing_page_" + std::to_string(page + 1), std::to_string(part));
            std::printf("paper %d, page %zu: %.4f %% of the pixels differ\n", paper, page + 1, part * 100);
        }
    }
}

// The comparison of pictures must be able to fail.
TEST_F(PrintCupsTest, pictures_ofOtherPages_differ)
{
    global.print.CharsPerInch = 10;
    const std::vector<QImage> pica = test::PdfPictures(PrintPdf(1));
    global.print.CharsPerInch = 12;
    const std::vector<QImage> elite = test::PdfPictures(PrintPdf(1));
    EXPECT_GT(test::DifferingPart(pica.at(0), elite.at(0)), 0.01);
}

TEST_F(PrintCupsTest, paperOfTheQueue_isItsOwnUnlessAnotherIsChosen)
{
    ASSERT_TRUE(systemPrinter.Choose("Small").Ok());
    EXPECT_EQ(systemPrinter.State().paperSize, 11) << "A5";
    EXPECT_EQ(systemPrinter.State().width, 420 * 20);
    QString paper;
    ModalScript script;
    script
        .Do([&paper](QWidget& dialog) {
            paper = test::Find<QComboBox>(dialog, "PaperCombo")->currentText();
            Press(dialog, "OKButton"); // refused: the paper is less than 6 inches wide
            test::Find<QComboBox>(dialog, "PaperCombo")->setCurrentIndex(0);
            Press(dialog, "OKButton");
        })
        .Answer(Reply::Ok);
    Press(window, "PrintItem");
    EXPECT_EQ(paper, QStringLiteral("Printer default (other)"));
    ASSERT_EQ(script.Seen().size(), 2U);
    EXPECT_EQ(
        script.Seen()[1],
        "warning|Lodestar Advisor|The paper selected for your printer is too small.  Put in larger paper and "
        "choose a new size using the Windows control panel or using my paper selection list.");
    const std::string job = Arrived();
    ASSERT_NE(job, "");
    EXPECT_EQ(test::PdfInfo(job, "Page size"), "612 x 792 pts (letter)");
}

TEST_F(PrintCupsTest, orientationOfTheQueue_turnsThePage)
{
    ASSERT_TRUE(systemPrinter.Choose("Sideways").Ok());
    EXPECT_TRUE(systemPrinter.State().landscape);
    EXPECT_EQ(systemPrinter.State().width, 15840);
    EXPECT_EQ(systemPrinter.State().height, 12240);
    ModalScript script;
    script.Do([](QWidget& dialog) {
        Choose(dialog, "Sideways");
        Press(dialog, "OKButton");
    });
    Press(window, "PrintItem");
    EXPECT_EQ(global.print.CharsPerLine, 100);
    const std::string job = Arrived();
    ASSERT_NE(job, "");
    EXPECT_EQ(test::PdfInfo(job, "Page size"), "612 x 792 pts (letter)") << "the sheet goes in upright";
    ASSERT_TRUE(systemPrinter.Choose(PrintToPdf).Ok());
    ASSERT_TRUE(systemPrinter.SetLandscape(true).Ok());
    const std::vector<QImage> own = test::PdfPictures(PrintPdf(1));
    const std::vector<QImage> pages = test::PdfPictures(job);
    ASSERT_EQ(pages.size(), own.size());
    for (std::size_t page = 0; page < own.size(); ++page) {
        const QImage turned =
            own[page].transformed(QTransform().rotate(90)).convertToFormat(QImage::Format_Grayscale8);
        const QImage back =
            own[page].transformed(QTransform().rotate(270)).convertToFormat(QImage::Format_Grayscale8);
        EXPECT_LT(std::min(test::DifferingPart(pages[page], turned), test::DifferingPart(pages[page], back)),
                  0.01)
            << "page " << page + 1;
    }
}

TEST_F(PrintCupsTest, laser_hasEdgesAndNoColour)
{
    ASSERT_TRUE(systemPrinter.Choose("Laser").Ok());
    const PrinterState upright = systemPrinter.State();
    EXPECT_EQ(upright.width, 12240);
    EXPECT_EQ(upright.scaleWidth, 11520);
    EXPECT_EQ(upright.scaleHeight, 14400);
    EXPECT_FALSE(upright.colour);
    EXPECT_EQ(systemPrinter.SetPaperSize(66), MakeFileError(error::InvalidCall)) << "it takes no A2";
    EXPECT_EQ(systemPrinter.State().paperSize, 1);
    EXPECT_TRUE(systemPrinter.SetColour(true).Ok());
    EXPECT_FALSE(systemPrinter.State().colour);
    ASSERT_TRUE(systemPrinter.SetLandscape(true).Ok());
    EXPECT_EQ(systemPrinter.State().scaleWidth, 14400) << "the edges turn with the sheet";
    EXPECT_EQ(systemPrinter.State().scaleHeight, 11520);
}

TEST_F(PrintCupsTest, printerRemovedAfterItWasChosen_isTold)
{
    ModalScript script;
    script
        .Do([](QWidget& dialog) {
            Choose(dialog, "Laser");
            EXPECT_TRUE(RunTool("LS_CUPS_REMOVE", "Laser"));
            Press(dialog, "OKButton");
            // The box over the dialog has been answered; the dialog is still there.
            Press(dialog, "CancelButton");
        })
        .Answer(Reply::Ok);
    Press(window, "PrintItem");
    ASSERT_EQ(script.Seen().size(), 2U);
    EXPECT_EQ(script.Seen()[1],
              "warning|Lodestar Advisor|I cannot select the printer <<Laser>> due to error #68: "
              "Device unavailable");
    EXPECT_FALSE(global.print.PrintConfirmed);
}

TEST_F(PrintCupsTest, jobThatTheServiceRefuses_isTold)
{
    ASSERT_TRUE(RunTool("LS_CUPS_REJECT", "Small"));
    ModalScript script;
    script
        .Do([](QWidget& dialog) {
            Choose(dialog, "Small", "Letter 8.5 x 11 in.");
            Press(dialog, "OKButton");
        })
        .Answer(Reply::Ok);
    Press(window, "PrintItem");
    ASSERT_EQ(script.Seen().size(), 2U);
    EXPECT_TRUE(script.Seen()[1].starts_with(
        "critical|Lodestar Advisor|I cannot print the topic due to error #68: Device unavailable ("))
        << script.Seen()[1];
    EXPECT_NE(script.Seen()[1].find("not accepting jobs"), std::string::npos) << script.Seen()[1];
}

TEST_F(PrintCupsTest, serviceStoppedAfterThePrinterWasChosen_isTold)
{
    ASSERT_TRUE(systemPrinter.Choose("Paper").Ok());
    ASSERT_TRUE(RunTool("LS_CUPS_STOP"));
    ASSERT_TRUE(test::WaitFor([] { return !QFile::exists(QString::fromLocal8Bit(qgetenv("CUPS_SERVER"))); }));
    const Printed printed = PrintTopic(global.book, seams, systemPrinter, global.print,
                                       global.book.CurrentTopicName, global.book.CurrentTopicNo);
    EXPECT_EQ(printed.error, MakeFileError(error::DeviceUnavailable));
    EXPECT_EQ(systemPrinter.Names(), Strings{"Print to PDF"});
}

} // namespace
} // namespace ls
