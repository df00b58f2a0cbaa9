// Finds attributes in a start tag.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace Orvane {

/// The raw values of the first attributes with these names, without quotes, in the order of the
/// names. `tag` starts with the element's name and may extend beyond the end of the tag. Entries
/// of `values` for missing attributes are left unchanged.
void FindXmlAttributes(std::wstring_view tag, std::span<const std::wstring_view> names,
                       bool bIgnoreCase, std::span<std::optional<std::wstring_view>> values);

} // namespace Orvane
