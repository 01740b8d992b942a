#include "render/text/CountAllocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t count = 0; // tests run on one thread

} // namespace

void* operator new(std::size_t size)
{
    ++count;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace ls::test {

std::size_t AllocationCount()
{
    return count;
}

} // namespace ls::test
