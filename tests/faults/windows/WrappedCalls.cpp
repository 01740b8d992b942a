// The replacements of this system's calls. A program calls the system through pointers in its import table.
// The linker prefers the pointers in this file to those of the system's libraries.

#include "../FailingCalls.h"

#include <windows.h>

namespace ls::test {

std::vector<SystemFault> SystemFaults()
{
    return {{"ioOnce", ERROR_IO_DEVICE, false},
            {"ioForGood", ERROR_IO_DEVICE, true},
            {"fullOnce", ERROR_DISK_FULL, false},
            {"fullForGood", ERROR_HANDLE_DISK_FULL, true},
            {"deniedOnce", ERROR_ACCESS_DENIED, false},
            {"deniedForGood", ERROR_ACCESS_DENIED, true},
            {"usedElsewhereOnce", ERROR_SHARING_VIOLATION, false},
            {"usedElsewhereForGood", ERROR_SHARING_VIOLATION, true},
            {"noDiskForGood", ERROR_NOT_READY, true},
            {"networkGoneForGood", ERROR_NETNAME_DELETED, true},
            {"tooManyForGood", ERROR_TOO_MANY_OPEN_FILES, true}};
}

std::vector<std::string> CallsOfSaving()
{
    return {"CreateFileW", "ReadFile", "WriteFile", "FlushFileBuffers", "CloseHandle", "MoveFileExW"};
}

std::string CallOfRemoving()
{
    return "DeleteFileW";
}

namespace {

// Whether this call must fail; sets the system's error code then.
bool Fails(const char* call)
{
    const std::optional<int> code = CodeOfFailing(call);
    if (code) {
        ::SetLastError(static_cast<DWORD>(*code));
    }
    return code.has_value();
}

// The system's own function of that name.
template <class Function>
Function* Real(Function* /*standIn*/, const char* name, const wchar_t* library = L"kernel32.dll")
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(::GetProcAddress(::LoadLibraryW(library), name)));
}

HANDLE WINAPI OpenOrFail(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                         DWORD disposition, DWORD flags, HANDLE pattern)
{
    static const auto real = Real(OpenOrFail, "CreateFileW");
    return Fails("CreateFileW") ? INVALID_HANDLE_VALUE
                                : real(path, access, sharing, security, disposition, flags, pattern);
}

DWORD WINAPI TypeOrFail(HANDLE file)
{
    static const auto real = Real(TypeOrFail, "GetFileType");
    return Fails("GetFileType") ? DWORD{FILE_TYPE_UNKNOWN} : real(file);
}

BOOL WINAPI ReadOrFail(HANDLE file, LPVOID buffer, DWORD size, LPDWORD got, LPOVERLAPPED place)
{
    static const auto real = Real(ReadOrFail, "ReadFile");
    return Fails("ReadFile") ? FALSE : real(file, buffer, size, got, place);
}

BOOL WINAPI SizeOrFail(HANDLE file, PLARGE_INTEGER size)
{
    static const auto real = Real(SizeOrFail, "GetFileSizeEx");
    return Fails("GetFileSizeEx") ? FALSE : real(file, size);
}

BOOL WINAPI WriteOrFail(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD count, LPOVERLAPPED place)
{
    static const auto real = Real(WriteOrFail, "WriteFile");
    return Fails("WriteFile") ? FALSE : real(file, bytes, size, count, place);
}

BOOL WINAPI FlushOrFail(HANDLE file)
{
    static const auto real = Real(FlushOrFail, "FlushFileBuffers");
    return Fails("FlushFileBuffers") ? FALSE : real(file);
}

// A close that reports an error closes the file too.
BOOL WINAPI CloseOrFail(HANDLE handle)
{
    static const auto real = Real(CloseOrFail, "CloseHandle");
    const std::optional<int> code = CodeOfFailing("CloseHandle");
    const BOOL result = real(handle);
    if (code) {
        ::SetLastError(static_cast<DWORD>(*code));
    }
    return code ? FALSE : result;
}

BOOL WINAPI RenameOrFail(LPCWSTR from, LPCWSTR to, DWORD flags)
{
    static const auto real = Real(RenameOrFail, "MoveFileExW");
    return Fails("MoveFileExW") ? FALSE : real(from, to, flags);
}

BOOL WINAPI RemoveOrFail(LPCWSTR path)
{
    static const auto real = Real(RemoveOrFail, "DeleteFileW");
    return Fails("DeleteFileW") ? FALSE : real(path);
}

DWORD WINAPI AttributesOrFail(LPCWSTR path)
{
    static const auto real = Real(AttributesOrFail, "GetFileAttributesW");
    return Fails("GetFileAttributesW") ? INVALID_FILE_ATTRIBUTES : real(path);
}

BOOL WINAPI IdentityOrFail(HANDLE file, LPBY_HANDLE_FILE_INFORMATION information)
{
    static const auto real = Real(IdentityOrFail, "GetFileInformationByHandle");
    return Fails("GetFileInformationByHandle") ? FALSE : real(file, information);
}

HANDLE WINAPI SearchOrFail(LPCWSTR pattern, FINDEX_INFO_LEVELS level, LPVOID found, FINDEX_SEARCH_OPS kind,
                           LPVOID filter, DWORD flags)
{
    static const auto real = Real(SearchOrFail, "FindFirstFileExW");
    return Fails("FindFirstFileExW") ? INVALID_HANDLE_VALUE
                                     : real(pattern, level, found, kind, filter, flags);
}

BOOL WINAPI NextOrFail(HANDLE search, LPWIN32_FIND_DATAW found)
{
    static const auto real = Real(NextOrFail, "FindNextFileW");
    return Fails("FindNextFileW") ? FALSE : real(search, found);
}

LONG WINAPI OpenKeyOrFail(HKEY key, LPCSTR path, DWORD options, REGSAM rights, PHKEY opened)
{
    static const auto real = Real(OpenKeyOrFail, "RegOpenKeyExA", L"advapi32.dll");
    const std::optional<int> code = CodeOfFailing("RegOpenKeyExA");
    return code ? *code : real(key, path, options, rights, opened);
}

LONG WINAPI QueryOrFail(HKEY key, LPCSTR name, LPDWORD reserved, LPDWORD type, LPBYTE bytes, LPDWORD size)
{
    static const auto real = Real(QueryOrFail, "RegQueryValueExA", L"advapi32.dll");
    const std::optional<int> code = CodeOfFailing("RegQueryValueExA");
    return code ? *code : real(key, name, reserved, type, bytes, size);
}

// While calls fail on purpose, waiting for a file in use would only make the test slow.
void WINAPI NoSleep(DWORD milliseconds)
{
    static const auto real = Real(NoSleep, "Sleep");
    if (!CallsAreFailing()) {
        real(milliseconds);
    }
}

} // namespace

} // namespace ls::test

// The pointers through which the program's code calls the system, under the linker's names for them.
extern "C" {
extern decltype(&::CreateFileW) __imp_CreateFileW;
extern decltype(&::GetFileType) __imp_GetFileType;
extern decltype(&::ReadFile) __imp_ReadFile;
extern decltype(&::GetFileSizeEx) __imp_GetFileSizeEx;
extern decltype(&::WriteFile) __imp_WriteFile;
extern decltype(&::FlushFileBuffers) __imp_FlushFileBuffers;
extern decltype(&::CloseHandle) __imp_CloseHandle;
extern decltype(&::MoveFileExW) __imp_MoveFileExW;
extern decltype(&::DeleteFileW) __imp_DeleteFileW;
extern decltype(&::GetFileAttributesW) __imp_GetFileAttributesW;
extern decltype(&::GetFileInformationByHandle) __imp_GetFileInformationByHandle;
extern decltype(&::FindFirstFileExW) __imp_FindFirstFileExW;
extern decltype(&::FindNextFileW) __imp_FindNextFileW;
extern decltype(&::RegOpenKeyExA) __imp_RegOpenKeyExA;
extern decltype(&::RegQueryValueExA) __imp_RegQueryValueExA;
extern decltype(&::Sleep) __imp_Sleep;

decltype(&::CreateFileW) __imp_CreateFileW = ls::test::OpenOrFail;
decltype(&::GetFileType) __imp_GetFileType = ls::test::TypeOrFail;
decltype(&::ReadFile) __imp_ReadFile = ls::test::ReadOrFail;
decltype(&::GetFileSizeEx) __imp_GetFileSizeEx = ls::test::SizeOrFail;
decltype(&::WriteFile) __imp_WriteFile = ls::test::WriteOrFail;
decltype(&::FlushFileBuffers) __imp_FlushFileBuffers = ls::test::FlushOrFail;
decltype(&::CloseHandle) __imp_CloseHandle = ls::test::CloseOrFail;
decltype(&::MoveFileExW) __imp_MoveFileExW = ls::test::RenameOrFail;
decltype(&::DeleteFileW) __imp_DeleteFileW = ls::test::RemoveOrFail;
decltype(&::GetFileAttributesW) __imp_GetFileAttributesW = ls::test::AttributesOrFail;
decltype(&::GetFileInformationByHandle) __imp_GetFileInformationByHandle = ls::test::IdentityOrFail;
decltype(&::FindFirstFileExW) __imp_FindFirstFileExW = ls::test::SearchOrFail;
decltype(&::FindNextFileW) __imp_FindNextFileW = ls::test::NextOrFail;
decltype(&::RegOpenKeyExA) __imp_RegOpenKeyExA = ls::test::OpenKeyOrFail;
decltype(&::RegQueryValueExA) __imp_RegQueryValueExA = ls::test::QueryOrFail;
decltype(&::Sleep) __imp_Sleep = ls::test::NoSleep;
}
