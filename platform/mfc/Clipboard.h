// The clipboard: one content, in one or several formats.
#pragma once

#include <map>
#include <span>
#include <string>
#include <vector>

#include "platform/win/String.h"
#include "platform/win/Types.h"

inline constexpr UINT CF_UNICODETEXT = 13;

/// The number of a format of one's own; the same name gives the same number.
PLATFORM_API UINT RegisterClipboardFormat(const wchar_t* name);

/// Gathers a content and puts it on the clipboard, replacing what was there.
class PLATFORM_API CClipboardContent {
public:
    void SetText(std::wstring_view text) { m_text = text; }
    /// Formats that were not registered are left out.
    void SetData(UINT format, std::span<const std::byte> data);
    void Put() const;

private:
    std::wstring m_text;
    std::map<UINT, std::vector<std::byte>> m_data;
};

PLATFORM_API bool IsClipboardFormatAvailable(UINT format);
/// Empty if the clipboard holds nothing of the kind. Line ends come as they were put.
PLATFORM_API CString GetClipboardText();
PLATFORM_API std::vector<std::byte> GetClipboardData(UINT format);
