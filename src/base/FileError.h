#pragma once

#include <string>

namespace ls {

/// What a file operation came to: number 0 is success, every other number has a description that messages
/// show.
struct FileError
{
    int number = 0;
    std::string description;

    [[nodiscard]] bool Ok() const { return number == 0; }
    friend bool operator==(const FileError&, const FileError&) = default;
};

/// The error numbers that messages show, as users of this program have always known them.
namespace error {
constexpr int InvalidCall = 5;
constexpr int Overflow = 6;
constexpr int OutOfMemory = 7;
constexpr int BadFileNumber = 52;
constexpr int FileNotFound = 53;
constexpr int FileAlreadyOpen = 55;
constexpr int DeviceIo = 57;
constexpr int FileAlreadyExists = 58;
constexpr int DiskFull = 61;
constexpr int InputPastEnd = 62;
constexpr int TooManyFiles = 67;
constexpr int DeviceUnavailable = 68;
constexpr int PermissionDenied = 70;
constexpr int DiskNotReady = 71;
constexpr int PathFileAccess = 75;
constexpr int PathNotFound = 76;
} // namespace error

/// The error of that number with its description; `FileError{}` for 0.
[[nodiscard]] FileError MakeFileError(int number);

} // namespace ls
