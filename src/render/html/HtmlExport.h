#pragma once

#include <string>
#include <string_view>

namespace ls {

class HtmlOutput;

/// Turns the source lines of a topic into the lines of an HTML document.
///
/// Tags and entities pass through unchanged. Paragraphs, headings and lists follow from the structure of the
/// lines. Bytes stay in the book's code page.
class HtmlExport
{
public:
    explicit HtmlExport(HtmlOutput& output) : m_output(&output) {}

    void Begin(std::string_view title);
    void AddLine(std::string_view line); ///< trailing blanks are cut already
    void End();                          ///< Intended: a list that is open at the topic's end stays open

private:
    void AddFirst(std::string_view segment, int hang, bool last);
    void OpenList(std::string_view segment);
    void CloseList();

    HtmlOutput* m_output;
    std::string m_segment;
    bool m_inList = false;
    std::string_view m_listClose;
};

} // namespace ls
