#pragma once

#include <string>

namespace ls::test {

/// A folder of real files for one test; the destructor deletes it with its content.
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// The full path, links resolved, without a trailing separator.
    [[nodiscard]] const std::string& Path() const { return m_path; }

    /// The full path of a name in the folder.
    [[nodiscard]] std::string operator/(const std::string& name) const;

    /// Writes or replaces a file, creates missing folders, and returns the full path.
    std::string Write(const std::string& name, const std::string& bytes) const;

    /// Like `Write`, and everybody may run the file.
    std::string WriteProgram(const std::string& name, const std::string& bytes) const;

    std::string MakeFolder(const std::string& name) const;

    /// A file's bytes; a missing file fails the test.
    [[nodiscard]] std::string Read(const std::string& name) const;
    [[nodiscard]] bool Has(const std::string& name) const;

private:
    std::string m_path;
};

} // namespace ls::test
