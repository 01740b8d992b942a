#include "platform/windows/WindowsVolumes.h"

#include "platform/windows/GrownText.h"
#include "platform/windows/WideText.h"

#include <windows.h>

namespace ls {

namespace {

constexpr int LetterCount = 26;

// The disk's label, for fixed disks only: a removable disk would start to spin, and an unreachable network
// drive would delay the list.
std::string NameOfDisk(const std::wstring& root)
{
    wchar_t name[MAX_PATH + 1] = {};
    const bool fixed = ::GetDriveTypeW(root.c_str()) == DRIVE_FIXED;
    return fixed && ::GetVolumeInformationW(root.c_str(), name, MAX_PATH + 1, nullptr, nullptr, nullptr,
                                            nullptr, 0) != 0
               ? FromWide(name)
               : std::string();
}

// The full path of "C:" is the current folder on that drive, or its root when there is none yet.
std::string CurrentFolderOf(const std::wstring& drive)
{
    std::wstring folder = GrownText([&drive](wchar_t* buffer, DWORD size) {
        return ::GetFullPathNameW(drive.c_str(), size, buffer, nullptr);
    });
    if (folder.size() > drive.size() + 1 && folder.back() == L'\\') {
        folder.pop_back();
    }
    return FromWide(folder.empty() ? drive + L'\\' : folder);
}

} // namespace

std::vector<Volume> WindowsVolumes::List()
{
    std::vector<Volume> volumes;
    const DWORD letters = ::GetLogicalDrives();
    for (int i = 0; i < LetterCount; ++i) {
        if ((letters >> i & 1) == 0) {
            continue;
        }
        const std::wstring drive{static_cast<wchar_t>(L'A' + i), L':'};
        std::string label{static_cast<char>('a' + i), ':'};
        if (const std::string name = NameOfDisk(drive + L'\\'); !name.empty()) {
            label += " [" + name + "]";
        }
        volumes.push_back({label, CurrentFolderOf(drive)});
    }
    return volumes;
}

} // namespace ls
