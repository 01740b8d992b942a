#pragma once

#include <string>
#include <string_view>

namespace ls {

class HtmlOutput;

/// Turns the source lines of a topic into the lines of an HTML document.
///
/// Tags and entities are HTML as they are, and pass through; paragraphs, headings and lists are made from
/// the structure of the lines. Bytes stay what they are in the book.
class HtmlExport
{
public:
    explicit HtmlExport(HtmlOutput& output) : m_output(&output) {}

    void Begin(std::string_view title);
    void AddLine(std::string_view line); ///< trailing blanks cut already
    void End();                          ///< a list that is still open stays so, as it always has

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
