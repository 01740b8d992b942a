#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

namespace ls::test {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder()
{
    std::random_device random;
    const fs::path root = fs::canonical(fs::temp_directory_path());
    for (int attempt = 0; attempt < 100; ++attempt) {
        const fs::path path = root / ("lstest-" + std::to_string(random()));
        if (fs::create_directory(path)) {
            m_path = path.string();
            return;
        }
    }
    throw std::runtime_error("no scratch folder could be made in " + root.string());
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

std::string ScratchFolder::operator/(const std::string& name) const
{
    return m_path + static_cast<char>(fs::path::preferred_separator) + name;
}

std::string ScratchFolder::Write(const std::string& name, const std::string& bytes) const
{
    const fs::path path = *this / name;
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << bytes;
    file.close();
    EXPECT_FALSE(file.fail()) << path;
    return path.string();
}

std::string ScratchFolder::WriteProgram(const std::string& name, const std::string& bytes) const
{
    const std::string path = Write(name, bytes);
    fs::permissions(path, fs::perms(0755));
    return path;
}

std::string ScratchFolder::MakeFolder(const std::string& name) const
{
    fs::create_directories(*this / name);
    return *this / name;
}

std::string ScratchFolder::Read(const std::string& name) const
{
    std::ifstream file(*this / name, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << *this / name;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

bool ScratchFolder::Has(const std::string& name) const
{
    return fs::exists(fs::symlink_status(*this / name));
}

} // namespace ls::test
