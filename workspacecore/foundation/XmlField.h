// The layer between a value and its attribute in a persisted text.
//
// A value is entity-escaped, then brought to bytes of the ANSI code page, of which only
// ASCII stays as it is. Characters outside the page are lost on writing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/win/String.h"
#include "workspacecore/Api.h"

namespace Orvane {

/// The form of a value that is put between the quotes of an attribute. References that
/// the value already holds ("&amp;") stay as they are.
WORKSPACE_API CString EncodeXmlField(const wchar_t* pszValue);
/// The same at the end of a text that grows. What is written is ASCII.
WORKSPACE_API void AppendXmlField(std::string& text, const CString& strValue);
WORKSPACE_API void AppendXmlInt(std::string& text, int nValue);
/// The value of what XmlDocument::GetAttrib has returned.
WORKSPACE_API CString DecodeXmlField(const wchar_t* pszRaw);

/// The value of an attribute as XmlDocument::GetRawAttribs has returned it; an empty text or 0
/// if there is none.
WORKSPACE_API CString XmlFieldText(std::optional<std::wstring_view> raw);
WORKSPACE_API int XmlFieldInt(std::optional<std::wstring_view> raw);

WORKSPACE_API CString EncodeEqualsHex(std::wstring_view text);
WORKSPACE_API CString DecodeEqualsHex(std::wstring_view text);

} // namespace Orvane
