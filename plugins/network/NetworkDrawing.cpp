#include "plugins/network/NetworkDrawing.h"

#include <algorithm>

#include "platform/win/CodePage.h"
#include "plugins/common/Texts.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/networkcore/TopologyMultiStorage.h"

namespace Orvane::Network {

namespace {

using Topology::AttributeData;
using Topology::CTopologyStorage;

void AddNumber(std::vector<AttributeData>& attributes, std::string_view name, double value) {
    if (value == value) {
        attributes.push_back({name, value});
    }
}

void AddOthers(std::vector<AttributeData>& attributes, const AttributeTable& table,
               std::size_t owner) {
    for (const Attribute& attribute : table.Of(static_cast<std::uint32_t>(owner))) {
        attributes.push_back({attribute.name, attribute.number ? AcDbValue(*attribute.number)
                                                               : AcDbValue(attribute.text)});
    }
}

Topology::Point Flat(const Point& point) {
    return {point.x, point.y};
}

std::vector<Topology::Point> Flat(std::span<const Point> points) {
    std::vector<Topology::Point> flat(points.size());
    std::transform(points.begin(), points.end(), flat.begin(),
                   [](const Point& point) { return Flat(point); });
    return flat;
}

std::vector<AcDbObjectId> AddNodes(CTopologyStorage& storage, System::CGisSystem& system,
                                   const NodeTable& nodes, ImportProgress& progress) {
    std::vector<AcDbObjectId> ids;
    ids.reserve(nodes.size());
    std::vector<AttributeData> attributes;
    for (std::size_t i = 0; i < nodes.size() && progress.Added(); ++i) {
        attributes.clear();
        AddNumber(attributes, kElevation, nodes.elevations[i]);
        AddOthers(attributes, nodes.attributes, i);
        const Topology::Point position{nodes.positions[i].x, nodes.positions[i].y,
                                       nodes.elevations[i]};
        ids.push_back(storage.AddNode(
            system, {nodes.names[i], position, KindName(nodes.kinds[i]), attributes}));
    }
    return ids;
}

void AddSections(CTopologyStorage& storage, System::CGisSystem& system,
                 const SectionTable& sections, const std::vector<AcDbObjectId>& nodeIds,
                 ImportProgress& progress) {
    const auto end = [&](std::int32_t node, std::string_view missingName) {
        return Topology::SectionEnd{node == kMissingNode ? AcDbObjectId() : nodeIds[node],
                                    missingName};
    };
    std::vector<AttributeData> attributes;
    for (std::size_t i = 0; i < sections.size() && progress.Added(); ++i) {
        attributes.clear();
        AddNumber(attributes, kDiameter, sections.diameters[i]);
        AddNumber(attributes, kStatedLength, sections.statedLengths[i]);
        AddOthers(attributes, sections.attributes, i);
        storage.AddSection(
            system, {sections.names[i], end(sections.startNodes[i], sections.MissingStart(i)),
                     end(sections.endNodes[i], sections.MissingEnd(i)),
                     Flat(sections.innerVertices[i]), KindName(sections.kinds[i]), attributes});
    }
}

void AddPolygons(CTopologyStorage& storage, System::CGisSystem& system,
                 const PolygonTable& polygons) {
    std::vector<AttributeData> attributes;
    std::vector<AcDbMPolygon::Ring> rings(1);
    for (std::size_t i = 0; i < polygons.size(); ++i) {
        attributes.clear();
        AddOthers(attributes, polygons.attributes, i);
        rings[0].points = Flat(polygons.rings[i]);
        storage.AddPolygon(system, {polygons.names[i], rings, {}, attributes});
    }
}

void AddLabels(CTopologyStorage& storage, System::CGisSystem& system, const LabelTable& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        storage.AddText(system, {labels.texts[i], Flat(labels.positions[i])});
    }
}

} // namespace

CString AddToDrawing(const NetworkModel& model, int systemFunction, const CString& name,
                     ImportedSystems& imported, ImportProgress& progress) {
    SystemsInMaking systems;
    CString reason = systems.Make(name, systemFunction, true, model.polygons.size() > 0);
    if (!reason.IsEmpty()) {
        return reason;
    }
    imported = systems.Systems();
    progress.ExpectAdding(model.nodes.size() + model.sections.size());
    CTopologyStorage& storage = *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    const std::vector<AcDbObjectId> nodeIds =
        AddNodes(storage, *imported.pNetwork, model.nodes, progress);
    if (!progress.IsStopped()) {
        AddSections(storage, *imported.pNetwork, model.sections, nodeIds, progress);
    }
    AddLabels(storage, *imported.pNetwork, model.labels);
    if (imported.pPolygons) {
        AddPolygons(storage, *imported.pPolygons, model.polygons);
    }
    if (progress.IsStopped()) {
        imported = {};
        return Plugins::Text(Plugins::Msg::ImportStopped);
    }
    systems.Keep();
    return {};
}

} // namespace Orvane::Network
