// Spatial index of the polygons of the current drawing.
#pragma once

#include <memory>
#include <vector>

#include "platform/arx/DbObject.h"
#include "siblings/giscoreadds/SpatialIndex.h"

namespace Orvane::Selection {

/// Index entry of one polygon.
struct PolygonIndexEntry {
    AcDbObjectId id;
    int systemId = 0;
    Box box;
};

/// Built on the first query, and rebuilt on the next one after the drawing or its polygons have
/// changed; results are valid until then. Main thread only.
class GISCOREADDS_API CPolygonIndex {
public:
    /// Lives to the end of the process.
    static CPolygonIndex* Instance();

    /// Non-zero marks the index as out of date.
    void Changed(int changed);
    /// Builds the index now instead of on the next query. Non-zero forces a rebuild even if it is
    /// up to date.
    void BuildSTRTree(int rebuild);

    /// All polygons, ordered by id.
    const std::vector<PolygonIndexEntry>& GetPolygonIndex();
    /// Null if there is no such polygon.
    const PolygonIndexEntry* GetIndexEntry(AcDbObjectId id);

    /// Polygons whose bounding box meets a box, borders included, ordered by id.
    std::vector<AcDbObjectId> GetPolygonsInBox(const Box& box);
    /// Polygons that contain a point, borders included within floating-point precision.
    std::vector<AcDbObjectId> GetPolygonsAt(double x, double y);
    /// The polygon whose outline or area is nearest to a point, at most `maxDistance` away; a
    /// null id if there is none.
    AcDbObjectId GetNearestPolygon(double x, double y, double maxDistance);

private:
    CPolygonIndex() = default;
    void Build();

    std::vector<PolygonIndexEntry> m_entries;
    std::unique_ptr<CSpatialIndex> m_pIndex;
    std::uint64_t m_nBuiltFor = 0; ///< change stamp of the storage
};

} // namespace Orvane::Selection
