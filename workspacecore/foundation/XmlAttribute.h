// Cuts attributes out of a start tag.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace Orvane {

/// The values of the first attributes of these names as they stand in the text, without their
/// quotes; in the order of the names. `tag` starts with the name of the element and may go on
/// beyond the tag's end. What is not there stays as it was in `values`.
void FindXmlAttributes(std::wstring_view tag, std::span<const std::wstring_view> names,
                       bool bIgnoreCase, std::span<std::optional<std::wstring_view>> values);

} // namespace Orvane
