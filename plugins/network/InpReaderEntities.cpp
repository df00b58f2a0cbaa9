#include "plugins/network/InpReaderEntities.h"

#include <algorithm>
#include <cmath>

namespace Orvane::Network {

using Plugins::Msg;
using Plugins::Text;
using Plugins::TextUtf8;

void InpNodes::ReadNodes(const InpFileSection& section) {
    const InpSectionRule& rule = *section.rule;
    const Msg what = rule.nodeKind == NodeKind::Reservoir ? Msg::HeadWord : Msg::ElevationWord;
    ForEachRow(section, [&](std::uint32_t line, const InpColumns& columns) {
        if (!m_context.HasColumns(rule, line, columns)) {
            return;
        }
        const auto elevation = m_context.Number(line, what, columns[1]);
        const auto number =
            m_names.AddNew(m_nodes.names, columns[0], line, Msg::NodeWord, m_context.problems);
        if (!number) {
            return;
        }
        m_nodes.kinds.push_back(rule.nodeKind);
        m_nodes.positions.push_back({kNotStated, kNotStated});
        m_nodes.elevations.push_back(elevation.value_or(kNotStated));
        m_context.AddAttributes(rule, columns, *number, m_nodes.attributes);
    });
}

void InpNodes::ReadCoordinates(const InpFileSection& section) {
    ForEachRow(section, [&](std::uint32_t line, const InpColumns& columns) {
        if (!m_context.HasColumns(*section.rule, line, columns)) {
            return;
        }
        const auto place = m_context.Place(line, columns[1], columns[2]);
        const auto node = Find(columns[0]);
        if (!node) {
            m_context.problems.Warn(line, TextUtf8(Msg::CoordinatesOfUnknown, Quoted(columns[0])));
        } else if (place) {
            if (IsPlace(m_nodes.positions[*node])) {
                m_context.problems.Warn(line, TextUtf8(Msg::CoordinatesAgain, Quoted(columns[0])));
            }
            m_nodes.positions[*node] = *place;
        }
    });
}

void InpNodes::DropUnplaced(std::uint32_t coordinatesLine) {
    std::vector<std::uint32_t> newNumbers(m_nodes.size(), AttributeTable::kDropped);
    std::uint32_t count = 0;
    for (std::uint32_t node = 0; node < m_nodes.size(); ++node) {
        if (IsPlace(m_nodes.positions[node])) {
            newNumbers[node] = count++;
        }
    }
    if (count == 0) {
        m_context.problems.Fail(coordinatesLine, TextUtf8(Msg::NoCoordinates));
    } else if (count < m_nodes.size()) {
        Keep(newNumbers, count);
    }
}

void InpNodes::Keep(const std::vector<std::uint32_t>& newNumbers, std::size_t count) {
    NodeTable kept;
    InpNames names;
    kept.names.Reserve(count);
    for (std::uint32_t node = 0; node < m_nodes.size(); ++node) {
        const std::string_view name = m_nodes.names[node];
        const std::uint32_t line = m_names.LineOf(node);
        if (newNumbers[node] == AttributeTable::kDropped) {
            m_context.problems.Warn(line, TextUtf8(Msg::NodeLeftOut, Quoted(name)));
            continue;
        }
        names.FindOrAdd(kept.names, name, line);
        kept.kinds.push_back(m_nodes.kinds[node]);
        kept.positions.push_back(m_nodes.positions[node]);
        kept.elevations.push_back(m_nodes.elevations[node]);
    }
    kept.attributes = std::move(m_nodes.attributes);
    kept.attributes.Renumber(newNumbers);
    m_nodes = std::move(kept);
    m_names = std::move(names);
}

void InpSections::ReadSections(const InpFileSection& section) {
    ForEachRow(section, [&](std::uint32_t line, const InpColumns& columns) {
        if (m_context.HasColumns(*section.rule, line, columns)) {
            ReadRow(*section.rule, line, columns);
        }
    });
}

void InpSections::ReadRow(const InpSectionRule& rule, std::uint32_t line,
                          const InpColumns& columns) {
    const double length = ReadSize(line, Msg::LengthWord, columns, rule.lengthColumn);
    const double diameter = ReadSize(line, Msg::DiameterWord, columns, rule.diameterColumn);
    const auto number =
        m_names.AddNew(m_sections.names, columns[0], line, Msg::SectionWord, m_context.problems);
    if (!number) {
        return;
    }
    m_sections.kinds.push_back(rule.sectionKind);
    m_sections.startNodes.push_back(FindNode(line, columns, 1));
    m_sections.endNodes.push_back(FindNode(line, columns, 2));
    m_sections.statedLengths.push_back(length);
    m_sections.diameters.push_back(diameter);
    m_context.AddAttributes(rule, columns, *number, m_sections.attributes);
    if (rule.sectionKind == SectionKind::Pump && m_context.format == InpFormat::Epanet) {
        AddPumpAttributes(*number, columns);
    }
}

std::int32_t InpSections::FindNode(std::uint32_t line, const InpColumns& columns,
                                   std::size_t column) {
    if (const auto node = m_nodes.Find(columns[column])) {
        return static_cast<std::int32_t>(*node);
    }
    m_context.problems.Warn(
        line, TextUtf8(Msg::SectionLacksNode, Quoted(columns[0]), Quoted(columns[column])));
    m_sections.missingKeys.push_back((m_sections.kinds.size() - 1) * std::uint64_t{2} +
                                     (column - 1));
    m_sections.missingNames.Add(columns[column]);
    return kMissingNode;
}

double InpSections::ReadSize(std::uint32_t line, Msg what, const InpColumns& columns,
                             std::size_t column) {
    if (column == kNoColumn) {
        return kNotStated;
    }
    const auto size = m_context.Number(line, what, columns[column]);
    if (size && *size < 0) {
        m_context.problems.Warn(line,
                                TextUtf8(Msg::NegativeNumber, Text(what), Quoted(columns[column])));
    }
    return size.value_or(kNotStated);
}

void InpSections::AddPumpAttributes(std::uint32_t number, const InpColumns& columns) {
    for (std::size_t i = 3; i + 1 < columns.size(); i += 2) {
        if (const std::string_view name = PumpAttribute(columns[i]); !name.empty()) {
            m_context.AddAttribute(m_sections.attributes, number, name, columns[i + 1]);
        }
    }
}

void InpSections::ReadCrossSections(const InpFileSection& section) {
    ForEachRow(section, [&](std::uint32_t line, const InpColumns& columns) {
        if (!m_context.HasColumns(*section.rule, line, columns)) {
            return;
        }
        const auto number = Find(columns[0]);
        if (!number) {
            m_context.problems.Warn(line, TextUtf8(Msg::CrossSectionOfUnknown, Quoted(columns[0])));
            return;
        }
        m_context.AddAttribute(m_sections.attributes, *number, "Shape", columns[1]);
        if (columns.size() < 3) {
            return;
        }
        if (IsRoundShape(columns[1])) {
            m_sections.diameters[*number] = ReadSize(line, Msg::DiameterWord, columns, 2);
        } else {
            // This column may also hold the name of a street or of an irregular cross section.
            m_context.AddAttribute(m_sections.attributes, *number, "Height", columns[2]);
        }
    });
}

void InpSections::ReadVertices(const InpFileSection& section) {
    ForEachRow(section, [&](std::uint32_t line, const InpColumns& columns) {
        if (!m_context.HasColumns(*section.rule, line, columns)) {
            return;
        }
        const auto place = m_context.Place(line, columns[1], columns[2]);
        const auto number = Find(columns[0]);
        if (!number) {
            m_context.problems.Warn(line, TextUtf8(Msg::VertexOfUnknown, Quoted(columns[0])));
        } else if (place) {
            m_vertices.Add(*number, *place);
        }
    });
}

void InpSections::Finish() {
    m_sections.innerVertices = m_vertices.Sorted(m_sections.size());
    m_sections.attributes.Seal();
}

void InpPolygons::ReadSubcatchments(const InpFileSection& section) {
    ForEachRow(section, [&](std::uint32_t line, const InpColumns& columns) {
        const std::uint32_t area = m_areaNames.FindOrAdd(m_areas, columns[0], line);
        m_context.AddAttributes(*section.rule, columns, area, m_areaAttributes);
    });
}

void InpPolygons::ReadRings(const InpFileSection& section) {
    ForEachRow(section, [&](std::uint32_t line, const InpColumns& columns) {
        if (!m_context.HasColumns(*section.rule, line, columns)) {
            return;
        }
        const std::uint32_t ring = m_ringNames.FindOrAdd(m_rings, columns[0], line);
        if (const auto place = m_context.Place(line, columns[1], columns[2])) {
            m_points.Add(ring, *place);
        }
    });
}

void InpPolygons::Finish() {
    m_areaAttributes.Seal();
    const PointLists rings = m_points.Sorted(m_rings.size());
    for (std::uint32_t ring = 0; ring < m_rings.size(); ++ring) {
        std::span<const Point> points = rings[ring];
        if (points.size() > 1 && points.front() == points.back()) {
            points = points.first(points.size() - 1); // some programs repeat the first point
        }
        if (points.size() < 3) {
            m_context.problems.Warn(
                m_ringNames.LineOf(ring),
                TextUtf8(Msg::PolygonLeftOut, Quoted(m_rings[ring]), points.size()));
        } else {
            Add(ring, points);
        }
    }
    m_polygons.attributes.Seal();
}

void InpPolygons::Add(std::uint32_t ring, std::span<const Point> points) {
    const std::string_view name = m_rings[ring];
    const std::uint32_t number = m_polygons.names.Add(name);
    PointLists& rings = m_polygons.rings;
    rings.points.insert(rings.points.end(), points.begin(), points.end());
    rings.offsets.push_back(static_cast<std::uint32_t>(rings.points.size()));
    if (const auto area = m_areaNames.Find(m_areas, name)) {
        for (const Attribute& attribute : m_areaAttributes.Of(*area)) {
            m_polygons.attributes.Add(number, attribute.name, attribute.text, attribute.number);
        }
    } else if (!m_nodes.Find(name)) { // storage units may have an outline, too
        m_context.problems.Warn(m_ringNames.LineOf(ring),
                                TextUtf8(Msg::PolygonOfUnknown, Quoted(name)));
    }
}

void ReadInpLabels(InpContext& context, const InpFileSection& section, LabelTable& labels) {
    ForEachRow(section, [&](std::uint32_t line, const InpColumns& columns) {
        if (!context.HasColumns(*section.rule, line, columns)) {
            return;
        }
        if (const auto place = context.Place(line, columns[0], columns[1])) {
            labels.texts.Add(columns[2]);
            labels.positions.push_back(*place);
        }
    });
}

void ReadInpTags(InpContext& context, const InpFileSection& section, const InpNodes& nodes,
                 const InpSections& sections, NetworkModel& model) {
    ForEachRow(section, [&](std::uint32_t line, const InpColumns& columns) {
        if (!context.HasColumns(*section.rule, line, columns)) {
            return;
        }
        const bool isNode = EqualNoCase(columns[0], "NODE");
        if (!isNode && !EqualNoCase(columns[0], "LINK")) {
            return; // belongs to a subcatchment or rain gage
        }
        const auto owner = isNode ? nodes.Find(columns[1]) : sections.Find(columns[1]);
        if (owner) {
            AttributeTable& table = isNode ? model.nodes.attributes : model.sections.attributes;
            context.AddAttribute(table, *owner, "Tag", columns[2]);
        } else {
            context.problems.Warn(
                line, TextUtf8(isNode ? Msg::TagOfUnknownNode : Msg::TagOfUnknownSection,
                               Quoted(columns[1])));
        }
    });
}

} // namespace Orvane::Network
