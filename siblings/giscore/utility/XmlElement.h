// Small XML texts as element trees, the storage format of configurations.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane {

/// One element with its attributes and children; text content is ignored.
struct GISCORE_API XmlElement {
    XmlElement() = default;
    explicit XmlElement(CString elementName) : name(std::move(elementName)) {}

    CString name;
    std::vector<std::pair<CString, CString>> attributes;
    std::vector<XmlElement> children;

    /// Empty if there is no such attribute.
    CString Get(std::wstring_view attribute) const;
    /// The whole value as a number; nullopt if it is not one.
    std::optional<int> GetInt(std::wstring_view attribute) const;
    XmlElement& Set(const wchar_t* attribute, const CString& value);
    XmlElement& Set(const wchar_t* attribute, int value);
};

/// On one line. Characters that XML cannot represent are dropped.
GISCORE_API CString WriteXml(const XmlElement& root);

/// Returns nullopt and a reason if the text is not well formed, has a document type, is longer
/// than 4 Mi characters, or nests deeper than 16 elements.
GISCORE_API std::optional<XmlElement> ReadXml(std::wstring_view text, CString& reason);

} // namespace Orvane
