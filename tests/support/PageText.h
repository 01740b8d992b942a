#pragma once

#include "base/CodePage.h"
#include "render/print/PageRecorder.h"

#include <cstdio>
#include <string>
#include <vector>

namespace ls::test {

/// A run as a line: its styles, its colour and its text, then "|" if it ends its row, else "+": "b-u #7f0000
/// |A heading|".
inline std::string RunText(const Run& run)
{
    char colour[8];
    std::snprintf(colour, sizeof colour, "#%02x%02x%02x", unsigned{run.colour.red},
                  unsigned{run.colour.green}, unsigned{run.colour.blue});
    return std::string{run.bold ? 'b' : '-', run.italic ? 'i' : '-', run.underline ? 'u' : '-'} + " " +
           colour + " |" + FromBook(run.text) + (run.endRow ? "|" : "+");
}

/// A page's runs as lines.
inline std::vector<std::string> RunTexts(const PageRecorder::Page& page)
{
    std::vector<std::string> texts;
    for (const Run& run : page) {
        texts.push_back(RunText(run));
    }
    return texts;
}

/// A page's rows as plain text, without blanks at their ends.
inline std::vector<std::string> RowTexts(const PageRecorder::Page& page)
{
    std::vector<std::string> rows;
    for (const Run& run : page) {
        rows.resize(std::max(rows.size(), static_cast<std::size_t>(run.row)));
        rows.back() += run.text;
    }
    for (std::string& row : rows) {
        row.resize(row.find_last_not_of(' ') + 1);
    }
    return rows;
}

} // namespace ls::test
