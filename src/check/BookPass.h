#pragma once

#include "base/FileError.h"
#include "base/FilePos.h"
#include "check/CheckedBlockReader.h"
#include "check/ReferenceRules.h"
#include "check/TextRules.h"

#include <optional>
#include <string_view>
#include <unordered_map>

namespace ls {

struct Book;
class BlockStore;
class Findings;
class Progress;

/// One pass over a book's file: it checks what a line tells by itself, and gathers the logic blocks.
///
/// Where topics begin, and where the book ends, is what the book's own scan says.
class BookPass
{
public:
    BookPass(const Book& book, Findings& findings, BlockStore& store, Progress* progress);

    /// The error that ended it; a cancelled pass ends without one.
    FileError Run();

private:
    void CheckHeader(std::string_view line);
    void CheckBytes(std::string_view line, int& number);
    void TakeLine(std::string_view line, FilePos pos, int number);
    void TakeBody(std::string_view line, int number);
    void TakeText(std::string_view line, int number);
    bool TakeTag(std::string_view line, int number);
    bool CheckCutBlock(std::string_view tag);
    void TakeBehindEnd(std::string_view line, FilePos pos, int number);
    void TellNeverShown(int number, std::string_view why);
    void BeginTopic(int number);
    void CheckTitle(int number);
    void EndTopic();
    bool ReportProgress(FilePos pos);

    const Book& m_book;
    Findings& m_findings;
    BlockStore& m_store;
    Progress* m_progress;
    std::unordered_map<std::string_view, int> m_titles; ///< with the number of the first topic of that name
    std::unordered_map<int, int> m_doubled;             ///< topics whose title another one has before them
    std::unordered_map<int, int> m_firstLines;          ///< the lines of those others
    TextRules m_text;
    ReferenceRules m_references;
    FilePos m_size = 0;
    FilePos m_nextReport = 0;
    FilePos m_nextTopic = 0; ///< where the next topic begins; 0 when none follows

    int m_topic = 0;
    int m_lines = 0;            ///< of the topic's displayed text
    bool m_hidden = false;      ///< a cross reference hides what follows
    bool m_toldHidden = false;  ///< text that is never shown was found in this topic
    bool m_rulesAsText = false; ///< the rest of this topic is meant for rules, and that was told
    int m_noteBracket = 0;      ///< the first line of a note that begins with a bracket
    int m_endLine = 0;          ///< of "[EOF]"
    bool m_toldBehindEnd = false;
    int m_cutLine = 0; ///< of this topic's title when the block before it was not closed
    std::optional<CheckedBlockReader> m_block;
};

} // namespace ls
