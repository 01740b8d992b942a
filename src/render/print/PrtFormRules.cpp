#include "render/print/PrtFormRules.h"

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/Messages.h"
#include "base/PrinterDevice.h"
#include "base/Text.h"
#include "book/Book.h"
#include "render/print/PrintSettings.h"

#include <algorithm>
#include <tuple>

namespace ls {

namespace {

// The system's paper codes.
constexpr int LetterPaper = 1;
constexpr int SmallLetterPaper = 2;
constexpr int OwnPaper = 0;

constexpr int LeastWidth = 8640;   // 6 inches
constexpr int LeastHeight = 11520; // 8 inches
constexpr int Pica = 10;
constexpr int Elite = 12;
constexpr const char* PdfType = ".pdf";
constexpr std::size_t LongestProposal = 80; // characters of a title: file names may have up to 255 bytes

// Intended: the captions say "11 x 14", though legal paper is 8.5 inches wide.
std::vector<PaperChoice> Papers()
{
    return {{"Letter 8.5 x 11 in.", LetterPaper}, {"Legal 11 x 14 in.", 5}, {"A4 Letter 21 x 29.7 cm", 9}};
}

bool Refuse(const Seams& seams, const std::string& what, const FileError& error)
{
    seams.messages.MsgBox(what + DueTo(error), Icon::Warning);
    return false;
}

bool SetPaper(PrinterDevice& printer, const Seams& seams, int code)
{
    const FileError error = code == OwnPaper ? FileError{} : printer.SetPaperSize(code);
    return error.Ok() || Refuse(seams, "I cannot select the paper size on your printer", error);
}

bool IsLargeEnough(const PrinterState& page, const Seams& seams)
{
    if (page.width >= LeastWidth && page.height >= LeastHeight) {
        return true;
    }
    seams.messages.MsgBox(
        "The paper selected for your printer is too small.  Put in larger paper and choose a new size using "
        "the Windows control panel or using my paper selection list.",
        Icon::Warning);
    return false;
}

// The title as a file name that every system accepts.
std::string ProposedName(const Book& book, const Seams& seams)
{
    const std::string title = WithoutBrackets(book.CurrentTopicName).substr(0, LongestProposal);
    std::string name = FromBook(TrimRight(title));
    if (book.IsPlainText()) {
        name = FromPath(NameOf(seams.paths, book.BookPath));
        name.resize(std::min(name.rfind('.'), name.size()));
    }
    for (char& c : name) {
        const bool unfit = static_cast<unsigned char>(c) < ' ' ||
                           std::string_view("\\/:*?\"<>|%").find(c) != std::string_view::npos;
        c = unfit ? '_' : c;
    }
    return (name.empty() ? "Topic" : name) + PdfType;
}

// The full path of a typed name. Relative names are in the working folder.
std::string FullPath(const Book& book, const Seams& seams, std::string name)
{
    if (NameOf(seams.paths, name).find('.') == std::string::npos) {
        name += PdfType;
    }
    if (IsAbsolute(seams.paths, name)) {
        return name;
    }
    return JoinPath(seams.paths, book.WorkDir.empty() ? seams.files.CurrentFolder() : book.WorkDir, name);
}

bool MayReplace(const Book& book, const Seams& seams, const std::string& path)
{
    std::vector<FolderEntry> entries;
    FileError refused;
    if (!book.OpenPath.empty() && seams.files.SameFile(book.OpenPath, path)) {
        refused = MakeFileError(error::FileAlreadyOpen);
    } else if (seams.files.List(path, entries).Ok()) {
        refused = MakeFileError(error::PathFileAccess); // a folder
    }
    if (!refused.Ok()) {
        return Refuse(seams, "I cannot write the PDF file <<" + FromPath(path) + ">>", refused);
    }
    return seams.messages.MsgBox("The file <<" + FromPath(path) +
                                     ">> already exists. Do you want to replace it?",
                                 Icon::Question, Buttons::YesNo) == Reply::Yes;
}

bool AskForFile(PrinterDevice& printer, const Book& book, const Seams& seams)
{
    const std::optional<std::string> name = seams.messages.InputBox(
        "Filename for the PDF file", std::string(AppTitle), ProposedName(book, seams));
    if (!name || name->empty()) {
        return false;
    }
    const std::string path = FullPath(book, seams, *name);
    const bool exists = seams.files.Exists(path);
    if (exists && !MayReplace(book, seams, path)) {
        return false;
    }
    printer.SetFile(path, exists);
    return !seams.end.Ended();
}

} // namespace

PrtFormView LoadPrtForm(const PrintSettings& settings, PrinterDevice& printer)
{
    PrtFormView view;
    view.printers = printer.Names();
    view.printer = printer.Current();
    const bool gone =
        std::find(view.printers.begin(), view.printers.end(), view.printer) == view.printers.end();
    if (gone && !view.printers.empty() && printer.Choose(view.printers.front()).Ok()) {
        view.printer = printer.Current();
    }
    view.papers = Papers();
    const PrinterState state = printer.State();
    const int code = state.paperSize == SmallLetterPaper ? LetterPaper : state.paperSize;
    const auto paper = std::find_if(view.papers.begin(), view.papers.end(),
                                    [code](const PaperChoice& choice) { return choice.code == code; });
    view.paper = static_cast<std::size_t>(paper - view.papers.begin());
    if (paper == view.papers.end()) {
        view.papers.push_back({"Printer default (other)", OwnPaper});
    }
    view.colour = settings.ColourKnown ? settings.PrintInColour : state.colour;
    view.elite = settings.CharsPerInch == Elite;
    return view;
}

void PrinterCombo_Click(PrinterDevice& printer, const std::string& name)
{
    for (const std::string& each : printer.Names()) {
        if (each == name) {
            std::ignore = printer.Choose(name); // if it is gone by then, the print button refuses it
            return;
        }
    }
}

bool AcceptPrtForm(PrintSettings& settings, PrinterDevice& printer, const Book& book, const Seams& seams,
                   const PrtFormChoices& choices)
{
    if (const FileError error = printer.Choose(choices.printer); !error.Ok()) {
        return Refuse(seams, "I cannot select the printer <<" + choices.printer + ">>", error);
    }
    if (!SetPaper(printer, seams, choices.paper) || !IsLargeEnough(printer.State(), seams)) {
        return false;
    }
    if (const FileError error = printer.SetColour(choices.colour); !error.Ok()) {
        return Refuse(seams, "I cannot select the print mode on your printer", error);
    }
    settings.PrintInColour = choices.colour;
    settings.ColourKnown = true;
    settings.CharsPerInch = choices.elite ? Elite : Pica;
    if (printer.AsksForFile() && !AskForFile(printer, book, seams)) {
        return false;
    }
    settings.PrintConfirmed = true;
    return true;
}

} // namespace ls
