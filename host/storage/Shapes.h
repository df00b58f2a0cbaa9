// Geometries of files as the plain shapes that a drawing has, and the way back.
#pragma once

#include <span>
#include <vector>

#include "platform/arx/DbEntity.h"

class OGRFeature;
class OGRGeometry;

namespace Tessaly {

/// Positions beyond this, or not finite, are no places on earth in any unit: they are what
/// broken files hold.
inline constexpr double kFarthest = 1e15;

inline bool IsPlace(double ordinate) {
    return ordinate >= -kFarthest && ordinate <= kFarthest;
}
/// A position that a drawing may hold; its height may be unknown.
inline bool IsPlace(const AcGePoint3d& point) {
    return IsPlace(point.x) && IsPlace(point.y) && (IsPlace(point.z) || point.z != point.z);
}
/// The same place, where two unknown heights are the same.
inline bool IsSamePlace(const AcGePoint3d& a, const AcGePoint3d& b) {
    return a.x == b.x && a.y == b.y && (a.z == b.z || (a.z != a.z && b.z != b.z));
}

/// Takes the shapes of one geometry. What it is given is valid during the call.
class IShapeSink {
public:
    virtual ~IShapeSink() = default;
    virtual void TakePoint(const AcGePoint3d& point) = 0;
    virtual void TakeLine(std::span<const AcGePoint3d> points) = 0;
    virtual void TakePolygon(std::vector<AcDbMPolygon::Ring> rings) = 0;
};

enum class ShapeResult {
    Taken,
    Empty,    ///< nothing is there to be drawn
    NotPlace, ///< a position that is none, or broken; the sink got nothing
};

/// Curves are stroked and measures dropped. Several points or lines in one geometry are as
/// many shapes; several polygons are one.
ShapeResult ReadShapes(const OGRGeometry& geometry, IShapeSink& sink);
/// The same from the bytes of a GeoPackage. No bytes are an empty geometry.
ShapeResult ReadShapes(std::span<const unsigned char> bytes, IShapeSink& sink);

// Geometry of a row, in the row's own object where it has one: rows are used again and
// again. Two-dimensional where no height is known.
void SetPoint(OGRFeature& row, const AcGePoint3d& point);
void SetLine(OGRFeature& row, std::span<const AcGePoint3d> points, bool repeatFirst);
void SetPolygon(OGRFeature& row, const std::vector<AcDbMPolygon::Ring>& rings);

} // namespace Tessaly
