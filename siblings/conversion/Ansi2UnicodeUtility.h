// Bulk conversion between ANSI code page and wide strings.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "siblings/conversion/Api.h"

namespace Orvane {

/// Converts into internal buffers, so a series of conversions does not allocate once the buffers
/// are large enough. Main thread only.
class CONVERSION_API CAnsi2UnicodeUtility {
public:
    /// Lives to the end of the process.
    static CAnsi2UnicodeUtility* Instance();

    /// Reserves buffers for texts of this many characters, in both directions. Longer texts still
    /// work but cost an allocation.
    void ReserveBufferMemory(std::size_t characters);
    /// Frees the buffers and invalidates everything returned so far.
    void ReleaseBufferMemory();
    /// Number of characters that fit without an allocation; 0 if nothing is reserved.
    std::size_t GetBufferCapacity() const;

    /// NUL-terminated. Valid until the next call of this function or of ReleaseBufferMemory; the
    /// argument must not point into an earlier result.
    const wchar_t* AnsiToUnicode(std::string_view bytes);
    /// The reverse direction; characters missing from the code page become "?".
    const char* UnicodeToAnsi(std::wstring_view text);

private:
    CAnsi2UnicodeUtility() = default;

    std::wstring m_strUnicode;
    std::string m_strAnsi;
};

} // namespace Orvane
