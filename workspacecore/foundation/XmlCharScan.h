// Vectorised search for the characters that delimit tags.
#pragma once

#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Orvane {

#ifdef __SSE2__

/// Sixteen characters narrowed to one byte each. Everything beyond ASCII becomes 0x7F or 0x80, so
/// only smaller characters can be searched for.
class XmlCharBlock {
public:
    static constexpr int kSize = 16;

    explicit XmlCharBlock(const wchar_t* pText) {
        const auto* pLanes = reinterpret_cast<const __m128i*>(pText);
        const __m128i low = _mm_packs_epi32(_mm_loadu_si128(pLanes), _mm_loadu_si128(pLanes + 1));
        const __m128i high =
            _mm_packs_epi32(_mm_loadu_si128(pLanes + 2), _mm_loadu_si128(pLanes + 3));
        m_bytes = _mm_packs_epi16(low, high);
    }
    /// Bit i is set if character i equals c.
    std::uint32_t Where(char c) const {
        return static_cast<std::uint32_t>(
            _mm_movemask_epi8(_mm_cmpeq_epi8(m_bytes, _mm_set1_epi8(c))));
    }

private:
    __m128i m_bytes;
};

#else

class XmlCharBlock {
public:
    static constexpr int kSize = 16;

    explicit XmlCharBlock(const wchar_t* pText) : m_pText(pText) {}
    std::uint32_t Where(char c) const {
        std::uint32_t nBits = 0;
        for (int i = 0; i < kSize; ++i) {
            nBits |= static_cast<std::uint32_t>(m_pText[i] == c) << i;
        }
        return nBits;
    }

private:
    const wchar_t* m_pText;
};

#endif

} // namespace Orvane
