#include "check/BookPass.h"

#include "base/Progress.h"
#include "base/Text.h"
#include "book/Book.h"
#include "check/BlockStore.h"
#include "check/Findings.h"

#include <algorithm>

namespace ls {

namespace {

constexpr FilePos ProgressStep = 8 * 1024 * 1024;

} // namespace

BookPass::BookPass(const Book& book, Findings& findings, BlockStore& store, Progress* progress)
    : m_book(book), m_findings(findings), m_store(store), m_progress(progress)
{
}

FileError BookPass::Run()
{
    if (!m_book.File) {
        return {};
    }
    if (FileError failed = m_book.File->Size(m_size); !failed.Ok()) {
        return failed;
    }
    LineCursor cursor(*m_book.File);
    std::string_view line;
    for (int number = 1; !cursor.AtEnd(); ++number) {
        const FilePos pos = cursor.Position();
        if (FileError failed = cursor.ReadLine(line); !failed.Ok()) {
            return failed;
        }
        number += static_cast<int>(std::count(line.begin(), line.end(), '\n'));
        TakeLine(line, pos, number);
        if (pos >= m_nextReport && !ReportProgress(pos)) {
            break;
        }
    }
    EndTopic();
    return {};
}

void BookPass::TakeLine(std::string_view line, FilePos pos, int number)
{
    if (m_topic < m_book.TopicCount && pos == m_book.TopicPos(static_cast<std::size_t>(m_topic) + 1)) {
        EndTopic();
        ++m_topic;
        return;
    }
    if (m_block) {
        m_block->Take(line, number);
    } else if (m_topic > 0 && pos < m_book.ScanEndPos && EqualsUpper(Trim(line), "<IXML>")) {
        m_block.emplace(m_topic, number);
    }
}

void BookPass::EndTopic()
{
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
