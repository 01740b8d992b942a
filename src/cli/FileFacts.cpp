#include "cli/FileFacts.h"

#include "base/FileSystem.h"
#include "base/Progress.h"

#include <algorithm>
#include <vector>

namespace ls {

namespace {

constexpr std::size_t BlockSize = 1024 * 1024;

// Checks UTF-8 byte by byte, across block borders.
class Utf8Watch
{
public:
    void Take(unsigned char byte)
    {
        if (m_missing > 0) {
            m_valid = m_valid && byte >= m_least && byte <= m_most;
            m_least = 0x80;
            m_most = 0xBF;
            --m_missing;
        } else if (byte >= 0x80) {
            Begin(byte);
        }
    }

    [[nodiscard]] bool Valid() const { return m_valid && m_missing == 0; }

private:
    // The first byte decides the length and limits the second: no overlong forms, no surrogates.
    void Begin(unsigned char byte)
    {
        if (byte >= 0xC2 && byte <= 0xDF) {
            m_missing = 1;
        } else if (byte >= 0xE0 && byte <= 0xEF) {
            m_missing = 2;
            m_least = byte == 0xE0 ? 0xA0 : 0x80;
            m_most = byte == 0xED ? 0x9F : 0xBF;
        } else if (byte >= 0xF0 && byte <= 0xF4) {
            m_missing = 3;
            m_least = byte == 0xF0 ? 0x90 : 0x80;
            m_most = byte == 0xF4 ? 0x8F : 0xBF;
        } else {
            m_valid = false;
        }
    }

    bool m_valid = true;
    int m_missing = 0;
    unsigned char m_least = 0x80;
    unsigned char m_most = 0xBF;
};

class Gatherer
{
public:
    explicit Gatherer(FileFacts& facts) : m_facts(&facts) {}

    void Take(unsigned char byte)
    {
        if (m_afterCr) {
            ++(byte == '\n' ? m_facts->crLf : m_facts->cr);
        } else if (byte == '\n') {
            ++m_facts->lf;
        }
        m_afterCr = byte == '\r';
        if (byte >= 0x80) {
            m_facts->ascii = false;
            const auto* found = std::find(UnassignedBytes.begin(), UnassignedBytes.end(), byte);
            if (found != UnassignedBytes.end()) {
                ++m_facts->unassigned[static_cast<std::size_t>(found - UnassignedBytes.begin())];
            }
        } else if (byte == 0) {
            ++m_facts->nul;
        }
        m_utf8.Take(byte);
    }

    void Finish()
    {
        m_facts->cr += m_afterCr ? 1 : 0;
        m_facts->utf8 = !m_facts->ascii && m_utf8.Valid();
    }

private:
    FileFacts* m_facts;
    Utf8Watch m_utf8;
    bool m_afterCr = false;
};

} // namespace

FileError GatherFacts(FileSystem& files, const std::string& path, Progress* progress, FileFacts& facts)
{
    facts = {};
    std::unique_ptr<BookFile> file;
    FileError error = files.OpenForReading(path, Sharing::Shared, file);
    FilePos total = 0;
    if (!error.Ok() || !(error = file->Size(total)).Ok()) {
        return error;
    }
    Gatherer gatherer(facts);
    std::vector<char> block(BlockSize);
    for (std::size_t got = BlockSize; got > 0; facts.size += static_cast<FilePos>(got)) {
        error = file->ReadAt(facts.size + 1, block.data(), block.size(), got);
        if (!error.Ok()) {
            return error;
        }
        std::for_each_n(block.begin(), got,
                        [&gatherer](char c) { gatherer.Take(static_cast<unsigned char>(c)); });
        if (progress != nullptr && total > static_cast<FilePos>(BlockSize)) {
            progress->Step(facts.size, total);
        }
    }
    gatherer.Finish();
    return {};
}

std::string LineEndsText(const FileFacts& facts)
{
    std::string list;
    int kinds = 0;
    std::string only = "none";
    const auto add = [&](std::int64_t count, const std::string& name) {
        if (count > 0) {
            list += (kinds++ > 0 ? ", " : "") + std::to_string(count) + " " + name;
            only = name;
        }
    };
    add(facts.crLf, "CR LF");
    add(facts.cr, "CR");
    add(facts.lf, "LF");
    return kinds > 1 ? "mixed (" + list + ")" : only;
}

} // namespace ls
