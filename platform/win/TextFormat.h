// printf-style formatting of wide texts with typed arguments.
//
// The C library's wide formatter reads "%s" as narrow, depends on the locale and cannot check its
// arguments. Here "%s" is a wide text, as the format texts of the system expect.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/Api.h"

/// One argument of a format text. Holds views only: it must not outlive the call.
class FormatArg {
public:
    enum class Kind : std::uint8_t { Signed, Unsigned, Real, Wide, Narrow, Pointer };

    template <class T>
    requires(std::is_integral_v<T> || std::is_enum_v<T>) FormatArg(T value) : m_nBytes(sizeof(T)) {
        if constexpr (std::is_enum_v<T>) {
            Set(static_cast<std::underlying_type_t<T>>(value));
        } else {
            Set(value);
        }
    }
    FormatArg(double value) : m_kind(Kind::Real), m_real(value) {}
    FormatArg(const wchar_t* text) : m_kind(Kind::Wide) {
        m_wide = text ? std::wstring_view(text) : std::wstring_view(L"(null)");
    }
    FormatArg(std::wstring_view text) : m_kind(Kind::Wide), m_wide(text) {}
    FormatArg(const std::wstring& text) : m_kind(Kind::Wide), m_wide(text) {}
    /// Narrow texts are in UTF-8.
    FormatArg(const char* text) : m_kind(Kind::Narrow) {
        m_narrow = text ? std::string_view(text) : std::string_view("(null)");
    }
    FormatArg(const std::string& text) : m_kind(Kind::Narrow), m_narrow(text) {}
    FormatArg(const void* pointer)
        : m_kind(Kind::Pointer), m_integer(reinterpret_cast<std::uintptr_t>(pointer)) {}

    Kind GetKind() const { return m_kind; }
    /// Two's complement bits of an integer, sign extended for Kind::Signed.
    std::uint64_t Integer() const { return m_integer; }
    /// Size of the integer as passed, so that "%X" of the int -1 prints eight digits.
    unsigned Bytes() const { return m_nBytes; }
    double Real() const { return m_real; }
    std::wstring_view Wide() const { return m_wide; }
    std::string_view Narrow() const { return m_narrow; }

private:
    template <class T>
    void Set(T value) {
        m_kind = std::is_signed_v<T> ? Kind::Signed : Kind::Unsigned;
        m_integer = static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
        if constexpr (!std::is_signed_v<T>) {
            m_integer = static_cast<std::uint64_t>(value);
        }
    }

    Kind m_kind = Kind::Signed;
    unsigned m_nBytes = sizeof(void*);
    std::uint64_t m_integer = 0;
    double m_real = 0;
    std::wstring_view m_wide;
    std::string_view m_narrow;
};

/// Formats a text. Supports "%s %ls %hs %S %d %i %u %x %X %o %c %p %f %e %g %%" with flags, width,
/// precision, "*" and length modifiers. A missing argument or one of the wrong type shows as "<?>"
/// in the result. Never truncates; does not depend on the locale.
PLATFORM_API std::wstring FormatTextV(std::wstring_view format, std::span<const FormatArg> args);

template <class... Args>
std::wstring FormatText(std::wstring_view format, const Args&... args) {
    const std::array<FormatArg, sizeof...(Args)> list{FormatArg(args)...};
    return FormatTextV(format, list);
}
