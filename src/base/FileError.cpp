#include "base/FileError.h"

namespace ls {

namespace {

const char* DescriptionOf(int number)
{
    switch (number) {
    case error::InvalidCall:
        return "Invalid procedure call or argument";
    case error::Overflow:
        return "Overflow";
    case error::OutOfMemory:
        return "Out of memory";
    case error::BadFileNumber:
        return "Bad file name or number";
    case error::FileNotFound:
        return "File not found";
    case error::FileAlreadyOpen:
        return "File already open";
    case error::DeviceIo:
        return "Device I/O error";
    case error::FileAlreadyExists:
        return "File already exists";
    case error::DiskFull:
        return "Disk full";
    case error::InputPastEnd:
        return "Input past end of file";
    case error::TooManyFiles:
        return "Too many files";
    case error::DeviceUnavailable:
        return "Device unavailable";
    case error::PermissionDenied:
        return "Permission denied";
    case error::DiskNotReady:
        return "Disk not ready";
    case error::PathFileAccess:
        return "Path/File access error";
    case error::PathNotFound:
        return "Path not found";
    default:
        return "";
    }
}

} // namespace

FileError MakeFileError(int number)
{
    return {number, DescriptionOf(number)};
}

std::string NumberAndDescription(const FileError& error)
{
    return std::to_string(error.number) + ": " + error.description;
}

std::string DueTo(const FileError& error, ErrorForm form)
{
    const std::string start = " due to error";
    switch (form) {
    case ErrorForm::Full:
        return start + " #" + NumberAndDescription(error);
    case ErrorForm::WithoutMark:
        return start + " " + NumberAndDescription(error);
    case ErrorForm::NumberOnly:
        return start + ": " + std::to_string(error.number);
    case ErrorForm::Unnamed:
        break;
    }
    return start;
}

} // namespace ls
