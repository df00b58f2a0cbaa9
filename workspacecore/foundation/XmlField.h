// Encoding of values in attributes of persisted texts.
//
// A value is entity-escaped, then converted to the ANSI code page, and bytes beyond ASCII are
// escaped. Characters missing from the code page are lost.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/win/String.h"
#include "workspacecore/Api.h"

namespace Orvane {

/// Encodes a value to be put between the quotes of an attribute. References already in the value
/// ("&amp;") are kept.
WORKSPACE_API CString EncodeXmlField(const wchar_t* pszValue);
/// Appends an encoded value to a text. The output is ASCII.
WORKSPACE_API void AppendXmlField(std::string& text, const CString& strValue);
WORKSPACE_API void AppendXmlInt(std::string& text, int nValue);
/// Decodes a value returned by XmlDocument::GetAttrib.
WORKSPACE_API CString DecodeXmlField(const wchar_t* pszRaw);

/// Decodes an attribute returned by XmlDocument::GetRawAttribs; an empty text or 0 if it is
/// missing.
WORKSPACE_API CString XmlFieldText(std::optional<std::wstring_view> raw);
WORKSPACE_API int XmlFieldInt(std::optional<std::wstring_view> raw);

WORKSPACE_API CString EncodeEqualsHex(std::wstring_view text);
WORKSPACE_API CString DecodeEqualsHex(std::wstring_view text);

} // namespace Orvane
