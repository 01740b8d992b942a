#include "Held.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include <malloc.h>
#include <unistd.h>

namespace ls::test {

namespace {

// Memory is not counted under a sanitizer: its allocator holds back freed memory, and it looks for leaks
// itself.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool MemoryCounts = false;
#else
constexpr bool MemoryCounts = true;
#endif

} // namespace

Held Held::Now()
{
    Held held;
    const std::filesystem::directory_iterator open("/proc/self/fd");
    held.descriptors = static_cast<std::size_t>(std::distance(begin(open), end(open)));
    if (!MemoryCounts) {
        return held;
    }
    held.allocated = ::mallinfo2().uordblks;
    std::ifstream statm("/proc/self/statm");
    std::size_t total = 0;
    statm >> total >> held.resident;
    held.resident *= static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    return held;
}

std::string Growth(const Held& before, const Held& after, const Tolerance& tolerance)
{
    std::string growth;
    const auto add = [&growth](const char* what, std::size_t was, std::size_t is, std::size_t most) {
        if (is > was + most) {
            growth += std::string(what) + " " + std::to_string(was) + " -> " + std::to_string(is) + "; ";
        }
    };
    add("descriptors", before.descriptors, after.descriptors, 0);
    add("allocated bytes", before.allocated, after.allocated, tolerance.allocated);
    add("resident bytes", before.resident, after.resident, tolerance.resident);
    return growth;
}

} // namespace ls::test
