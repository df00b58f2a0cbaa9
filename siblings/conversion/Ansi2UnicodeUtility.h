// Conversion between texts of the ANSI code page and wide texts, many of them in a row.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "siblings/conversion/Api.h"

namespace Orvane {

/// Converts into memory of its own, so that a run of conversions allocates nothing once
/// the memory is large enough. Main thread only.
class CONVERSION_API CAnsi2UnicodeUtility {
public:
    /// Lives to the end of the process.
    static CAnsi2UnicodeUtility* Instance();

    /// Makes room for texts of so many characters, in both directions. Longer ones are
    /// converted as well; they only cost an allocation.
    void ReserveBufferMemory(std::size_t characters);
    /// Gives the memory back. What the conversions returned is gone with it.
    void ReleaseBufferMemory();
    /// Characters that fit without an allocation; 0 if nothing is reserved.
    std::size_t GetBufferCapacity() const;

    /// Ends with a NUL. Valid until the next call of this operation or of
    /// ReleaseBufferMemory; the argument must not lie in the result of an earlier call.
    const wchar_t* AnsiToUnicode(std::string_view bytes);
    /// The same for the other direction; what the code page lacks becomes "?".
    const char* UnicodeToAnsi(std::wstring_view text);

private:
    CAnsi2UnicodeUtility() = default;

    std::wstring m_strUnicode;
    std::string m_strAnsi;
};

} // namespace Orvane
