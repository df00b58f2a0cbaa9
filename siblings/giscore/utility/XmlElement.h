// Small XML texts as trees of elements: the form in which configurations are kept.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane {

/// One element with what is in it; text between elements is of no meaning here.
struct GISCORE_API XmlElement {
    XmlElement() = default;
    explicit XmlElement(CString elementName) : name(std::move(elementName)) {}

    CString name;
    std::vector<std::pair<CString, CString>> attributes;
    std::vector<XmlElement> children;

    /// Empty if there is no such attribute.
    CString Get(std::wstring_view attribute) const;
    /// The whole value as a number; nothing if it is none.
    std::optional<int> GetInt(std::wstring_view attribute) const;
    XmlElement& Set(const wchar_t* attribute, const CString& value);
    XmlElement& Set(const wchar_t* attribute, int value);
};

/// One line. Characters that XML cannot hold are left out.
GISCORE_API CString WriteXml(const XmlElement& root);

/// Nothing, with a reason, for a text that is not well formed, has a document type, is
/// longer than 4 MiB characters, or is deeper than 16 elements.
GISCORE_API std::optional<XmlElement> ReadXml(std::wstring_view text, CString& reason);

} // namespace Orvane
