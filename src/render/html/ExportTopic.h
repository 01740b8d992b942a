#pragma once

#include "base/Count16.h"
#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;
class OutputFile;

/// Writes one topic as a whole HTML document to `output`, finishes the file, and says "The export is
/// complete.".
///
/// `topicName` is the title with or without brackets. `topicIndex` is the topic's number, 0 to look it up.
/// The topic is read from the book's file; unsaved edits are not exported. A topic that the file does not
/// hold gives an empty file, without a message. If reading or writing fails, a message is shown, `output` is
/// not finished, and the result is false.
bool ExportTopic(const Book& book, const Seams& seams, const std::string& topicName, Count16 topicIndex,
                 OutputFile& output);

} // namespace ls
