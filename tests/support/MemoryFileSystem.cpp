#include "support/MemoryFileSystem.h"

#include "base/PathRules.h"

#include <algorithm>
#include <cstring>

namespace ls::test {

namespace {

class MemoryFile : public BookFile
{
public:
    MemoryFile(MemoryFileSystem& owner, std::string path, std::shared_ptr<std::string> bytes)
        : m_owner(owner), m_path(std::move(path)), m_bytes(std::move(bytes))
    {
    }

    FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
    {
        got = 0;
        if (const int number = m_owner.Fault("read " + m_path + " " + std::to_string(pos)); number != 0) {
            return MakeFileError(number);
        }
        const auto from = static_cast<std::size_t>(pos - 1);
        if (from < m_bytes->size()) {
            got = std::min(size, m_bytes->size() - from);
            std::memcpy(buffer, m_bytes->data() + from, got);
        }
        return {};
    }

    FileError Size(FilePos& size) override
    {
        if (const int number = m_owner.Fault("size " + m_path); number != 0) {
            return MakeFileError(number);
        }
        size = static_cast<FilePos>(m_bytes->size());
        return {};
    }

private:
    MemoryFileSystem& m_owner;
    std::string m_path;
    std::shared_ptr<std::string> m_bytes;
};

class MemoryOutput : public OutputFile
{
public:
    MemoryOutput(MemoryFileSystem& owner, std::string path, std::shared_ptr<std::string> bytes)
        : m_owner(owner), m_path(std::move(path)), m_bytes(std::move(bytes))
    {
    }

    FileError Write(std::string_view bytes) override
    {
        if (const int number = m_owner.Fault("write " + m_path); number != 0) {
            // A full disk takes only a part of the text.
            m_bytes->append(bytes.substr(0, bytes.size() / 2));
            return MakeFileError(number);
        }
        m_bytes->append(bytes);
        return {};
    }

    FileError Finish() override { return MakeFileError(m_owner.Fault("finish " + m_path)); }

private:
    MemoryFileSystem& m_owner;
    std::string m_path;
    std::shared_ptr<std::string> m_bytes;
};

} // namespace

int MemoryFileSystem::Fault(const std::string& operation)
{
    log.push_back(operation);
    return fail ? fail(operation) : 0;
}

std::string MemoryFileSystem::Full(const std::string& path) const
{
    return IsAbsolute(UnixPaths, path) ? path : JoinPath(UnixPaths, currentFolder, path);
}

bool MemoryFileSystem::IsFolder(const std::string& path) const
{
    if (m_folders.count(path) != 0 || path == "/" || path == currentFolder) {
        return true;
    }
    const std::string prefix = JoinPath(UnixPaths, path, "");
    return std::any_of(m_files.begin(), m_files.end(),
                       [&prefix](const auto& file) { return file.first.starts_with(prefix); });
}

std::string& MemoryFileSystem::operator[](const std::string& path)
{
    std::shared_ptr<std::string>& bytes = m_files[Full(path)];
    if (!bytes) {
        bytes = std::make_shared<std::string>();
    }
    return *bytes;
}

FileError MemoryFileSystem::OpenForReading(const std::string& path, Sharing sharing,
                                           std::unique_ptr<BookFile>& file)
{
    file.reset();
    const std::string full = Full(path);
    if (const int number = Fault("open " + path); number != 0) {
        return MakeFileError(number);
    }
    if (IsFolder(full)) {
        return MakeFileError(error::PathFileAccess);
    }
    const auto found = m_files.find(full);
    if (found == m_files.end()) {
        return MakeFileError(IsFolder(FolderOf(UnixPaths, full)) ? error::FileNotFound : error::PathNotFound);
    }
    opened.push_back(path + (sharing == Sharing::Locked ? " locked" : " shared"));
    file = std::make_unique<MemoryFile>(*this, path, found->second);
    return {};
}

FileError MemoryFileSystem::CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file)
{
    if (const int number = Fault("create " + path); number != 0) {
        return MakeFileError(number);
    }
    if (Exists(path)) {
        return MakeFileError(error::FileAlreadyExists);
    }
    std::shared_ptr<std::string>& bytes = m_files[Full(path)];
    bytes = std::make_shared<std::string>();
    file = std::make_unique<MemoryOutput>(*this, path, bytes);
    return {};
}

FileError MemoryFileSystem::RenameToNew(const std::string& from, const std::string& to)
{
    if (Exists(to)) {
        Fault("rename " + from + " " + to);
        return MakeFileError(error::FileAlreadyExists);
    }
    return RenameOver(from, to);
}

FileError MemoryFileSystem::RenameOver(const std::string& from, const std::string& to)
{
    if (const int number = Fault("rename " + from + " " + to); number != 0) {
        return MakeFileError(number);
    }
    const auto found = m_files.find(Full(from));
    if (found == m_files.end()) {
        return MakeFileError(error::FileNotFound);
    }
    const std::shared_ptr<std::string> bytes = found->second;
    m_files.erase(found);
    m_files[Full(to)] = bytes;
    return {};
}

FileError MemoryFileSystem::Remove(const std::string& path)
{
    if (const int number = Fault("remove " + path); number != 0) {
        return MakeFileError(number);
    }
    return m_files.erase(Full(path)) != 0 ? FileError{} : MakeFileError(error::FileNotFound);
}

FileError MemoryFileSystem::CheckWritable(const std::string& path)
{
    if (const int number = Fault("writable " + path); number != 0) {
        return MakeFileError(number);
    }
    return MakeFileError(Exists(path) ? 0 : error::FileNotFound);
}

bool MemoryFileSystem::Exists(const std::string& path)
{
    const std::string full = Full(path);
    return m_files.count(full) != 0 || IsFolder(full);
}

bool MemoryFileSystem::SameFile(const std::string& a, const std::string& b)
{
    return Exists(a) && Full(a) == Full(b);
}

FileError MemoryFileSystem::MakeFolder(const std::string& folder)
{
    if (const int number = Fault("folder " + folder); number != 0) {
        return MakeFileError(number);
    }
    if (Has(Full(folder))) {
        return MakeFileError(error::PathFileAccess);
    }
    for (std::string path = Full(folder); path != "/"; path = FolderOf(UnixPaths, path)) {
        m_folders.insert(path);
    }
    return {};
}

FileError MemoryFileSystem::List(const std::string& folder, std::vector<FolderEntry>& entries)
{
    entries.clear();
    if (const int number = Fault("list " + folder); number != 0) {
        return MakeFileError(number);
    }
    const std::string full = Full(folder);
    if (!IsFolder(full)) {
        return MakeFileError(error::PathNotFound);
    }
    std::map<std::string, bool> found; // name, is a folder
    const auto add = [&](const std::string& path, bool folderItself) {
        const std::string prefix = JoinPath(UnixPaths, full, "");
        if (path.starts_with(prefix) && path.size() > prefix.size()) {
            const std::string rest = path.substr(prefix.size());
            const std::size_t end = rest.find('/');
            found[rest.substr(0, end)] = folderItself || end != std::string::npos;
        }
    };
    for (const auto& [path, bytes] : m_files) {
        add(path, false);
    }
    for (const std::string& path : m_folders) {
        add(path, true);
    }
    for (const auto& [name, isFolder] : found) {
        entries.push_back({name, isFolder, name.starts_with('.')});
    }
    return {};
}

} // namespace ls::test
