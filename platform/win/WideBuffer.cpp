#include "platform/win/WideBuffer.h"

#include <new>
#include <sys/mman.h>
#include <utility>

namespace {

constexpr std::size_t kHugePage = std::size_t{2} << 20;
/// From this size on, a partly used last huge page does not matter.
constexpr std::size_t kLargeBlock = 4 * kHugePage;

void* Allocate(std::size_t bytes) {
    if (bytes < kLargeBlock) {
        return std::malloc(bytes);
    }
    const std::size_t whole = (bytes + kHugePage - 1) / kHugePage * kHugePage;
    void* block = std::aligned_alloc(kHugePage, whole);
    if (block) {
        // Only a hint: the block also works without huge pages.
        madvise(block, whole, MADV_HUGEPAGE);
    }
    return block;
}

} // namespace

WideBuffer::WideBuffer(std::size_t length) : m_nLength(length) {
    constexpr std::size_t kMost = static_cast<std::size_t>(-1) / 2 / sizeof(wchar_t);
    if (length < kMost) {
        m_pData.reset(static_cast<wchar_t*>(Allocate((length + 1) * sizeof(wchar_t))));
    }
    if (!m_pData) {
        throw std::bad_alloc();
    }
    m_pData.get()[length] = L'\0';
}

WideBuffer& WideBuffer::operator=(WideBuffer&& other) noexcept {
    WideBuffer taken(std::move(other));
    Swap(taken);
    return *this;
}

void WideBuffer::Shorten(std::size_t length) {
    if (length >= m_nLength) {
        return;
    }
    if (m_nLength - length > m_nLength / 8) {
        void* smaller = std::realloc(m_pData.get(), (length + 1) * sizeof(wchar_t));
        if (smaller) {
            static_cast<void>(m_pData.release());
            m_pData.reset(static_cast<wchar_t*>(smaller));
        }
    }
    m_nLength = length;
    m_pData.get()[length] = L'\0';
}

void WideBuffer::Swap(WideBuffer& other) noexcept {
    std::swap(m_pData, other.m_pData);
    std::swap(m_nLength, other.m_nLength);
}
