#pragma once

#include "base/Count16.h"
#include "base/FilePos.h"
#include "base/Seams.h"
#include "render/text/DisplayLines.h"

#include <string>

namespace ls {

struct Book;

/// A topic that is ready to be drawn.
struct ShownTopic
{
    std::string name; ///< "[Title]"; empty for a plain text file
    DisplayLines lines;
    bool xrefButton = false;    ///< it refers to a topic, or a topic refers to it
    bool advisorButton = false; ///< it has a logic block in the file
    FilePos logicPos = 0;       ///< after the block's "<IXML>" line; 0 for none
};

enum class ShowResult
{
    Nothing, ///< there is no topic to show; the pane does not change
    Cleared, ///< the topic cannot be shown; a message was shown and the caller clears the pane
    Shown,   ///< `ShownTopic` is filled
};

/// Reads a topic from its edited text, or from the book's file, and wraps it to `lineWidthChars` characters
/// (at least `LeastLineWidth`). A plain text file is shown whole, whatever the name.
///
/// `topicName` is the title with or without brackets. On return it has brackets, or is empty if the topic was
/// not found. `topicIndex` is the topic's number, or 0 to look it up. After 32,767 display lines the topic is
/// cut and the "Overflow" box is shown. After a read error a message is shown, and the lines read before it
/// are prepared.
ShowResult ShowTopic(const Book& book, const Seams& seams, std::string& topicName, Count16& topicIndex,
                     int lineWidthChars, ShownTopic& shown);

} // namespace ls
