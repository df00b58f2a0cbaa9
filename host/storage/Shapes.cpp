#include "host/storage/Shapes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <memory>
#include <ogrsf_frmts.h>

namespace Tessaly {

namespace {

using Ring = AcDbMPolygon::Ring;

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

bool ReadPoints(const OGRSimpleCurve& curve, std::vector<AcGePoint3d>& points) {
    const int count = curve.getNumPoints();
    const bool hasHeight = curve.Is3D();
    points.resize(static_cast<std::size_t>(count));
    bool isGood = true;
    for (int i = 0; i < count; ++i) {
        AcGePoint3d& point = points[static_cast<std::size_t>(i)];
        point = {curve.getX(i), curve.getY(i), hasHeight ? curve.getZ(i) : kUnknown};
        isGood = isGood && IsPlace(point);
    }
    return isGood;
}

bool ReadRing(const OGRLinearRing& curve, bool isHole, std::vector<Ring>& rings) {
    Ring ring;
    ring.isHole = isHole;
    if (!ReadPoints(curve, ring.points)) {
        return false;
    }
    if (ring.points.size() > 1 && IsSamePlace(ring.points.front(), ring.points.back())) {
        ring.points.pop_back();
    }
    rings.push_back(std::move(ring));
    return true;
}

bool ReadRings(const OGRPolygon& polygon, std::vector<Ring>& rings) {
    if (!polygon.getExteriorRing()) {
        return true;
    }
    bool isGood = ReadRing(*polygon.getExteriorRing(), false, rings);
    for (int i = 0; isGood && i < polygon.getNumInteriorRings(); ++i) {
        isGood = ReadRing(*polygon.getInteriorRing(i), true, rings);
    }
    return isGood;
}

/// What a geometry of several parts is made of, before any of it is handed on.
struct Parts {
    std::vector<AcGePoint3d> points;
    std::vector<std::vector<AcGePoint3d>> lines;
    std::vector<std::vector<Ring>> polygons;
};

bool Collect(const OGRGeometry& geometry, Parts& parts);

template <class Collection>
bool CollectEach(const Collection& collection, Parts& parts) {
    for (const auto* pMember : collection) {
        if (!Collect(*pMember, parts)) {
            return false;
        }
    }
    return true;
}

bool CollectAreas(const OGRGeometry& geometry, Parts& parts) {
    std::vector<Ring> rings;
    bool isGood = true;
    if (wkbFlatten(geometry.getGeometryType()) == wkbMultiPolygon) {
        for (const OGRPolygon* pPolygon : *geometry.toMultiPolygon()) {
            isGood = isGood && ReadRings(*pPolygon, rings);
        }
    } else {
        isGood = ReadRings(*geometry.toPolygon(), rings);
    }
    if (!rings.empty()) {
        parts.polygons.push_back(std::move(rings));
    }
    return isGood;
}

bool CollectPoint(const OGRPoint& point, Parts& parts) {
    parts.points.push_back({point.getX(), point.getY(), point.Is3D() ? point.getZ() : kUnknown});
    return IsPlace(parts.points.back());
}

bool Collect(const OGRGeometry& geometry, Parts& parts) {
    if (geometry.IsEmpty()) {
        return true;
    }
    switch (wkbFlatten(geometry.getGeometryType())) {
    case wkbPoint:
        return CollectPoint(*geometry.toPoint(), parts);
    case wkbLineString:
        return ReadPoints(*geometry.toLineString(), parts.lines.emplace_back());
    case wkbPolygon:
    case wkbTriangle:
    case wkbMultiPolygon:
        return CollectAreas(geometry, parts);
    case wkbMultiPoint:
    case wkbMultiLineString:
    case wkbGeometryCollection:
        return CollectEach(*geometry.toGeometryCollection(), parts);
    case wkbPolyhedralSurface:
    case wkbTIN:
        return CollectEach(*geometry.toPolyhedralSurface(), parts);
    default:
        return true;
    }
}

ShapeResult ReadParts(const OGRGeometry& geometry, IShapeSink& sink) {
    Parts parts;
    if (!Collect(geometry, parts)) {
        return ShapeResult::NotPlace;
    }
    for (const AcGePoint3d& point : parts.points) {
        sink.TakePoint(point);
    }
    for (const std::vector<AcGePoint3d>& line : parts.lines) {
        sink.TakeLine(line);
    }
    for (std::vector<Ring>& rings : parts.polygons) {
        sink.TakePolygon(std::move(rings));
    }
    const bool isNothing = parts.points.empty() && parts.lines.empty() && parts.polygons.empty();
    return isNothing ? ShapeResult::Empty : ShapeResult::Taken;
}

bool HasHeight(std::span<const AcGePoint3d> points) {
    return std::any_of(points.begin(), points.end(),
                       [](const AcGePoint3d& point) { return point.z == point.z; });
}

/// The row's own geometry if it is of the type, else a new one in it.
template <class Geometry>
Geometry& Reused(OGRFeature& row) {
    const Geometry sample;
    OGRGeometry* pOld = row.GetGeometryRef();
    if (!pOld || wkbFlatten(pOld->getGeometryType()) != sample.getGeometryType()) {
        row.SetGeometryDirectly(new Geometry);
    }
    return *static_cast<Geometry*>(row.GetGeometryRef());
}

void FillCurve(OGRSimpleCurve& curve, std::span<const AcGePoint3d> points, bool repeatFirst,
               bool hasHeight) {
    const std::size_t count = points.size() + (repeatFirst && !points.empty() ? 1 : 0);
    curve.set3D(hasHeight);
    curve.setNumPoints(static_cast<int>(count), FALSE);
    for (std::size_t i = 0; i < count; ++i) {
        const AcGePoint3d& point = points[i == points.size() ? 0 : i];
        if (hasHeight) {
            curve.setPoint(static_cast<int>(i), point.x, point.y, point.z);
        } else {
            curve.setPoint(static_cast<int>(i), point.x, point.y);
        }
    }
}

/// Size of what a GeoPackage puts before a geometry; 0 if it is broken.
std::size_t HeaderSize(std::span<const unsigned char> bytes) {
    constexpr std::array<std::size_t, 8> kEnvelopes = {0, 32, 48, 48, 64, 0, 0, 0};
    constexpr std::size_t kFixed = 8;
    if (bytes.size() < kFixed || bytes[0] != 'G' || bytes[1] != 'P') {
        return 0;
    }
    const std::size_t size = kFixed + kEnvelopes[bytes[3] >> 1 & 7];
    return size < bytes.size() ? size : 0;
}

enum class Simple { None, Point, Line };

/// Points and lines in the byte order that nearly all files have are read here, the rest is
/// left to GDAL.
Simple ReadSimple(std::span<const unsigned char> wkb, std::vector<AcGePoint3d>& points) {
    static_assert(std::endian::native == std::endian::little);
    const auto number = [&](std::size_t at) {
        std::uint32_t value = 0;
        std::memcpy(&value, wkb.data() + at, sizeof value);
        return value;
    };
    constexpr std::size_t kTypeEnd = 5;
    if (wkb.size() < kTypeEnd || wkb[0] != wkbNDR) {
        return Simple::None;
    }
    const std::uint32_t type = number(1);
    const bool hasHeight = type == 1001 || type == 1002;
    const bool isPoint = type == wkbPoint || type == 1001;
    if (!isPoint && type != wkbLineString && type != 1002) {
        return Simple::None;
    }
    const std::size_t start = isPoint ? kTypeEnd : kTypeEnd + 4;
    const std::size_t pointSize = (hasHeight ? 3 : 2) * sizeof(double);
    if (wkb.size() < start || (!isPoint && number(kTypeEnd) > (wkb.size() - start) / pointSize) ||
        (isPoint && wkb.size() - start < pointSize)) {
        return Simple::None;
    }
    points.resize(isPoint ? 1 : number(kTypeEnd));
    const unsigned char* pNext = wkb.data() + start;
    for (AcGePoint3d& point : points) {
        std::array<double, 3> ordinates{0, 0, kUnknown};
        std::memcpy(ordinates.data(), pNext, pointSize);
        point = {ordinates[0], ordinates[1], ordinates[2]};
        pNext += pointSize;
    }
    return isPoint ? Simple::Point : Simple::Line;
}

bool AllPlaces(std::span<const AcGePoint3d> points) {
    return std::all_of(points.begin(), points.end(),
                       [](const AcGePoint3d& point) { return IsPlace(point); });
}

} // namespace

ShapeResult ReadShapes(const OGRGeometry& geometry, IShapeSink& sink) {
    if (geometry.IsEmpty()) {
        return ShapeResult::Empty;
    }
    const OGRwkbGeometryType type = wkbFlatten(geometry.getGeometryType());
    // The two that nearly all rows have go without a detour.
    if (type == wkbPoint) {
        const auto& point = static_cast<const OGRPoint&>(geometry);
        const AcGePoint3d place{point.getX(), point.getY(), point.Is3D() ? point.getZ() : kUnknown};
        if (!IsPlace(place)) {
            return ShapeResult::NotPlace;
        }
        sink.TakePoint(place);
        return ShapeResult::Taken;
    }
    if (type == wkbLineString) {
        static thread_local std::vector<AcGePoint3d> points;
        if (!ReadPoints(static_cast<const OGRLineString&>(geometry), points)) {
            return ShapeResult::NotPlace;
        }
        sink.TakeLine(points);
        return ShapeResult::Taken;
    }
    if (geometry.hasCurveGeometry()) {
        // Looked at before: arcs through impossible places are no work to be done.
        OGREnvelope box;
        geometry.getEnvelope(&box);
        if (!IsPlace(box.MinX) || !IsPlace(box.MinY) || !IsPlace(box.MaxX) || !IsPlace(box.MaxY)) {
            return ShapeResult::NotPlace;
        }
        const std::unique_ptr<OGRGeometry> stroked(geometry.getLinearGeometry());
        return stroked ? ReadParts(*stroked, sink) : ShapeResult::NotPlace;
    }
    return ReadParts(geometry, sink);
}

ShapeResult ReadShapes(std::span<const unsigned char> bytes, IShapeSink& sink) {
    if (bytes.empty()) {
        return ShapeResult::Empty;
    }
    const std::size_t header = HeaderSize(bytes);
    if (header == 0) {
        return ShapeResult::NotPlace;
    }
    const std::span<const unsigned char> wkb = bytes.subspan(header);
    static thread_local std::vector<AcGePoint3d> points;
    switch (ReadSimple(wkb, points)) {
    case Simple::Point:
        if (!AllPlaces(points)) {
            return points[0].x != points[0].x ? ShapeResult::Empty : ShapeResult::NotPlace;
        }
        sink.TakePoint(points[0]);
        return ShapeResult::Taken;
    case Simple::Line:
        if (points.empty() || !AllPlaces(points)) {
            return points.empty() ? ShapeResult::Empty : ShapeResult::NotPlace;
        }
        sink.TakeLine(points);
        return ShapeResult::Taken;
    default:
        break;
    }
    OGRGeometry* pGeometry = nullptr;
    // A broken geometry is one row's damage; reported as an error it would be the file's.
    CPLPushErrorHandler(CPLQuietErrorHandler);
    const OGRErr result =
        OGRGeometryFactory::createFromWkb(wkb.data(), nullptr, &pGeometry, wkb.size());
    CPLPopErrorHandler();
    CPLErrorReset();
    const std::unique_ptr<OGRGeometry> geometry(pGeometry);
    return result == OGRERR_NONE && geometry ? ReadShapes(*geometry, sink) : ShapeResult::NotPlace;
}

void SetPoint(OGRFeature& row, const AcGePoint3d& point) {
    auto& geometry = Reused<OGRPoint>(row);
    geometry.setX(point.x);
    geometry.setY(point.y);
    if (point.z == point.z) {
        geometry.setZ(point.z);
    } else {
        geometry.flattenTo2D();
    }
}

void SetLine(OGRFeature& row, std::span<const AcGePoint3d> points, bool repeatFirst) {
    FillCurve(Reused<OGRLineString>(row), points, repeatFirst, HasHeight(points));
}

void SetPolygon(OGRFeature& row, const std::vector<AcDbMPolygon::Ring>& rings) {
    const bool hasHeight = std::any_of(rings.begin(), rings.end(),
                                       [](const Ring& ring) { return HasHeight(ring.points); });
    auto areas = std::make_unique<OGRMultiPolygon>();
    std::unique_ptr<OGRPolygon> polygon;
    for (const Ring& ring : rings) {
        if (polygon && !ring.isHole) {
            areas->addGeometryDirectly(polygon.release());
        }
        if (!polygon) {
            polygon = std::make_unique<OGRPolygon>();
        }
        auto curve = std::make_unique<OGRLinearRing>();
        FillCurve(*curve, ring.points, true, hasHeight);
        polygon->addRingDirectly(curve.release());
    }
    if (polygon) {
        areas->addGeometryDirectly(polygon.release());
    }
    areas->set3D(hasHeight);
    row.SetGeometryDirectly(areas.release());
}

} // namespace Tessaly
