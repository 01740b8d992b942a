#pragma once

#include "base/FileError.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace ls {

class OutputFile;

/// Writes text lines in large pieces, each line ended by CR LF. After an error nothing more is written.
class HtmlOutput
{
public:
    explicit HtmlOutput(OutputFile& file);

    /// Writes these pieces as one line, with nothing between them.
    void Line(std::initializer_list<std::string_view> pieces);

    /// Writes the rest to the disk. Returns the first error.
    FileError Finish();

    [[nodiscard]] const FileError& Error() const { return m_error; }

private:
    void Flush();

    OutputFile* m_file;
    std::string m_buffer;
    FileError m_error;
};

} // namespace ls
