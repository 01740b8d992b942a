#include "platform/linux/CupsService.h"

#include <dlfcn.h>

#include <cstring>

namespace ls {

namespace {

constexpr const char* LibraryName = "libcups.so.2";
constexpr int FirstErrorStatus = 0x0400;

// A destination in the library's layout. The options are only passed back to it.
struct Destination
{
    char* name;
    char* instance;
    int isDefault;
    int optionCount;
    void* options;
};

using LastErrorCall = int (*)();
using LastErrorStringCall = const char* (*)();
using NamedDestCall = Destination* (*)(void* http, const char* name, const char* instance);
using GetOptionCall = const char* (*)(const char* name, int optionCount, void* options);
using FreeDestsCall = void (*)(int count, Destination* destinations);

// A function of the library; nullptr without the library. The library stays loaded, because the toolkit uses
// it too.
template <typename Call>
Call Find(const char* name)
{
    static void* const library = dlopen(LibraryName, RTLD_NOW | RTLD_LOCAL);
    Call call = nullptr;
    if (library != nullptr) {
        void* const address = dlsym(library, name);
        std::memcpy(&call, &address, sizeof call);
    }
    return call;
}

} // namespace

FileError CupsService::LastJob()
{
    const auto lastError = Find<LastErrorCall>("cupsLastError");
    const auto lastErrorString = Find<LastErrorStringCall>("cupsLastErrorString");
    if (lastError == nullptr || lastErrorString == nullptr || lastError() < FirstErrorStatus) {
        return {};
    }
    FileError error = MakeFileError(error::DeviceUnavailable);
    if (const char* words = lastErrorString(); words != nullptr && *words != '\0') {
        error.description += std::string(" (") + words + ")";
    }
    return error;
}

std::optional<bool> CupsService::Landscape(const std::string& printer)
{
    const auto namedDest = Find<NamedDestCall>("cupsGetNamedDest");
    const auto getOption = Find<GetOptionCall>("cupsGetOption");
    const auto freeDests = Find<FreeDestsCall>("cupsFreeDests");
    if (namedDest == nullptr || getOption == nullptr || freeDests == nullptr) {
        return std::nullopt;
    }
    // "NAME/INSTANCE" is a printer with settings of its own.
    const std::size_t slash = printer.find('/');
    const std::string instance = slash == std::string::npos ? std::string() : printer.substr(slash + 1);
    Destination* const destination =
        namedDest(nullptr, printer.substr(0, slash).c_str(), instance.empty() ? nullptr : instance.c_str());
    if (destination == nullptr) {
        return std::nullopt;
    }
    const char* const orientation =
        getOption("orientation-requested", destination->optionCount, destination->options);
    const std::string code = orientation == nullptr ? "" : orientation;
    freeDests(1, destination);
    return code == "4" || code == "5"; // landscape, turned left or right
}

} // namespace ls
