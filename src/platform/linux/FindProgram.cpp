#include "platform/linux/FindProgram.h"

#include "base/PathRules.h"
#include "platform/linux/ErrnoError.h"

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace ls {

namespace {

int WhyNotRunnable(const std::string& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        const int number = ErrorOfErrno(errno).number;
        return number == error::PathNotFound ? error::FileNotFound : number;
    }
    if (S_ISDIR(status.st_mode)) {
        return error::PathFileAccess;
    }
    return S_ISREG(status.st_mode) && ::access(path.c_str(), X_OK) == 0 ? 0 : error::PermissionDenied;
}

} // namespace

FileError FindProgram(const std::string& name, const std::string& searchPath, std::string& program)
{
    program = name;
    if (name.empty() || name.find('\0') != std::string::npos) {
        return MakeFileError(error::FileNotFound);
    }
    if (name.find('/') != std::string::npos) {
        return MakeFileError(WhyNotRunnable(name));
    }
    int failure = error::FileNotFound;
    const std::string folders = searchPath.empty() ? "/usr/local/bin:/usr/bin:/bin" : searchPath;
    for (std::size_t at = 0; at <= folders.size();) {
        const std::size_t end = std::min(folders.find(':', at), folders.size());
        const std::string folder = folders.substr(at, end - at);
        at = end + 1;
        if (folder.empty()) {
            continue;
        }
        const std::string path = JoinPath(UnixPaths, folder, name);
        const int number = WhyNotRunnable(path);
        if (number == 0) {
            program = path;
            return {};
        }
        // A file that may not be run is the error of the whole search, because that says more than "not
        // found" in a later folder. A folder that may not be searched is no error.
        if (number == error::PermissionDenied && ::access(path.c_str(), F_OK) == 0) {
            failure = number;
        }
    }
    return MakeFileError(failure);
}

} // namespace ls
