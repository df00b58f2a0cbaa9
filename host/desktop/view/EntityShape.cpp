#include "host/desktop/view/EntityShape.h"

#include <span>

namespace Tessaly {

namespace {

class PlaceRun {
public:
    explicit PlaceRun(std::vector<PlanePoint>& places) : m_places(places) {}

    void Add(const AcGePoint3d& point) {
        if (!IsShowable(point.x, point.y)) {
            LiftPen();
            return;
        }
        if (m_isPenUp && !m_places.empty()) {
            m_places.push_back(kPenUp);
        }
        m_isPenUp = false;
        m_places.push_back({point.x, point.y});
    }
    void LiftPen() { m_isPenUp = true; }

private:
    std::vector<PlanePoint>& m_places;
    bool m_isPenUp = false;
};

void AddLine(std::span<const AcGePoint3d> points, bool isClosed, PlaceRun& run) {
    for (const AcGePoint3d& point : points) {
        run.Add(point);
    }
    if (isClosed && points.size() > 1) {
        run.Add(points.front());
    }
}

/// Keeps the ring closed after dropping invalid points, because an open ring cannot be filled.
void AddRing(std::span<const AcGePoint3d> points, PlaceRun& run) {
    const AcGePoint3d* pFirst = nullptr;
    for (const AcGePoint3d& point : points) {
        if (IsShowable(point.x, point.y)) {
            pFirst = pFirst ? pFirst : &point;
            run.Add(point);
        }
    }
    if (pFirst) {
        run.Add(*pFirst);
        run.LiftPen();
    }
}

} // namespace

bool ReadShape(const AcDbEntity& entity, EntityShape& shape) {
    shape.places.clear();
    PlaceRun run(shape.places);
    // The classes are final, and comparing them is cheaper than a cast for each of millions.
    const AcRxClass* const pClass = entity.isA();
    if (pClass == AcDbPolyline::desc()) {
        const auto& line = static_cast<const AcDbPolyline&>(entity);
        shape.kind = ShapeKind::Line;
        AddLine(line.vertices(), line.isClosed(), run);
    } else if (pClass == AcDbMPolygon::desc()) {
        shape.kind = ShapeKind::Area;
        for (const AcDbMPolygon::Ring& ring : static_cast<const AcDbMPolygon&>(entity).rings()) {
            AddRing(ring.points, run);
        }
    } else if (pClass == AcDbPoint::desc()) {
        shape.kind = ShapeKind::Point;
        run.Add(static_cast<const AcDbPoint&>(entity).position());
    } else if (pClass == AcDbText::desc()) {
        shape.kind = ShapeKind::Text;
        run.Add(static_cast<const AcDbText&>(entity).position());
    }
    return !shape.places.empty();
}

AcGeExtents2d ExtentsOf(const EntityShape& shape) {
    AcGeExtents2d box;
    for (const PlanePoint& place : shape.places) {
        if (IsShowable(place.x)) {
            box.add({place.x, place.y});
        }
    }
    return box;
}

} // namespace Tessaly
