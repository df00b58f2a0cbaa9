#include "plugins/network/InpReaderTables.h"

#include <algorithm>
#include <array>
#include <vector>

namespace Orvane::Network {

using Plugins::Msg;

namespace {

using Names = std::string_view;

constexpr Names kJunction[] = {"Demand", "Pattern"};
constexpr Names kManhole[] = {"MaxDepth", "InitDepth", "SurDepth", "PondedArea"};
constexpr Names kReservoir[] = {"Pattern"};
constexpr Names kTank[] = {"InitLevel",    "MinLevel",  "MaxLevel",
                           "TankDiameter", "MinVolume", "VolumeCurve"};
constexpr Names kOutfall[] = {"Type"};
constexpr Names kStorage[] = {"MaxDepth", "InitDepth", "Shape"};
constexpr Names kDivider[] = {"DivertedLink", "Type"};
constexpr Names kPipe[] = {"Roughness", "MinorLoss", "Status"};
constexpr Names kSwmmPump[] = {"Curve", "Status", "Startup", "Shutoff"};
constexpr Names kValve[] = {"Type", "Setting", "MinorLoss"};
constexpr Names kConduit[] = {"Roughness", "InOffset", "OutOffset", "InitFlow", "MaxFlow"};
constexpr Names kWeir[] = {"Type", "CrestHeight", "DischargeCoefficient"};
constexpr Names kOrifice[] = {"Type", "Offset", "DischargeCoefficient"};
constexpr Names kOutlet[] = {"Offset", "Type"};
constexpr Names kSubcatchment[] = {"RainGage", "Outlet", "Area", "Impervious", "Width", "Slope"};

constexpr InpSectionRule Plain(Names heading, InpRole role, std::uint8_t fewest, Msg columns) {
    InpSectionRule rule;
    rule.heading = heading;
    rule.role = role;
    rule.fewestColumns = fewest;
    rule.columns = columns;
    return rule;
}

constexpr InpSectionRule Node(Names heading, NodeKind kind, std::span<const Names> attributes,
                              std::span<const Names> swmmAttributes = {}) {
    const bool isReservoir = kind == NodeKind::Reservoir;
    InpSectionRule rule =
        Plain(heading, InpRole::Nodes, 2, isReservoir ? Msg::HeadColumns : Msg::ElevationColumns);
    rule.nodeKind = kind;
    rule.attributeColumn = 2;
    rule.attributes = attributes;
    rule.swmmAttributes = swmmAttributes;
    return rule;
}

constexpr InpSectionRule Line(Names heading, SectionKind kind, std::uint8_t fewest, Msg columns,
                              std::size_t lengthColumn, std::size_t diameterColumn,
                              std::span<const Names> attributes,
                              std::span<const Names> swmmAttributes = {}) {
    InpSectionRule rule = Plain(heading, InpRole::Sections, fewest, columns);
    rule.sectionKind = kind;
    rule.lengthColumn = lengthColumn;
    rule.diameterColumn = diameterColumn;
    rule.attributeColumn = fewest;
    rule.attributes = attributes;
    rule.swmmAttributes = swmmAttributes;
    return rule;
}

constexpr InpSectionRule Subcatchments() {
    InpSectionRule rule = Plain("SUBCATCHMENTS", InpRole::Subcatchments, 1, Msg::NameColumn);
    rule.attributeColumn = 1;
    rule.attributes = kSubcatchment;
    return rule;
}

constexpr Msg kLineColumns = Msg::LineColumns;

constexpr InpSectionRule kRules[] = {
    Node("JUNCTIONS", NodeKind::Junction, kJunction, kManhole),
    Node("RESERVOIRS", NodeKind::Reservoir, kReservoir),
    Node("TANKS", NodeKind::Tank, kTank),
    Node("OUTFALLS", NodeKind::Outfall, kOutfall),
    Node("STORAGE", NodeKind::Storage, kStorage),
    Node("DIVIDERS", NodeKind::Divider, kDivider),
    Line("PIPES", SectionKind::Pipe, 5, Msg::PipeColumns, 3, 4, kPipe),
    Line("PUMPS", SectionKind::Pump, 3, kLineColumns, kNoColumn, kNoColumn, {}, kSwmmPump),
    Line("VALVES", SectionKind::Valve, 4, Msg::ValveColumns, kNoColumn, 3, kValve),
    Line("CONDUITS", SectionKind::Conduit, 4, Msg::ConduitColumns, 3, kNoColumn, kConduit),
    Line("WEIRS", SectionKind::Weir, 3, kLineColumns, kNoColumn, kNoColumn, kWeir),
    Line("ORIFICES", SectionKind::Orifice, 3, kLineColumns, kNoColumn, kNoColumn, kOrifice),
    Line("OUTLETS", SectionKind::Outlet, 3, kLineColumns, kNoColumn, kNoColumn, kOutlet),
    Plain("COORDINATES", InpRole::Coordinates, 3, Msg::CoordinateColumns),
    Plain("VERTICES", InpRole::Vertices, 3, Msg::VertexColumns),
    Plain("XSECTIONS", InpRole::CrossSections, 2, Msg::ShapeColumns),
    Subcatchments(),
    Plain("POLYGONS", InpRole::Polygons, 3, Msg::VertexColumns),
    Plain("LABELS", InpRole::Labels, 3, Msg::LabelColumns),
    Plain("TAGS", InpRole::Tags, 3, Msg::TagColumns),
    Plain("TITLE", InpRole::Title, 0, Msg::NameColumn),
    Plain("END", InpRole::End, 0, Msg::NameColumn),
};

constexpr Names kIgnoredHeadings[] = {
    "ADJUSTMENTS", "AQUIFERS",   "BACKDROP",    "BUILDUP",  "CONTROLS",    "COVERAGES",
    "CURVES",      "DEMANDS",    "DWF",         "EMITTERS", "ENERGY",      "EVAPORATION",
    "EVENTS",      "FILES",      "GROUNDWATER", "GWF",      "HYDROGRAPHS", "INFILTRATION",
    "INFLOWS",     "INLETS",     "INLET_USAGE", "LANDUSES", "LEAKAGE",     "LID_CONTROLS",
    "LID_USAGE",   "LOADINGS",   "LOSSES",      "MAP",      "MIXING",      "OPTIONS",
    "PATTERNS",    "POLLUTANTS", "PROFILES",    "QUALITY",  "RAINGAGES",   "RDII",
    "REACTIONS",   "REPORT",     "ROUGHNESS",   "RULES",    "SNOWPACKS",   "SOURCES",
    "STATUS",      "STREETS",    "SUBAREAS",    "SYMBOLS",  "TEMPERATURE", "TIMES",
    "TIMESERIES",  "TRANSECTS",  "TREATMENT",   "WASHOFF"};

constexpr Names kSwmmHeadings[] = {"OUTFALLS",  "STORAGE",       "DIVIDERS", "CONDUITS",
                                   "WEIRS",     "ORIFICES",      "OUTLETS",  "XSECTIONS",
                                   "RAINGAGES", "SUBCATCHMENTS", "POLYGONS"};

constexpr Names kRoundShapes[] = {"CIRCULAR", "FORCE_MAIN", "FILLED_CIRCULAR"};
constexpr Names kPumpKeywords[] = {"Head", "Power", "Speed", "Pattern"};

const InpSectionRule kIgnored;

} // namespace

bool EqualNoCase(std::string_view a, std::string_view b) {
    const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char left, char right) { return upper(left) == upper(right); });
}

const InpSectionRule* FindInpSection(std::string_view heading) {
    const auto isIt = [&](Names name) { return EqualNoCase(name, heading); };
    const auto rule = std::ranges::find_if(kRules, isIt, &InpSectionRule::heading);
    if (rule != std::end(kRules)) {
        return rule;
    }
    return std::ranges::any_of(kIgnoredHeadings, isIt) ? &kIgnored : nullptr;
}

bool IsSwmmSection(const InpSectionRule& rule) {
    return std::ranges::find(kSwmmHeadings, rule.heading) != std::end(kSwmmHeadings);
}

bool IsRoundShape(std::string_view shape) {
    return std::ranges::any_of(kRoundShapes, [&](Names name) { return EqualNoCase(name, shape); });
}

std::string_view PumpAttribute(std::string_view keyword) {
    const auto isIt = [&](Names name) { return EqualNoCase(name, keyword); };
    const auto found = std::ranges::find_if(kPumpKeywords, isIt);
    return found == std::end(kPumpKeywords) ? Names() : *found;
}

} // namespace Orvane::Network
