// The parts of the reader, one for each network table. Each processes its file sections in Read, in
// the order defined in InpReader.cpp.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "plugins/common/NetworkGeometry.h"
#include "plugins/network/InpReaderContext.h"

namespace Orvane::Network {

class InpNodes {
public:
    InpNodes(InpContext& context, NodeTable& nodes) : m_context(context), m_nodes(nodes) {}

    void ReadNodes(const InpFileSection& section);
    void ReadCoordinates(const InpFileSection& section);
    /// Removes nodes without a position, with a warning for each. If no node has a position,
    /// records an error for the given line.
    void DropUnplaced(std::uint32_t coordinatesLine);

    std::optional<std::uint32_t> Find(std::string_view name) const {
        return m_names.Find(m_nodes.names, name);
    }

private:
    void Keep(const std::vector<std::uint32_t>& newNumbers, std::size_t count);

    InpContext& m_context;
    NodeTable& m_nodes;
    InpNames m_names;
};

class InpSections {
public:
    InpSections(InpContext& context, SectionTable& sections, const InpNodes& nodes)
        : m_context(context), m_sections(sections), m_nodes(nodes) {}

    void ReadSections(const InpFileSection& section);
    void ReadCrossSections(const InpFileSection& section);
    void ReadVertices(const InpFileSection& section);
    /// Call after all sections of the file have been read.
    void Finish();

    std::optional<std::uint32_t> Find(std::string_view name) const {
        return m_names.Find(m_sections.names, name);
    }

private:
    void ReadRow(const InpSectionRule& rule, std::uint32_t line, const InpColumns& columns);
    std::int32_t FindNode(std::uint32_t line, const InpColumns& columns, std::size_t column);
    double ReadSize(std::uint32_t line, Plugins::Msg what, const InpColumns& columns,
                    std::size_t column);
    void AddPumpAttributes(std::uint32_t number, const InpColumns& columns);

    InpContext& m_context;
    SectionTable& m_sections;
    const InpNodes& m_nodes;
    InpNames m_names;
    OwnedPoints m_vertices;
};

class InpPolygons {
public:
    InpPolygons(InpContext& context, PolygonTable& polygons, const InpNodes& nodes)
        : m_context(context), m_polygons(polygons), m_nodes(nodes) {}

    void ReadSubcatchments(const InpFileSection& section);
    void ReadRings(const InpFileSection& section);
    /// Call after all sections of the file have been read.
    void Finish();

private:
    void Add(std::uint32_t ring, std::span<const Point> points);

    InpContext& m_context;
    PolygonTable& m_polygons;
    const InpNodes& m_nodes;
    InpNames m_areaNames;
    TextColumn m_areas;
    AttributeTable m_areaAttributes;
    InpNames m_ringNames;
    TextColumn m_rings;
    OwnedPoints m_points;
};

void ReadInpLabels(InpContext& context, const InpFileSection& section, LabelTable& labels);

/// Adds the tags of nodes and sections as attributes.
void ReadInpTags(InpContext& context, const InpFileSection& section, const InpNodes& nodes,
                 const InpSections& sections, NetworkModel& model);

} // namespace Orvane::Network
