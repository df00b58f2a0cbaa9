// The clipboard: one content in one or more formats.
#pragma once

#include <map>
#include <span>
#include <string>
#include <vector>

#include "platform/win/String.h"
#include "platform/win/Types.h"

inline constexpr UINT CF_UNICODETEXT = 13;

/// Returns the number of a custom format; the same for the same name.
PLATFORM_API UINT RegisterClipboardFormat(const wchar_t* name);

/// Collects a content and puts it on the clipboard, replacing the previous one.
class PLATFORM_API CClipboardContent {
public:
    void SetText(std::wstring_view text) { m_text = text; }
    /// Unregistered formats are ignored.
    void SetData(UINT format, std::span<const std::byte> data);
    void Put() const;

private:
    std::wstring m_text;
    std::map<UINT, std::vector<std::byte>> m_data;
};

PLATFORM_API bool IsClipboardFormatAvailable(UINT format);
/// Empty if the clipboard holds no text. Line ends are not converted.
PLATFORM_API CString GetClipboardText();
PLATFORM_API std::vector<std::byte> GetClipboardData(UINT format);
