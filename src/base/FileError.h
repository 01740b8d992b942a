#pragma once

#include <string>

namespace ls {

/// The result of a file operation: 0 is success; every other number has a description for messages.
struct [[nodiscard]] FileError
{
    int number = 0;
    std::string description;

    [[nodiscard]] bool Ok() const { return number == 0; }
    friend bool operator==(const FileError&, const FileError&) = default;
};

/// The error numbers that messages show, familiar to users of this program.
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

/// The error with that number and its description; `FileError{}` for 0.
[[nodiscard]] FileError MakeFileError(int number);

/// "53: File not found".
[[nodiscard]] std::string NumberAndDescription(const FileError& error);

/// How a message names its error. Intended: each message keeps the form that users know.
enum class ErrorForm
{
    Full,        ///< " due to error #53: File not found"
    WithoutMark, ///< " due to error 53: File not found"
    NumberOnly,  ///< " due to error: 53"
    Unnamed,     ///< " due to error"
};

/// The end of a message about a file operation. It begins with a blank.
[[nodiscard]] std::string DueTo(const FileError& error, ErrorForm form = ErrorForm::Full);

} // namespace ls
