// The text class used in all interfaces.
#pragma once

#include <compare>
#include <string>
#include <string_view>

#include "platform/win/TextFormat.h"

/// A wide text with value semantics. Positions and lengths are ints in wide characters;
/// out-of-range positions are clamped.
class PLATFORM_API CString {
public:
    CString() = default;
    CString(const wchar_t* text) : m_text(text ? text : L"") {}
    CString(std::wstring text) : m_text(std::move(text)) {}
    CString(std::wstring_view text) : m_text(text) {}
    CString(wchar_t character, int count)
        : m_text(count > 0 ? static_cast<std::size_t>(count) : 0, character) {}

    operator const wchar_t*() const { return m_text.c_str(); }
    const wchar_t* GetString() const { return m_text.c_str(); }
    /// The text itself, for code that works on views or the standard algorithms.
    const std::wstring& Str() const { return m_text; }
    std::wstring& Str() { return m_text; }
    std::wstring_view View() const { return m_text; }

    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    wchar_t GetAt(int index) const { return m_text[static_cast<std::size_t>(index)]; }

    /// Less than, equal to or greater than 0, by code point.
    int Compare(const wchar_t* other) const { return m_text.compare(other ? other : L""); }
    /// The same ignoring case, character by character (no language rules).
    int CompareNoCase(const wchar_t* other) const;

    /// Position of the first match at or after start; -1 if there is none.
    int Find(std::wstring_view part, int start = 0) const;
    int Find(wchar_t character, int start = 0) const;
    int ReverseFind(wchar_t character) const;

    CString Left(int count) const;
    CString Right(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;

    CString& MakeUpper();
    CString& MakeLower();
    /// Removes spaces, tabs and line ends at both ends.
    CString& Trim();
    /// Replaces every match and returns their number. An empty `from` matches nothing.
    int Replace(std::wstring_view from, std::wstring_view to);

    template <class... Args>
    void Format(std::wstring_view format, const Args&... args) {
        // Formatted first: an argument may refer to this text.
        m_text = FormatText(format, args...);
    }
    template <class... Args>
    void AppendFormat(std::wstring_view format, const Args&... args) {
        m_text += FormatText(format, args...);
    }

    CString& operator+=(std::wstring_view other) {
        m_text += other;
        return *this;
    }
    CString& operator+=(const wchar_t* other) {
        return *this += std::wstring_view(other ? other : L"");
    }
    CString& operator+=(const CString& other) { return *this += other.View(); }
    CString& operator+=(wchar_t character) {
        m_text += character;
        return *this;
    }

    friend CString operator+(CString left, const CString& right) { return left += right; }
    friend CString operator+(CString left, const wchar_t* right) { return left += right; }
    friend CString operator+(const wchar_t* left, const CString& right) {
        return CString(left) += right;
    }
    friend bool operator==(const CString& left, const CString& right) = default;
    friend bool operator==(const CString& left, const wchar_t* right) {
        return left.Compare(right) == 0;
    }
    friend std::strong_ordering operator<=>(const CString& left, const CString& right) {
        return left.m_text <=> right.m_text;
    }

private:
    std::wstring m_text;
};

/// Compares CStrings with plain text, so maps can be searched without constructing a key.
struct CStringLess {
    using is_transparent = void;
    static std::wstring_view View(const CString& text) { return text.View(); }
    static std::wstring_view View(std::wstring_view text) { return text; }
    template <class A, class B>
    bool operator()(const A& a, const B& b) const {
        return View(a) < View(b);
    }
};

/// Converts case character by character, without language rules.
PLATFORM_API wchar_t ToUpper(wchar_t character);
PLATFORM_API wchar_t ToLower(wchar_t character);
