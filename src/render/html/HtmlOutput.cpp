#include "render/html/HtmlOutput.h"

#include "base/FileSystem.h"
#include "base/Text.h"

namespace ls {

namespace {

constexpr std::size_t BufferSize = 64 * 1024;

} // namespace

HtmlOutput::HtmlOutput(OutputFile& file) : m_file(&file)
{
    m_buffer.reserve(BufferSize + BufferSize / 4);
}

void HtmlOutput::Line(std::initializer_list<std::string_view> pieces)
{
    for (const std::string_view piece : pieces) {
        m_buffer += piece;
    }
    m_buffer += LineEnd;
    if (m_buffer.size() >= BufferSize) {
        Flush();
    }
}

void HtmlOutput::Flush()
{
    if (m_error.Ok() && !m_buffer.empty()) {
        m_error = m_file->Write(m_buffer);
    }
    m_buffer.clear();
}

FileError HtmlOutput::Finish()
{
    Flush();
    if (m_error.Ok()) {
        m_error = m_file->Finish();
    }
    return m_error;
}

} // namespace ls
