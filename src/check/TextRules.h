#pragma once

#include "check/Findings.h"

#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// What the text of topics tells line by line: its markup, its headings, and its bytes.
class TextRules
{
public:
    /// `markup`: tags and entities mean something in this book.
    TextRules(Findings& findings, bool markup) : m_findings(findings), m_markup(markup) {}

    /// A line that is displayed.
    void TakeShown(std::string_view line, int number)
    {
        if (m_markup) {
            CheckMarkup(line, number);
        }
    }

    /// Any line of the file that has bytes above 7F.
    void TakeHighBytes(std::string_view line, int number);

    /// A line that holds a LF which is no part of a line end.
    void TakeLoneLf(int number);

    void BeginTopic();

    /// The topic is over, or nothing more of it is displayed.
    void EndShown();

private:
    struct OpenTag
    {
        std::string name;
        int line = 0;
    };

    void CheckMarkup(std::string_view line, int number);
    void TakeTag(std::string_view name, int number);
    void CheckHeading(std::string_view line, int number);
    void CheckUnassigned(std::string_view line, int number);

    Findings& m_findings;
    bool m_markup;
    std::vector<OpenTag> m_open;
    bool m_toldUtf8 = false;
    bool m_toldLf = false;
};

} // namespace ls
