#pragma once

#include "check/Findings.h"

#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// Checks the text of topics line by line: its markup, its headings and its bytes.
class TextRules
{
public:
    /// `markup` is set if tags and entities have a meaning in this book.
    TextRules(Findings& findings, bool markup) : m_findings(findings), m_markup(markup) {}

    /// Takes a line that is displayed.
    void TakeShown(std::string_view line, int number)
    {
        if (m_markup) {
            CheckMarkup(line, number);
        }
    }

    /// Takes any line of the file with bytes above 7F.
    void TakeHighBytes(std::string_view line, int number);

    /// Takes a line with an LF that is not part of a line end.
    void TakeLoneLf(int number);

    void BeginTopic();

    /// Ends the displayed text of the topic.
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
