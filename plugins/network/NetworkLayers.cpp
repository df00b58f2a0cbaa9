#include "plugins/network/NetworkLayers.h"

#include <algorithm>
#include <cmath>

#include "platform/arx/DbDatabase.h"
#include "platform/win/CodePage.h"
#include "siblings/giscore/GisSystem.h"
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

/// A text, or a whole number as one. Empty for what is no name.
std::string NameText(const AcDbValue& value) {
    const auto number = value.asInteger();
    return number ? std::to_string(*number) : std::string(value.asText());
}

/// Index of the first attribute of a word that is of use as a name; size() if there is none.
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

/// An entity's description in the shape that the storage wants.
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

/// Several entities of one row have its name; further ones are numbered.
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
                                   const LayerContents& contents, const SnapResult& snapped) {
    std::vector<AcDbObjectId> ids;
    ids.reserve(contents.points.size() + snapped.newNodes.size());
    RowNames names;
    for (const AcDbImportFeature* const pPoint : contents.points) {
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
                 const std::vector<AcDbObjectId>& nodes) {
    RowNames names;
    for (std::size_t i = 0; i < contents.lines.size(); ++i) {
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
                 const LayerContents& contents) {
    RowNames names;
    for (const AcDbImportFeature* const pPolygon : contents.polygons) {
        const Prepared prepared(*pPolygon);
        const std::string name = names.Next(*pPolygon, prepared.description.name);
        storage.AddPolygon(system,
                           {name, pPolygon->rings, prepared.description.kind, prepared.attributes});
    }
}

/// What a coordinate system is called in its own text; the text itself if it says nothing.
std::wstring_view SystemName(const CString& wkt) {
    const int begin = wkt.Find(L'"');
    const int end = begin < 0 ? -1 : wkt.Find(L'"', begin + 1);
    return end < 0 ? wkt.View()
                   : wkt.View().substr(static_cast<std::size_t>(begin) + 1,
                                       static_cast<std::size_t>(end - begin - 1));
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
                     const CString& name, ImportedSystems& imported, LayerCounts& counts) {
    imported = {};
    SystemsInMaking systems;
    const CString reason =
        systems.Make(name, systemFunction, !contents.points.empty() || !contents.lines.empty(),
                     !contents.polygons.empty());
    if (!reason.IsEmpty()) {
        return reason;
    }
    const ImportedSystems made = systems.Systems();
    CTopologyStorage& storage = *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    if (made.pNetwork) {
        const SnapResult snapped = SnapEnds(contents.places, contents.ends, tolerance);
        const auto nodes = AddNodes(storage, *made.pNetwork, contents, snapped);
        AddSections(storage, *made.pNetwork, contents, snapped, nodes);
        counts = {nodes.size(), snapped.newNodes.size(), contents.lines.size(), 0};
    }
    if (made.pPolygons) {
        AddPolygons(storage, *made.pPolygons, contents);
        counts.polygons = contents.polygons.size();
    }
    systems.Keep();
    imported = made;
    return {};
}

std::vector<CString> TakeCoordinateSystem(const AcDbImportResult& result, bool isFirst) {
    AcDbDatabase* const pDatabase = acdbHostApplicationServices()->workingDatabase();
    std::vector<CString> others;
    for (const AcDbImportLayer& layer : result.layers) {
        if (!pDatabase || layer.coordinateSystem.IsEmpty()) {
            continue;
        }
        if (pDatabase->coordinateSystem().IsEmpty() && isFirst) {
            pDatabase->setCoordinateSystem(layer.coordinateSystem);
        } else if (SystemName(pDatabase->coordinateSystem()) !=
                   SystemName(layer.coordinateSystem)) {
            others.push_back(layer.name);
        }
    }
    return others;
}

} // namespace Orvane::Network
