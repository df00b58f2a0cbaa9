// Storage for a long text that is written once and read often.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

#include "platform/Api.h"

/// An uninitialised block of wide characters, followed by a NUL. Large blocks ask the system for
/// huge pages, which makes the first access several times faster.
class PLATFORM_API WideBuffer {
public:
    WideBuffer() = default;
    /// Room for `length` characters and the terminating NUL. The content is undefined.
    explicit WideBuffer(std::size_t length);
    WideBuffer(WideBuffer&& other) noexcept { Swap(other); }
    WideBuffer& operator=(WideBuffer&& other) noexcept;
    ~WideBuffer() = default;

    /// Never null.
    const wchar_t* Data() const { return m_pData ? m_pData.get() : L""; }
    /// Null if nothing is allocated.
    wchar_t* Data() { return m_pData.get(); }
    std::size_t Length() const { return m_nLength; }
    /// Truncates the text to its first `length` characters and releases unused memory if there is
    /// much of it.
    void Shorten(std::size_t length);
    void Swap(WideBuffer& other) noexcept;

private:
    struct Release {
        void operator()(wchar_t* pBlock) const { std::free(pBlock); }
    };

    std::unique_ptr<wchar_t, Release> m_pData;
    std::size_t m_nLength = 0;
};
