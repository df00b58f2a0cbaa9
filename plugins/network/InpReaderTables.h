// Tables describing the sections of network files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "plugins/common/Texts.h"
#include "plugins/network/InpReader.h"

namespace Orvane::Network {

/// What the lines of a section of the file describe.
enum class InpRole : std::uint8_t {
    Ignored, ///< known to the formats, but not used here
    Title,
    Nodes,
    Sections,
    Coordinates,
    Vertices,
    CrossSections,
    Subcatchments,
    Polygons,
    Labels,
    Tags,
    End ///< nothing after it belongs to the network
};

inline constexpr std::size_t kNoColumn = 0xFF;

/// Describes a section of the file by its heading. Columns count from 0.
struct InpSectionRule {
    std::string_view heading;                         ///< upper case, without brackets
    Plugins::Msg columns = Plugins::Msg::NameColumn;  ///< names of the required columns
    std::span<const std::string_view> attributes;     ///< in EPANET files, and by default
    std::span<const std::string_view> swmmAttributes; ///< in SWMM files, if different
    std::size_t attributeColumn = 0;                  ///< the first column with an attribute
    std::size_t lengthColumn = kNoColumn;
    std::size_t diameterColumn = kNoColumn;
    InpRole role = InpRole::Ignored;
    std::uint8_t fewestColumns = 0;
    NodeKind nodeKind = NodeKind::Other;
    SectionKind sectionKind = SectionKind::Other;
};

/// The rule for a heading, ignoring case; null if no format has such a section.
const InpSectionRule* FindInpSection(std::string_view heading);
/// Whether only SWMM files have this section.
bool IsSwmmSection(const InpSectionRule& rule);
/// Whether cross sections of this shape are round, so that their height is a diameter.
bool IsRoundShape(std::string_view shape);
/// The attribute name for an EPANET pump keyword, such as "Head"; empty for any other word.
std::string_view PumpAttribute(std::string_view keyword);

/// Compares ignoring the case of A to Z.
bool EqualNoCase(std::string_view a, std::string_view b);

} // namespace Orvane::Network
