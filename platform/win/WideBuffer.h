// Room for a long text that is written once and read often.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

#include "platform/Api.h"

/// A block of wide characters that is allocated without being filled. A large block asks
/// the system for huge pages, which makes the first touch several times faster. A NUL
/// follows the text.
class PLATFORM_API WideBuffer {
public:
    WideBuffer() = default;
    /// Room for `length` characters of any content, and the NUL behind them.
    explicit WideBuffer(std::size_t length);
    WideBuffer(WideBuffer&& other) noexcept { Swap(other); }
    WideBuffer& operator=(WideBuffer&& other) noexcept;
    ~WideBuffer() = default;

    /// Never null.
    const wchar_t* Data() const { return m_pData ? m_pData.get() : L""; }
    /// Null if nothing was allocated.
    wchar_t* Data() { return m_pData.get(); }
    std::size_t Length() const { return m_nLength; }
    /// Cuts the text to its first `length` characters and gives up much unused room.
    void Shorten(std::size_t length);
    void Swap(WideBuffer& other) noexcept;

private:
    struct Release {
        void operator()(wchar_t* pBlock) const { std::free(pBlock); }
    };

    std::unique_ptr<wchar_t, Release> m_pData;
    std::size_t m_nLength = 0;
};
