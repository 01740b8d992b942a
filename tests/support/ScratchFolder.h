#pragma once

#include <string>

namespace ls::test {

/// A folder of real files for one test, gone with all that it holds when the test ends.
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// Full, links resolved, without a trailing separator.
    [[nodiscard]] const std::string& Path() const { return m_path; }

    /// The full path of a name in the folder.
    [[nodiscard]] std::string operator/(const std::string& name) const;

    /// Writes a file, in place of an older one, and makes the folders above it. Gives its full path.
    std::string Write(const std::string& name, const std::string& bytes) const;

    /// As `Write`, and everybody may run it.
    std::string WriteProgram(const std::string& name, const std::string& bytes) const;

    std::string MakeFolder(const std::string& name) const;

    /// A file's bytes; a missing file fails the test.
    [[nodiscard]] std::string Read(const std::string& name) const;
    [[nodiscard]] bool Has(const std::string& name) const;

private:
    std::string m_path;
};

} // namespace ls::test
