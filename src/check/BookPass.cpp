#include "check/BookPass.h"

#include "base/Count16.h"
#include "base/LineCursor.h"
#include "base/Progress.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "book/BookWords.h"
#include "book/TopicEnd.h"
#include "check/BlockStore.h"

#include <algorithm>

namespace ls {

namespace {

constexpr FilePos ProgressStep = 8 * 1024 * 1024;
constexpr float MarkupVersion = 5.0F;

bool IsHigh(char c)
{
    return static_cast<unsigned char>(c) > 0x7F;
}

bool IsBlank(std::string_view line)
{
    return line.find_first_not_of(' ') == std::string_view::npos;
}

} // namespace

BookPass::BookPass(const Book& book, Findings& findings, BlockStore& store, Progress* progress)
    : m_book(book), m_findings(findings), m_store(store), m_progress(progress),
      m_text(findings, book.BookVersion >= MarkupVersion), m_references(m_titles, findings)
{
    m_titles.reserve(static_cast<std::size_t>(book.TopicCount));
    for (int i = 1; i <= book.TopicCount; ++i) {
        const auto [first, added] = m_titles.emplace(book.TopicNames(i), i);
        if (!added) {
            m_doubled.emplace(i, first->second);
            m_firstLines.emplace(first->second, 0);
        }
    }
}

FileError BookPass::Run()
{
    if (!m_book.File) {
        return {};
    }
    if (FileError error = m_book.File->Size(m_size); !error.Ok()) {
        return error;
    }
    m_nextTopic = m_book.TopicCount > 0 ? m_book.TopicPos(1) : 0;
    LineCursor cursor = CursorOf(m_book);
    std::string_view line;
    for (int number = 1; !cursor.AtEnd(); ++number) {
        const FilePos pos = cursor.Position();
        if (FileError error = cursor.ReadLine(line); !error.Ok()) {
            return error;
        }
        TakeLine(line, pos, number);
        CheckBytes(line, number);
        if (pos >= m_nextReport && !ReportProgress(pos)) {
            break;
        }
    }
    EndTopic();
    m_references.Finish();
    return {};
}

// Counts each LF inside a line of the book, since an editor shows a new line there.
void BookPass::CheckBytes(std::string_view line, int& number)
{
    if (std::any_of(line.begin(), line.end(), IsHigh)) {
        m_text.TakeHighBytes(line, number);
    }
    const auto lineFeeds = static_cast<int>(std::count(line.begin(), line.end(), '\n'));
    if (lineFeeds > 0) {
        m_text.TakeLoneLf(number);
        number += lineFeeds;
    }
}

void BookPass::TakeLine(std::string_view line, FilePos pos, int number)
{
    if (pos == 1) {
        CheckHeader(line);
    } else if (pos >= m_book.ScanEndPos) {
        TakeBehindEnd(line, pos, number);
    } else if (pos == m_nextTopic) {
        BeginTopic(number);
    } else if (m_references.InNote()) {
        if (m_noteBracket == 0 && line.starts_with('[')) {
            m_noteBracket = number;
        }
        m_references.Take(line, number);
        if (m_references.TextAfter()) {
            TellNeverShown(number, "Text behind a cross reference");
        }
        if (OpensBlock(line)) {
            TakeBody(line, number);
        }
    } else {
        TakeBody(line, number);
    }
}

void BookPass::CheckHeader(std::string_view line)
{
    BookHeader header;
    if (!ParseBookHeader(line, header)) {
        m_findings.Error(
            "header-keys", 1,
            "The header holds a key other than AUTHOR, COPYRIGHT, URL and POST, or a \"/\" without "
            "\"=\", so the reader gets a warning at every opening: remove it.");
    }
}

void BookPass::TakeBody(std::string_view line, int number)
{
    const bool reference = line.starts_with(XrefOpening);
    if (m_topic == 0) {
        if (!IsBlank(line)) {
            TellNeverShown(number, "Text before the first topic");
        }
        if (reference) {
            m_references.Open(line, number);
        }
        return;
    }
    if (m_block) {
        m_block->Take(line, number);
    } else if (OpensBlock(line)) {
        m_text.EndShown();
        if (m_noteBracket != 0) {
            m_findings.Error(
                "bracket-line", m_noteBracket,
                "A line of a note that begins with \"[\" hides the logic block behind it, so the "
                "reader gets no Advisor button: begin the line with something else.");
        }
        m_block.emplace(m_topic, number);
        return;
    } else {
        TakeText(line, number);
    }
    if (reference) {
        m_references.Open(line, number);
        if (m_references.TextAfter()) {
            TellNeverShown(number, "Text behind a cross reference");
        }
    }
}

void BookPass::TakeText(std::string_view line, int number)
{
    if (!line.empty() && line.front() == '[') {
        m_findings.Error(
            "bracket-line", number,
            "A line that begins with \"[\" ends the topic, so the reader never sees what stands from "
            "here to the next title: begin the line with something else.");
        m_hidden = m_toldHidden = true;
        return;
    }
    const bool told = !m_rulesAsText && TakeTag(line, number);
    if (BeginsUpper(line, XrefTag)) {
        m_text.EndShown();
        m_hidden = true;
    } else if (m_hidden) {
        if (!IsBlank(line)) {
            TellNeverShown(number, "Text behind a cross reference");
        }
    } else {
        if (!told && !m_rulesAsText) {
            m_text.TakeShown(line, number);
        }
        if (++m_lines == Count16::Max + 1) {
            m_findings.Error(
                "too-many", number,
                "The topic has more than 32,767 lines, so the reader gets the box \"Overflow\" and "
                "never sees those from here on: divide it.");
        }
    }
}

// Reports a tag in the wrong place or form. True if this line was reported.
bool BookPass::TakeTag(std::string_view line, int number)
{
    const std::string_view trimmed = TrimLeft(line);
    if (trimmed.empty() || trimmed.front() != '<') {
        return false;
    }
    if (CheckCutBlock(trimmed)) {
        return true;
    }
    if (BeginsUpper(trimmed, BlockOpening) || BeginsUpper(trimmed, LogicOpening)) {
        m_findings.Warning(
            "tag-place", number,
            BeginsUpper(trimmed, BlockOpening)
                ? "\"<IXML>\" does not stand alone on its line, so it is text and the reader finds "
                  "no advisor: part the line behind it."
                : "\"<LOGIC>\" stands without \"<IXML>\" before it, so the rules are text and the "
                  "reader finds no advisor: add a line \"<IXML>\" before it.");
        m_rulesAsText = true;
    } else if (BeginsUpper(trimmed, XrefOpening) && trimmed.size() != line.size()) {
        m_findings.Warning(
            "tag-place", number,
            "The cross reference does not begin its line, so the reader is not offered it: remove the "
            "blanks before it.");
    } else if (BeginsUpper(trimmed, XrefTag) && !trimmed.starts_with(XrefOpening)) {
        m_findings.Warning(
            "tag-case", number,
            "Only \"<XREF TOPIC=\" in capital letters opens a cross reference, so the reader is not "
            "offered this one and the text behind it is hidden: write it so.");
    } else {
        return false;
    }
    return true;
}

// Looks for the rest of a block that began in the topic before. If it is here, this topic's title is really a
// line of that block.
bool BookPass::CheckCutBlock(std::string_view tag)
{
    if (m_cutLine == 0) {
        return false;
    }
    for (const std::string_view end : {LogicClosing, DefinitionsOpening, DefinitionsClosing, BlockClosing}) {
        if (EqualsUpper(TrimRight(tag), end)) {
            m_findings.Error(
                "bracket-in-block", m_cutLine,
                "A line that begins with \"[\" in a logic block begins a new topic, so the reader's "
                "advisor misses all that stands behind it: begin the line with something else.");
            m_cutLine = 0;
            m_rulesAsText = true;
            return true;
        }
    }
    return false;
}

void BookPass::TellNeverShown(int number, std::string_view why)
{
    if (!m_toldHidden) {
        m_toldHidden = true;
        m_findings.Warning("text-never-shown", number,
                           std::string(why) +
                               " is never shown to the reader: move it into the text of a topic, "
                               "before its first cross reference.");
    }
}

// Takes a line at or after the place where the scan stopped.
void BookPass::TakeBehindEnd(std::string_view line, FilePos pos, int number)
{
    if (pos == m_book.ScanEndPos) {
        EndTopic();
        m_topic = 0;
        m_findings.InTopic(std::string());
        m_endLine = number;
        if (line == IndexLine) {
            m_findings.Error(
                "index-section", number,
                "An index section ends the book and empties its list of topics, so the reader finds "
                "none: remove it.");
            m_toldBehindEnd = true;
        }
    } else if (line.size() > 2 && line.front() == '[' && !m_toldBehindEnd) {
        m_toldBehindEnd = true;
        m_findings.Error(
            "after-eof", number,
            "The line \"[EOF]\" in line " + std::to_string(m_endLine) +
                " ends the book, so the reader does not find the topics from here on: remove that "
                "line.");
    }
}

void BookPass::BeginTopic(int number)
{
    m_cutLine = m_block && !m_block->Closed() ? number : 0;
    EndTopic();
    ++m_topic;
    m_nextTopic = m_topic < m_book.TopicCount ? m_book.TopicPos(m_topic + 1) : 0;
    m_findings.InTopic(m_store.Title(m_topic));
    m_text.BeginTopic();
    m_lines = 0;
    m_noteBracket = 0;
    m_hidden = m_toldHidden = m_rulesAsText = false;
    CheckTitle(number);
}

void BookPass::CheckTitle(int number)
{
    if (const auto first = m_firstLines.find(m_topic); first != m_firstLines.end()) {
        first->second = number;
    }
    if (const auto doubled = m_doubled.find(m_topic); doubled != m_doubled.end()) {
        m_findings.Warning(
            "topic-twice", number,
            "The topic in line " + std::to_string(m_firstLines[doubled->second]) +
                " has the same title, so a reader who follows a cross reference always comes to that "
                "one: give them different titles.");
    }
}

void BookPass::EndTopic()
{
    m_text.EndShown();
    if (m_block) {
        m_store.Put(m_block->Finish());
        m_block.reset();
    }
}

bool BookPass::ReportProgress(FilePos pos)
{
    m_nextReport = pos + ProgressStep;
    return m_progress == nullptr || m_progress->Step(pos, m_size);
}

} // namespace ls
