// Polygons of the current drawing by place.
#pragma once

#include <memory>
#include <vector>

#include "platform/arx/DbObject.h"
#include "siblings/giscoreadds/SpatialIndex.h"

namespace Orvane::Selection {

/// What the index keeps of a polygon.
struct PolygonIndexEntry {
    AcDbObjectId id;
    int systemId = 0;
    Box box;
};

/// Built when somebody asks, and again when the drawing or its polygons have changed
/// since. What it returns is valid until then. Main thread only.
class GISCOREADDS_API CPolygonIndex {
public:
    /// Lives to the end of the process.
    static CPolygonIndex* Instance();

    /// Non-zero: what was built is not to be relied on any more.
    void Changed(int changed);
    /// Builds it now, so that the next question is not the one that waits. Non-zero: even if
    /// what was built still holds.
    void BuildSTRTree(int rebuild);

    /// All polygons, in the order of their ids.
    const std::vector<PolygonIndexEntry>& GetPolygonIndex();
    /// Null if there is no such polygon.
    const PolygonIndexEntry* GetIndexEntry(AcDbObjectId id);

    /// Polygons whose box meets a box, borders included, in the order of their ids.
    std::vector<AcDbObjectId> GetPolygonsInBox(const Box& box);
    /// Polygons that contain a point, borders included as far as numbers allow.
    std::vector<AcDbObjectId> GetPolygonsAt(double x, double y);
    /// The polygon whose outline or area is nearest to a point, at most `maxDistance` away;
    /// a null id if there is none.
    AcDbObjectId GetNearestPolygon(double x, double y, double maxDistance);

private:
    CPolygonIndex() = default;
    void Build();

    std::vector<PolygonIndexEntry> m_entries;
    std::unique_ptr<CSpatialIndex> m_pIndex;
    std::uint64_t m_nBuiltFor = 0; ///< the storage's change stamp
};

} // namespace Orvane::Selection
