// A look at the program from inside the code that is tested: wherever it allocates.
//
// This header replaces the operators of the whole program, so one source of a test includes it.
#pragma once

#include <cstdlib>
#include <functional>
#include <new>
#include <utility>

/// While it lives, its function is called with every allocation, its own apart.
class AllocationWatch {
public:
    explicit AllocationWatch(std::function<void()> onAllocation)
        : m_onAllocation(std::move(onAllocation)) {
        current = this;
    }
    ~AllocationWatch() { current = nullptr; }
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;

    static void Tell() {
        if (AllocationWatch* const watch = std::exchange(current, nullptr)) {
            watch->m_onAllocation();
            current = watch;
        }
    }

private:
    inline static thread_local AllocationWatch* current = nullptr;
    std::function<void()> m_onAllocation;
};

// Single objects alone, in every form, so that a checker of memory finds its own pairs.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    AllocationWatch::Tell();
    return std::malloc(size ? size : 1);
}
void* operator new(std::size_t size) {
    if (void* const memory = operator new(size, std::nothrow)) {
        return memory;
    }
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
