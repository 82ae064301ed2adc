#pragma once
#include <cstddef>
#include <memory>
#include <new>

// An allocator for the word tree's few big arrays: blocks of a megabyte or more come straight
// from the system, aligned to and marked for 2 MB pages, so that filling a list of a hundred
// thousand words costs a handful of page faults and TLB misses instead of thousands. Smaller
// blocks take the ordinary heap.
namespace LargeBlocks {
void* allocate(std::size_t bytes);
void release(void* p, std::size_t bytes);
constexpr std::size_t threshold = std::size_t(1) << 20;
}

template <class T>
struct LargeBlockAllocator {
    using value_type = T;
    LargeBlockAllocator() = default;
    template <class U>
    LargeBlockAllocator(const LargeBlockAllocator<U>&) noexcept {}

    T* allocate(std::size_t n)
    {
        const std::size_t bytes = n * sizeof(T);
        if (bytes >= LargeBlocks::threshold)
            return static_cast<T*>(LargeBlocks::allocate(bytes));
        return std::allocator<T>().allocate(n);
    }
    void deallocate(T* p, std::size_t n) noexcept
    {
        const std::size_t bytes = n * sizeof(T);
        if (bytes >= LargeBlocks::threshold)
            LargeBlocks::release(p, bytes);
        else
            std::allocator<T>().deallocate(p, n);
    }
    template <class U>
    bool operator==(const LargeBlockAllocator<U>&) const noexcept { return true; }
};
