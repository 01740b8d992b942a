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

/// One pass over a book's file: it checks single lines and collects the logic blocks.
///
/// The beginnings of topics and the end of the book come from the book's own scan.
class BookPass
{
public:
    BookPass(const Book& book, Findings& findings, BlockStore& store, Progress* progress);

    /// Returns a read error. A cancelled pass ends without an error.
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
    std::unordered_map<std::string_view, int> m_titles; ///< the number of the first topic with each title
    std::unordered_map<int, int> m_doubled;             ///< by topic, the first topic with the same title
    std::unordered_map<int, int> m_firstLines;          ///< the lines of those first topics
    TextRules m_text;
    ReferenceRules m_references;
    FilePos m_size = 0;
    FilePos m_nextReport = 0;
    FilePos m_nextTopic = 0; ///< where the next topic begins; 0 for none

    int m_topic = 0;
    int m_lines = 0;            ///< number of lines in the topic's displayed text
    bool m_hidden = false;      ///< a cross reference hides the lines that follow
    bool m_toldHidden = false;  ///< hidden text of this topic was reported
    bool m_rulesAsText = false; ///< rules that are read as text were reported in this topic
    int m_noteBracket = 0;      ///< the first line beginning with "[" in a note
    int m_endLine = 0;          ///< the line of "[EOF]"
    bool m_toldBehindEnd = false;
    int m_cutLine = 0; ///< the line of this topic's title, if the block before it was not closed
    std::optional<CheckedBlockReader> m_block;
};

} // namespace ls
