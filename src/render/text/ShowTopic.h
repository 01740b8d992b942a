#pragma once

#include "base/Count16.h"
#include "base/FilePos.h"
#include "base/Seams.h"
#include "render/text/DisplayLines.h"

#include <string>

namespace ls {

struct Book;

/// A topic made ready to be drawn.
struct ShownTopic
{
    std::string name; ///< "[Title]"; empty for a plain text file
    DisplayLines lines;
    bool xrefButton = false;    ///< it refers to a topic, or one refers to it
    bool advisorButton = false; ///< it has a logic block
    FilePos logicPos = 0;       ///< behind the block's "<IXML>" line; 0 without one
};

enum class ShowResult
{
    Nothing, ///< there is no topic to show; what is on show stays
    Cleared, ///< the topic cannot be shown (its message was given): the pane is to be cleared
    Shown,   ///< `ShownTopic` is filled
};

/// Reads a topic from the book's file, or from its edited text, and wraps it to `lineWidthChars` characters
/// (`LeastLineWidth` at least). A plain text file is shown whole, whatever the name.
///
/// `topicName` is the title with or without brackets and comes back with them (empty after a failed look-up);
/// `topicIndex` is its number, 0 when it is to be looked up. A topic of more than 32,767 display lines is cut
/// there after the "Overflow" box. A topic that cannot be read to its end is shown as far as it was read,
/// after the message for a topic that cannot be fetched.
ShowResult ShowTopic(const Book& book, const Seams& seams, std::string& topicName, Count16& topicIndex,
                     int lineWidthChars, ShownTopic& shown);

} // namespace ls
