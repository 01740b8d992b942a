#pragma once

#include "base/Count16.h"
#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;
class OutputFile;

/// Writes one topic as a whole HTML document to `output`, finishes that, and says "The export is complete.".
///
/// `topicName` is the title with or without brackets, `topicIndex` its number, 0 when it is to be looked up.
/// The topic is taken from the book's file as it stands there, whatever was edited since. One that is not
/// there gives an empty file, without a message. What cannot be read or written is told, and `output` is then
/// not finished: false.
bool ExportTopic(const Book& book, const Seams& seams, const std::string& topicName, Count16 topicIndex,
                 OutputFile& output);

} // namespace ls
