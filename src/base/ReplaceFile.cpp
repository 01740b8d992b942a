#include "base/ReplaceFile.h"

#include <utility>

namespace ls {

namespace {

constexpr int MaxNames = 99;

// How the complete file gets its name: over an existing file, or only if the name is free.
using GiveName = FileError (FileSystem::*)(const std::string& from, const std::string& to);

class Replacement : public OutputFile
{
public:
    Replacement(FileSystem& files, GiveName giveName, std::string path, std::string newPath,
                std::unique_ptr<OutputFile> file)
        : m_files(&files), m_giveName(giveName), m_path(std::move(path)), m_newPath(std::move(newPath)),
          m_file(std::move(file))
    {
    }
    ~Replacement() override { Drop(); }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    FileError Write(std::string_view bytes) override
    {
        return m_file ? m_file->Write(bytes) : MakeFileError(error::BadFileNumber);
    }

    FileError Finish() override
    {
        if (!m_file) {
            return MakeFileError(error::BadFileNumber);
        }
        FileError error = m_file->Finish();
        if (error.Ok()) {
            error = (m_files->*m_giveName)(m_newPath, m_path);
        }
        if (error.Ok()) {
            m_file.reset();
        } else {
            Drop();
        }
        return error;
    }

private:
    void Drop()
    {
        if (m_file) {
            m_file.reset(); // some systems cannot remove an open file
            m_files->RemoveIfPossible(m_newPath);
        }
    }

    FileSystem* m_files;
    GiveName m_giveName;
    std::string m_path;
    std::string m_newPath;
    std::unique_ptr<OutputFile> m_file; ///< empty once it has its name or is dropped
};

// A free name beside `path`: ".new", ".new2", ... A file that a crash or the user left there stays.
std::string FreeNameBeside(FileSystem& files, const std::string& path)
{
    std::string name = path + ".new";
    for (int number = 2; number <= MaxNames && files.Exists(name); ++number) {
        name = path + ".new" + std::to_string(number);
    }
    return name;
}

// A rename ignores the read-only mark and the locks of the file that it replaces, so both are checked first.
FileError CheckReplaceable(FileSystem& files, const std::string& path)
{
    if (!files.SameFile(path, path)) {
        return {};
    }
    std::unique_ptr<BookFile> old;
    FileError refused = files.OpenForReading(path, Sharing::Shared, old);
    return refused.Ok() ? files.CheckWritable(path) : refused;
}

FileError OpenBeside(FileSystem& files, GiveName giveName, const std::string& path,
                     std::unique_ptr<OutputFile>& file)
{
    const std::string newPath = FreeNameBeside(files, path);
    std::unique_ptr<OutputFile> newFile;
    if (FileError error = files.CreateNew(newPath, newFile); !error.Ok()) {
        return error;
    }
    file = std::make_unique<Replacement>(files, giveName, path, newPath, std::move(newFile));
    return {};
}

} // namespace

FileError OpenToReplace(FileSystem& files, const std::string& path, std::unique_ptr<OutputFile>& file)
{
    file.reset();
    if (FileError refused = CheckReplaceable(files, path); !refused.Ok()) {
        return refused;
    }
    return OpenBeside(files, &FileSystem::RenameOver, path, file);
}

FileError OpenToCreate(FileSystem& files, const std::string& path, std::unique_ptr<OutputFile>& file)
{
    file.reset();
    if (files.Exists(path)) {
        return MakeFileError(error::FileAlreadyExists);
    }
    return OpenBeside(files, &FileSystem::RenameToNew, path, file);
}

} // namespace ls
