// What the reader knows of the sections of network files, as tables.
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
    Ignored, ///< known to the formats, of no use here
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
    End ///< what follows is not part of the network
};

inline constexpr std::size_t kNoColumn = 0xFF;

/// A section of the file by its heading. Columns count from 0.
struct InpSectionRule {
    std::string_view heading;                         ///< upper case, without brackets
    Plugins::Msg columns = Plugins::Msg::NameColumn;  ///< names of those that a line needs
    std::span<const std::string_view> attributes;     ///< in EPANET's files and by default
    std::span<const std::string_view> swmmAttributes; ///< in SWMM's files if they differ
    std::size_t attributeColumn = 0; ///< the columns from here on have the names above
    std::size_t lengthColumn = kNoColumn;
    std::size_t diameterColumn = kNoColumn;
    InpRole role = InpRole::Ignored;
    std::uint8_t fewestColumns = 0;
    NodeKind nodeKind = NodeKind::Other;
    SectionKind sectionKind = SectionKind::Other;
};

/// The rule for a heading in any case of letters; null for one that no format knows.
const InpSectionRule* FindInpSection(std::string_view heading);
/// Whether the section belongs to SWMM's files alone.
bool IsSwmmSection(const InpSectionRule& rule);
/// Whether a cross section of this shape is round, so that its height is a diameter.
bool IsRoundShape(std::string_view shape);
/// The attribute name of a keyword of EPANET's pumps, as "Head"; empty for another word.
std::string_view PumpAttribute(std::string_view keyword);

/// Letters A to Z compared without regard to case.
bool EqualNoCase(std::string_view a, std::string_view b);

} // namespace Orvane::Network
