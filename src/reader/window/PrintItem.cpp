#include "reader/window/PrintItem.h"

#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/PrinterDevice.h"
#include "base/Text.h"
#include "book/Book.h"
#include "render/print/PrintSettings.h"
#include "render/print/PrintTopic.h"

namespace ls {

namespace {

// A plain text file can be printed too, although it has no topics.
bool HasSomethingToPrint(const Book& book, const Seams& seams)
{
    if (book.IsPlainText() && book.File) {
        return true;
    }
    if (book.TopicCount == 0) {
        seams.messages.MsgBox("There is nothing to print.", Icon::Warning);
        return false;
    }
    if (book.CurrentTopicName.empty()) {
        seams.messages.MsgBox(DisplayTopicFirst, Icon::Warning);
        return false;
    }
    return true;
}

} // namespace

void PrintItem_Click(const Book& book, PrintSettings& settings, PrinterDevice& printer, const Seams& seams,
                     const std::function<void()>& showPrtForm)
{
    if (!HasSomethingToPrint(book, seams)) {
        return;
    }
    settings.PrintConfirmed = false;
    showPrtForm();
    if (!settings.PrintConfirmed || seams.end.Ended()) {
        return;
    }
    printer.SetTitle(book.IsPlainText() ? FromPath(NameOf(seams.paths, book.BookPath))
                                        : FromBook(WithoutBrackets(book.CurrentTopicName)));
    const Printed printed =
        PrintTopic(book, seams, printer, settings, book.CurrentTopicName, book.CurrentTopicNo);
    if (!printed.error.Ok()) {
        seams.messages.MsgBox("I cannot print the topic" + DueTo(printed.error), Icon::Critical);
    }
}

} // namespace ls
