#include "spelling/LargeBlocks.h"

#include <cstdint>
#include <sys/mman.h>

namespace {
constexpr std::size_t hugePage = std::size_t(2) << 20;
std::size_t rounded(std::size_t bytes) { return (bytes + hugePage - 1) & ~(hugePage - 1); }
}

namespace LargeBlocks {

void* allocate(std::size_t bytes)
{
    const std::size_t size = rounded(bytes);
    // Over-map by one huge page so that the block can start on a huge page boundary.
    void* raw = mmap(nullptr, size + hugePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (raw == MAP_FAILED)
        throw std::bad_alloc();
    const auto start = reinterpret_cast<std::uintptr_t>(raw);
    const std::uintptr_t aligned = (start + hugePage - 1) & ~(hugePage - 1);
    if (aligned > start)
        munmap(raw, aligned - start);
    const std::uintptr_t end = start + size + hugePage;
    if (end > aligned + size)
        munmap(reinterpret_cast<void*>(aligned + size), end - (aligned + size));
    madvise(reinterpret_cast<void*>(aligned), size, MADV_HUGEPAGE);
    return reinterpret_cast<void*>(aligned);
}

void release(void* p, std::size_t bytes)
{
    munmap(p, rounded(bytes));
}

}
