// Cuts attributes out of a start tag.
#pragma once

#include <optional>
#include <string_view>

namespace Orvane {

/// The value of the first attribute of that name as it stands in the text, without its
/// quotes. `tag` starts with the name of the element and may go on beyond the tag's end.
std::optional<std::wstring_view> FindXmlAttribute(std::wstring_view tag, std::wstring_view name,
                                                  bool bIgnoreCase);

} // namespace Orvane
