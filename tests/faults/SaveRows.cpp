// Saving the book to a new file, which then becomes the open book.

#include "FaultRow.h"

namespace ls::test {

std::vector<FaultRow> SaveRows()
{
    return {
        {"saveEdited", [](Desk& desk) { desk.OpenEdited(); },
         [](Desk& desk) { desk.SaveAs("/work/Out.IDA"); }, false, QuietSettings},
        {"saveAgainAfterFailure",
         [](Desk& desk) {
             desk.OpenEdited();
             desk.files["/work/Out.IDA.part"] = "half";
         },
         [](Desk& desk) { desk.SaveAs("/work/Out.IDA"); }, false, QuietSettings},
        {"saveLong",
         [](Desk& desk) {
             desk.OpenLong();
             desk.book.TopicRecs(2).Text = "edited\r\n";
             desk.book.BookChanged = true;
         },
         [](Desk& desk) { desk.SaveAs("/work/Out.IDA"); }, false, QuietSettings},
    };
}

} // namespace ls::test
