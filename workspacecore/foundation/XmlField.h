// The layer between a value and its attribute in a persisted text.
//
// A value is entity-escaped, then brought to bytes of the ANSI code page, of which only
// ASCII stays as it is. Characters outside the page are lost on writing.
#pragma once

#include <string_view>

#include "platform/win/String.h"
#include "workspacecore/Api.h"

namespace Orvane {

class XmlDocument;

/// The form of a value that is put between the quotes of an attribute. References that
/// the value already holds ("&amp;") stay as they are.
WORKSPACE_API CString EncodeXmlField(const wchar_t* pszValue);
/// The value of what XmlDocument::GetAttrib has returned.
WORKSPACE_API CString DecodeXmlField(const wchar_t* pszRaw);

/// The value of an attribute of the document's current element; empty or 0 without one.
WORKSPACE_API CString ReadXmlText(const XmlDocument& document, const wchar_t* pszName);
WORKSPACE_API int ReadXmlInt(const XmlDocument& document, const wchar_t* pszName);

WORKSPACE_API CString EncodeEqualsHex(std::wstring_view text);
WORKSPACE_API CString DecodeEqualsHex(std::wstring_view text);

} // namespace Orvane
