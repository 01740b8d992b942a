#pragma once

#include "base/FileError.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace ls {

class OutputFile;

/// Writes text lines, each ended by CR LF, in large pieces. After an error nothing more is written.
class HtmlOutput
{
public:
    explicit HtmlOutput(OutputFile& file);

    /// One line of these pieces, with nothing between them.
    void Line(std::initializer_list<std::string_view> pieces);

    /// Brings all of it to the disk and tells whether it got there.
    FileError Finish();

    [[nodiscard]] const FileError& Error() const { return m_error; }

private:
    void Flush();

    OutputFile* m_file;
    std::string m_buffer;
    FileError m_error;
};

} // namespace ls
