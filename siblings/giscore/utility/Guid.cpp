#include "siblings/giscore/utility/Guid.h"

#include <algorithm>
#include <random>

namespace Orvane {

CString NewGuid() {
    static std::random_device source;
    unsigned int words[4];
    for (unsigned int& word : words) {
        word = source();
    }
    words[1] = (words[1] & 0xFFFF0FFFU) | 0x4000U;
    words[2] = (words[2] & 0x3FFFFFFFU) | 0x80000000U;
    return FormatText(L"%08X-%04X-%04X-%04X-%04X%08X", words[0], words[1] >> 16, words[1] & 0xFFFFU,
                      words[2] >> 16, words[2] & 0xFFFFU, words[3]);
}

bool IsGuid(std::wstring_view text) {
    constexpr std::size_t kLongest = 64;
    return !text.empty() && text.size() <= kLongest &&
           std::all_of(text.begin(), text.end(), [](wchar_t c) {
               return (c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'Z') ||
                      (c >= L'a' && c <= L'z') || c == L'-';
           });
}

} // namespace Orvane
