// The print command and the rules of the print dialog, without the dialog.

#include "reader/window/PrintItem.h"

#include "render/print/PrintSettings.h"
#include "render/print/PrtFormRules.h"
#include "render/text/ShowTopicFixture.h"
#include "support/PageText.h"
#include "support/RecordingPrinter.h"

namespace ls {
namespace {

struct PrintItemTest : ShowTopicTest
{
    test::RecordingPrinter printer;
    PrintSettings settings;
    int shown = 0;
    bool confirm = true;

    void ShowTopicA()
    {
        ASSERT_TRUE(Scan(Header + "[A]\r\na\r\n"));
        book.CurrentTopicName = "[A]";
        book.CurrentTopicNo = 1;
    }

    void Click()
    {
        ls::PrintItem_Click(book, settings, printer, world.Get(), [this] {
            ++shown;
            EXPECT_FALSE(settings.PrintConfirmed) << "cleared before the dialog opens";
            settings.PrintConfirmed = confirm;
        });
    }
};

TEST_F(PrintItemTest, noBook_saysThatThereIsNothing)
{
    Click();
    EXPECT_EQ(world.messages.Take(), Strings{"warning|Lodestar Advisor|There is nothing to print."});
    EXPECT_EQ(shown, 0);
}

TEST_F(PrintItemTest, bookWithoutTopics_saysThatThereIsNothing)
{
    ASSERT_TRUE(Scan(Header));
    Click();
    EXPECT_EQ(world.messages.Take(), Strings{"warning|Lodestar Advisor|There is nothing to print."});
}

TEST_F(PrintItemTest, noTopicOnShow_asksForOne)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\na\r\n"));
    book.CurrentTopicName.clear();
    Click();
    EXPECT_EQ(world.messages.Take(),
              Strings{"warning|Lodestar Advisor|Please display the topic first by choosing "
                      "it from the list and clicking Go."});
    EXPECT_EQ(shown, 0);
}

TEST_F(PrintItemTest, confirmed_printsTheTopicOnShow)
{
    ShowTopicA();
    settings.PrintConfirmed = true; // left from the last time
    Click();
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(printer.log, (Strings{"title A", "font Courier New 12", "end"}));
    ASSERT_EQ(printer.Pages().size(), 1U);
    EXPECT_EQ(test::RowTexts(printer.Pages()[0]), (Strings{"", "", "", "      A", "", "      a"}));
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(PrintItemTest, cancelled_printsNothing)
{
    ShowTopicA();
    confirm = false;
    settings.PrintConfirmed = true;
    Click();
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(printer.log, Strings{});
}

TEST_F(PrintItemTest, plainText_isPrintedThoughItHasNoTopics)
{
    OpenPlain("text\r\n");
    Click();
    EXPECT_EQ(printer.log.front(), "title Book.IDA");
    ASSERT_EQ(printer.Pages().size(), 1U);
    EXPECT_EQ(test::RowTexts(printer.Pages()[0]).back(), "      text");
}

TEST_F(PrintItemTest, lookupFails_topicStaysOnShow)
{
    ShowTopicA();
    world.files["/work/Book.IDA"] = Header + "[Z]\r\na\r\n";
    Click();
    EXPECT_EQ(world.messages.Take(), Strings{"warning|Lodestar Advisor|Error looking up topic: [A]"});
    EXPECT_EQ(book.CurrentTopicName, "[A]");
}

TEST_F(PrintItemTest, printerFails_isTold)
{
    ShowTopicA();
    printer.failEndDoc = MakeFileError(error::DeviceUnavailable);
    Click();
    EXPECT_EQ(world.messages.Take(),
              Strings{"critical|Lodestar Advisor|I cannot print the topic due to error #68: "
                      "Device unavailable"});
}

TEST_F(PrintItemTest, faultWhileTheDialogWasOpen_printsNothing)
{
    ShowTopicA();
    ls::PrintItem_Click(book, settings, printer, world.Get(), [this] {
        settings.PrintConfirmed = true;
        EndProgram(world.end, "test");
    });
    EXPECT_EQ(printer.log, Strings{});
}

// What the dialog shows and what its buttons do.
struct PrtFormRulesTest : PrintItemTest
{
    PrtFormRulesTest() { printer.names = {"Office", "Attic", "Print to PDF"}; }

    bool Accept(const PrtFormChoices& choices)
    {
        return AcceptPrtForm(settings, printer, book, world.Get(), choices);
    }

    [[nodiscard]] static Strings Texts(const PrtFormView& view)
    {
        Strings texts;
        for (const PaperChoice& paper : view.papers) {
            texts.push_back(paper.text + "=" + std::to_string(paper.code));
        }
        return texts;
    }
};

TEST_F(PrtFormRulesTest, load_listsPrintersAndPapers)
{
    printer.current = "Attic";
    const PrtFormView view = LoadPrtForm(settings, printer);
    EXPECT_EQ(view.printers, (Strings{"Office", "Attic", "Print to PDF"}));
    EXPECT_EQ(view.printer, "Attic");
    EXPECT_EQ(Texts(view),
              (Strings{"Letter 8.5 x 11 in.=1", "Legal 11 x 14 in.=5", "A4 Letter 21 x 29.7 cm=9"}));
    EXPECT_EQ(view.paper, 0U);
}

TEST_F(PrtFormRulesTest, load_selectsThePrintersPaper)
{
    struct Row
    {
        int code;
        std::size_t selected;
        std::size_t papers;
    };
    for (const Row& row : {Row{1, 0, 3}, Row{2, 0, 3}, Row{5, 1, 3}, Row{9, 2, 3}, Row{11, 3, 4},
                           Row{256, 3, 4}, Row{0, 3, 4}}) {
        printer.state.paperSize = row.code;
        const PrtFormView view = LoadPrtForm(settings, printer);
        EXPECT_EQ(view.paper, row.selected) << row.code;
        EXPECT_EQ(view.papers.size(), row.papers) << row.code;
    }
    EXPECT_EQ(Texts(LoadPrtForm(settings, printer)).back(), "Printer default (other)=0");
}

TEST_F(PrtFormRulesTest, load_typeSize)
{
    EXPECT_FALSE(LoadPrtForm(settings, printer).elite);
    settings.CharsPerInch = 12;
    EXPECT_TRUE(LoadPrtForm(settings, printer).elite);
    settings.CharsPerInch = 11;
    EXPECT_FALSE(LoadPrtForm(settings, printer).elite);
}

TEST_F(PrtFormRulesTest, load_colourIsThePrintersUntilItWasChosen)
{
    printer.state.colour = true;
    EXPECT_TRUE(LoadPrtForm(settings, printer).colour);
    printer.state.colour = false;
    EXPECT_FALSE(LoadPrtForm(settings, printer).colour);
    ASSERT_TRUE(Accept({"Office", 0, true, false}));
    printer.state.colour = false;
    EXPECT_TRUE(LoadPrtForm(settings, printer).colour) << "the last choice is remembered";
}

TEST_F(PrtFormRulesTest, load_currentPrinterIsGone_theFirstTakesItsPlace)
{
    printer.current = "Cellar";
    EXPECT_EQ(LoadPrtForm(settings, printer).printer, "Office");
    EXPECT_EQ(printer.current, "Office");
}

TEST_F(PrtFormRulesTest, printerPicked_becomesTheCurrentOne)
{
    PrinterCombo_Click(printer, "Attic");
    EXPECT_EQ(printer.current, "Attic");
    PrinterCombo_Click(printer, "Cellar");
    EXPECT_EQ(printer.current, "Attic");
    EXPECT_EQ(printer.log, Strings{"choose Attic"});
}

TEST_F(PrtFormRulesTest, accept_setsThePrinterUpInOrder)
{
    EXPECT_TRUE(Accept({"Attic", 9, true, true}));
    EXPECT_EQ(printer.log, (Strings{"choose Attic", "paper 9", "colour"}));
    EXPECT_TRUE(settings.PrintConfirmed);
    EXPECT_TRUE(settings.PrintInColour);
    EXPECT_EQ(settings.CharsPerInch, 12);

    printer.log.clear();
    EXPECT_TRUE(Accept({"Attic", 0, false, false}));
    EXPECT_EQ(printer.log, (Strings{"choose Attic", "grey"})) << "code 0 does not change the paper";
    EXPECT_FALSE(settings.PrintInColour);
    EXPECT_EQ(settings.CharsPerInch, 10);
}

TEST_F(PrtFormRulesTest, accept_printerIsGone_isToldAndStays)
{
    EXPECT_FALSE(Accept({"Cellar", 1, true, false}));
    EXPECT_EQ(world.messages.Take(),
              Strings{"warning|Lodestar Advisor|I cannot select the printer <<Cellar>> due to "
                      "error #68: Device unavailable"});
    EXPECT_FALSE(settings.PrintConfirmed);
}

TEST_F(PrtFormRulesTest, accept_paperRefused_isToldAndStays)
{
    printer.refuse[5] = MakeFileError(error::InvalidCall);
    EXPECT_FALSE(Accept({"Office", 5, true, true}));
    EXPECT_EQ(
        world.messages.Take(),
        Strings{"warning|Lodestar Advisor|I cannot select the paper size on your printer due to error #5: "
                "Invalid procedure call or argument"});
    EXPECT_FALSE(settings.PrintConfirmed);
    EXPECT_EQ(settings.CharsPerInch, 10);
    EXPECT_EQ(printer.log, (Strings{"choose Office", "paper 5"}));
}

TEST_F(PrtFormRulesTest, accept_paperOfSixByEightInches_isTheSmallest)
{
    struct Row
    {
        int width;
        int height;
        bool accepted;
    };
    for (const Row& row : {Row{8640, 11520, true}, Row{8639, 11520, false}, Row{8640, 11519, false},
                           Row{15840, 12240, true}, Row{20000, 11519, false}}) {
        settings.PrintConfirmed = false;
        printer.state.width = row.width;
        printer.state.height = row.height;
        EXPECT_EQ(Accept({"Office", 0, false, false}), row.accepted) << row.width << " x " << row.height;
        EXPECT_EQ(settings.PrintConfirmed, row.accepted);
        EXPECT_EQ(
            world.messages.Take(),
            row.accepted
                ? Strings{}
                : Strings{
                      "warning|Lodestar Advisor|The paper selected for your printer is too small.  Put in "
                      "larger paper and choose a new size using the Windows control panel or using my "
                      "paper selection list."});
    }
}

// The chosen paper counts, not the one that the printer used before.
TEST_F(PrtFormRulesTest, accept_sizeIsThatOfTheChosenPaper)
{
    printer.sizes = {{1, {12240, 15840}}, {11, {8400, 11900}}};
    printer.state.width = 8400;
    EXPECT_TRUE(Accept({"Office", 1, false, false}));
    EXPECT_EQ(printer.log, (Strings{"choose Office", "paper 1", "grey"}));

    printer.log.clear();
    settings.PrintConfirmed = false;
    settings.CharsPerInch = 10;
    EXPECT_FALSE(Accept({"Office", 11, true, true}));
    EXPECT_EQ(world.messages.Take().size(), 1U);
    EXPECT_EQ(printer.log, (Strings{"choose Office", "paper 11"})) << "no colour mode was set";
    EXPECT_FALSE(settings.PrintInColour);
    EXPECT_EQ(settings.CharsPerInch, 10);
    EXPECT_FALSE(settings.PrintConfirmed);
}

TEST_F(PrtFormRulesTest, accept_colourRefused_isToldAndStays)
{
    printer.failColour = MakeFileError(error::InvalidCall);
    EXPECT_FALSE(Accept({"Office", 0, true, false}));
    EXPECT_EQ(
        world.messages.Take(),
        Strings{"warning|Lodestar Advisor|I cannot select the print mode on your printer due to error #5: "
                "Invalid procedure call or argument"});
    EXPECT_FALSE(settings.PrintConfirmed);
}

// The printer "Print to PDF" asks for a file name.
struct PdfNameTest : PrtFormRulesTest
{
    PdfNameTest() { printer.fileTo = "Print to PDF"; }

    bool AcceptPdf(std::optional<std::string> typed)
    {
        world.messages.inputs = {std::move(typed)};
        return Accept({"Print to PDF", 1, true, false});
    }
};

TEST_F(PdfNameTest, newName_isTaken)
{
    ShowTopicA();
    EXPECT_TRUE(AcceptPdf("Out.pdf"));
    EXPECT_EQ(world.messages.Take(), Strings{"input|Lodestar Advisor|Filename for the PDF file|A.pdf"});
    EXPECT_EQ(printer.log.back(), "file /work/Out.pdf");
    EXPECT_TRUE(settings.PrintConfirmed);
}

TEST_F(PdfNameTest, otherPrinters_doNotAsk)
{
    EXPECT_TRUE(Accept({"Office", 1, true, false}));
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(PdfNameTest, cancelOrNothing_staysAndPrintsNothing)
{
    EXPECT_FALSE(AcceptPdf(std::nullopt));
    EXPECT_FALSE(AcceptPdf(""));
    EXPECT_FALSE(settings.PrintConfirmed);
    EXPECT_EQ(world.messages.Take().size(), 2U);
}

TEST_F(PdfNameTest, nameWithoutType_getsOne)
{
    EXPECT_TRUE(AcceptPdf("/v1.2/Out"));
    EXPECT_EQ(printer.log.back(), "file /v1.2/Out.pdf");
    EXPECT_TRUE(AcceptPdf("a.b"));
    EXPECT_EQ(printer.log.back(), "file /work/a.b");
}

TEST_F(PdfNameTest, relativeName_liesInTheWorkingFolder)
{
    book.WorkDir = "/books";
    EXPECT_TRUE(AcceptPdf("sub/Out.pdf"));
    EXPECT_EQ(printer.log.back(), "file /books/sub/Out.pdf");
}

TEST_F(PdfNameTest, proposal_isTheTitleAsAFileName)
{
    ShowTopicA();
    for (const auto& [title, proposal] :
         std::vector<std::pair<std::string, std::string>>{{"[A/B: \"c\"?]", "A_B_ _c__.pdf"},
                                                          {"[\xC4rger]", "Ärger.pdf"},
                                                          {"[50% *]", "50_ _.pdf"},
                                                          {"", "Topic.pdf"}}) {
        book.CurrentTopicName = title;
        EXPECT_FALSE(AcceptPdf(std::nullopt));
        EXPECT_EQ(world.messages.Take(),
                  Strings{"input|Lodestar Advisor|Filename for the PDF file|" + proposal});
    }
}

TEST_F(PdfNameTest, proposalForALongTitle_isShortEnoughForAName)
{
    ShowTopicA();
    book.CurrentTopicName = "[" + std::string(79, '\x80') + " " + std::string(500, 'x') + "]";
    EXPECT_FALSE(AcceptPdf(std::nullopt));
    std::string euros;
    for (int i = 0; i < 79; ++i) {
        euros += "€";
    }
    EXPECT_EQ(world.messages.Take(),
              Strings{"input|Lodestar Advisor|Filename for the PDF file|" + euros + ".pdf"});
}

TEST_F(PdfNameTest, proposalForPlainText_isItsNameWithoutType)
{
    OpenPlain("x\r\n");
    EXPECT_FALSE(AcceptPdf(std::nullopt));
    EXPECT_EQ(world.messages.Take(), Strings{"input|Lodestar Advisor|Filename for the PDF file|Book.pdf"});
    book.BookPath = "/notes/plain";
    EXPECT_FALSE(AcceptPdf(std::nullopt));
    EXPECT_EQ(world.messages.Take(), Strings{"input|Lodestar Advisor|Filename for the PDF file|plain.pdf"});
}

TEST_F(PdfNameTest, fileThatExists_isReplacedOnlyWhenTheUserAgrees)
{
    world.files["/work/Out.pdf"] = "old";
    const std::string question =
        "question|Lodestar Advisor|The file <</work/Out.pdf>> already exists. Do you want to "
        "replace it?|YesNo";
    world.messages.replies = {Reply::No};
    EXPECT_FALSE(AcceptPdf("Out"));
    EXPECT_EQ(world.messages.Take().back(), question);
    EXPECT_FALSE(settings.PrintConfirmed);

    world.messages.replies = {Reply::Yes};
    EXPECT_TRUE(AcceptPdf("Out"));
    EXPECT_EQ(world.messages.Take().back(), question);
    EXPECT_EQ(printer.log.back(), "file /work/Out.pdf replaced");
}

TEST_F(PdfNameTest, openBook_isNeverWrittenOver)
{
    ShowTopicA();
    EXPECT_FALSE(AcceptPdf("Book.IDA"));
    EXPECT_EQ(world.messages.Take().back(),
              "warning|Lodestar Advisor|I cannot write the PDF file <</work/Book.IDA>> "
              "due to error #55: File already open");
    EXPECT_FALSE(settings.PrintConfirmed);
}

TEST_F(PdfNameTest, folder_isRefused)
{
    world.files.AddFolder("/work/Out.pdf");
    EXPECT_FALSE(AcceptPdf("Out.pdf"));
    EXPECT_EQ(world.messages.Take().back(),
              "warning|Lodestar Advisor|I cannot write the PDF file <</work/Out.pdf>> "
              "due to error #75: Path/File access error");
}

} // namespace
} // namespace ls
