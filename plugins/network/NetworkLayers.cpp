#include "plugins/network/NetworkLayers.h"

#include <algorithm>
#include <cmath>

#include "platform/arx/DbDatabase.h"
#include "platform/win/CodePage.h"
#include "plugins/common/Texts.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/networkcore/TopologyMultiStorage.h"

namespace Orvane::Network {

namespace {

using Kind = AcDbImportFeature::Kind;
using Topology::CTopologyStorage;

bool IsSameWord(std::string_view left, std::string_view right) {
    const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [&](char a, char b) { return upper(a) == upper(b); });
}

/// Text as is, integers as digits. Empty for values that cannot be a name.
std::string NameText(const AcDbValue& value) {
    const auto number = value.asInteger();
    return number ? std::to_string(*number) : std::string(value.asText());
}

/// The index of the first attribute with this name that can name an entity, or size().
std::size_t FindName(const AcDbAttributes& attributes, std::string_view word) {
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        if (IsSameWord(AcDbNameOf(attributes.at(i).name), word) &&
            !NameText(attributes.at(i).value).empty()) {
            return i;
        }
    }
    return attributes.size();
}

std::string_view OurSpelling(std::string_view name) {
    for (const std::string_view own : {kElevation, kDiameter, kStatedLength}) {
        if (IsSameWord(name, own)) {
            return own;
        }
    }
    return name;
}

/// An entity's description in the form that the storage expects.
class Prepared {
public:
    explicit Prepared(const AcDbImportFeature& feature) : description(feature) {
        for (const auto& [name, value] : description.attributes) {
            attributes.push_back({name, value});
        }
    }
    bool Has(std::string_view name) const {
        return std::any_of(attributes.begin(), attributes.end(),
                           [&](const auto& attribute) { return attribute.name == name; });
    }

    EntityDescription description;
    std::vector<Topology::AttributeData> attributes;
};

/// Entities from the same row share its name; all but the first get a number appended.
class RowNames {
public:
    std::string Next(const AcDbImportFeature& feature, const std::string& name) {
        const bool isSameRow =
            m_pLast && feature.row == m_pLast->row && &feature == m_pLast + 1 && !name.empty();
        m_nPart = isSameRow ? m_nPart + 1 : 1;
        m_pLast = &feature;
        return m_nPart > 1 ? name + " (" + std::to_string(m_nPart) + ")" : name;
    }

private:
    const AcDbImportFeature* m_pLast = nullptr;
    int m_nPart = 1;
};

std::vector<AcDbObjectId> AddNodes(CTopologyStorage& storage, System::CGisSystem& system,
                                   const LayerContents& contents, const SnapResult& snapped,
                                   ImportProgress& progress) {
    std::vector<AcDbObjectId> ids;
    ids.reserve(contents.points.size() + snapped.newNodes.size());
    RowNames names;
    for (const AcDbImportFeature* const pPoint : contents.points) {
        if (!progress.Added()) {
            return ids;
        }
        Prepared prepared(*pPoint);
        const AcGePoint3d& place = pPoint->points.front();
        if (std::isfinite(place.z) && !prepared.Has(kElevation)) {
            prepared.attributes.push_back({kElevation, place.z});
        }
        const std::string name = names.Next(*pPoint, prepared.description.name);
        ids.push_back(
            storage.AddNode(system, {name, place, prepared.description.kind, prepared.attributes}));
    }
    for (const AcGePoint3d& place : snapped.newNodes) {
        if (!progress.Added()) {
            return ids;
        }
        std::vector<Topology::AttributeData> attributes;
        if (std::isfinite(place.z)) {
            attributes.push_back({kElevation, place.z});
        }
        ids.push_back(storage.AddNode(system, {{}, place, {}, attributes}));
    }
    return ids;
}

void AddSections(CTopologyStorage& storage, System::CGisSystem& system,
                 const LayerContents& contents, const SnapResult& snapped,
                 const std::vector<AcDbObjectId>& nodes, ImportProgress& progress) {
    RowNames names;
    for (std::size_t i = 0; i < contents.lines.size() && progress.Added(); ++i) {
        const AcDbImportFeature& line = *contents.lines[i];
        const Prepared prepared(line);
        const std::string name = names.Next(line, prepared.description.name);
        const std::span<const AcGePoint3d> inner =
            line.points.size() > 2
                ? std::span<const AcGePoint3d>(line.points).subspan(1, line.points.size() - 2)
                : std::span<const AcGePoint3d>();
        storage.AddSection(system, {name,
                                    {nodes[snapped.ends[i][0]], {}, line.points.front().z},
                                    {nodes[snapped.ends[i][1]], {}, line.points.back().z},
                                    inner,
                                    prepared.description.kind,
                                    prepared.attributes});
    }
}

void AddPolygons(CTopologyStorage& storage, System::CGisSystem& system,
                 const LayerContents& contents, ImportProgress& progress) {
    RowNames names;
    for (const AcDbImportFeature* const pPolygon : contents.polygons) {
        if (!progress.Added()) {
            return;
        }
        const Prepared prepared(*pPolygon);
        const std::string name = names.Next(*pPolygon, prepared.description.name);
        storage.AddPolygon(system,
                           {name, pPolygon->rings, prepared.description.kind, prepared.attributes});
    }
}

} // namespace

LayerContents::LayerContents(const AcDbImportResult& result) {
    for (const AcDbImportLayer& layer : result.layers) {
        for (const AcDbImportFeature& feature : layer.features) {
            if (feature.kind == Kind::Polygon) {
                polygons.push_back(&feature);
            } else if (feature.kind == Kind::Point) {
                points.push_back(&feature);
                places.push_back(feature.points.front());
            } else {
                lines.push_back(&feature);
                ends.push_back({feature.points.front(), feature.points.back()});
            }
        }
    }
}

EntityDescription::EntityDescription(const AcDbImportFeature& feature) {
    const AcDbAttributes& all = feature.attributes;
    std::size_t nameAt = FindName(all, "NAME");
    if (nameAt == all.size()) {
        nameAt = FindName(all, "ID");
    }
    const std::size_t kindAt = FindName(all, "KIND");
    for (std::size_t i = 0; i < all.size(); ++i) {
        const AcDbAttributes::Item item = all.at(i);
        if (i == nameAt) {
            name = NameText(item.value);
        } else if (i == kindAt) {
            kind = NameText(item.value);
        } else {
            attributes.emplace_back(OurSpelling(AcDbNameOf(item.name)), item.value);
        }
    }
}

CString AddToDrawing(const LayerContents& contents, double tolerance, int systemFunction,
                     const CString& name, ImportedSystems& imported, LayerCounts& counts,
                     ImportProgress& progress) {
    imported = {};
    SystemsInMaking systems;
    CString reason =
        systems.Make(name, systemFunction, !contents.points.empty() || !contents.lines.empty(),
                     !contents.polygons.empty());
    if (!reason.IsEmpty()) {
        return reason;
    }
    const ImportedSystems made = systems.Systems();
    CTopologyStorage& storage = *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    if (made.pNetwork) {
        const SnapResult snapped = SnapEnds(contents.places, contents.ends, tolerance);
        progress.ExpectAdding(contents.points.size() + snapped.newNodes.size() +
                              contents.lines.size() + contents.polygons.size());
        const auto nodes = AddNodes(storage, *made.pNetwork, contents, snapped, progress);
        if (!progress.IsStopped()) {
            AddSections(storage, *made.pNetwork, contents, snapped, nodes, progress);
        }
        counts = {nodes.size(), snapped.newNodes.size(), contents.lines.size(), 0};
    }
    if (made.pPolygons) {
        AddPolygons(storage, *made.pPolygons, contents, progress);
        counts.polygons = contents.polygons.size();
    }
    if (progress.IsStopped()) {
        return Plugins::Text(Plugins::Msg::ImportStopped);
    }
    systems.Keep();
    imported = made;
    return {};
}

std::vector<CString> TakeCoordinateSystem(const AcDbImportResult& result, bool isFirst) {
    AcDbDatabase& database = *acdbHostApplicationServices()->workingDatabase();
    IDbImporter& importer = *acdbImporter();
    std::vector<CString> warnings;
    for (const AcDbImportLayer& layer : result.layers) {
        const CString own = database.coordinateSystem();
        if (layer.coordinateSystem.IsEmpty()) {
            continue;
        }
        if (own.IsEmpty() && isFirst) {
            database.setCoordinateSystem(layer.coordinateSystem);
        } else if (!importer.IsSameCoordinateSystem(own, layer.coordinateSystem)) {
            warnings.push_back(Plugins::Text(Plugins::Msg::OtherCoordinateSystem, layer.name,
                                             importer.CoordinateSystemName(layer.coordinateSystem),
                                             importer.CoordinateSystemName(own)));
        }
    }
    return warnings;
}

} // namespace Orvane::Network
