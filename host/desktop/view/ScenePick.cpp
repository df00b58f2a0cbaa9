#include "host/desktop/view/ScenePick.h"

#include <algorithm>

#include "host/desktop/view/PathMeasure.h"

namespace Tessaly {

namespace {

AcGeExtents2d BoxAround(const PlanePoint& place, double reach) {
    return {place.x - reach, place.y - reach, place.x + reach, place.y + reach};
}

/// Finds the nearest item of several kinds, narrowing the search with each nearer one.
class NearestSearch {
public:
    NearestSearch(const DrawingScene& scene, const PlanePoint& place, double tolerance)
        : m_scene(scene), m_place(place), m_distance(tolerance) {
        Narrow();
    }

    void Look(ShapeKind kind) {
        const ItemStore& items = m_scene.Items(kind);
        // Starting near the point narrows the search early, so most blocks are skipped even if the
        // whole drawing is within the tolerance.
        if (const std::uint32_t nearest = NearestBlock(items); nearest < items.BlockCount()) {
            LookAt(items, nearest);
        }
        for (std::uint32_t block = 0; block < items.BlockCount(); ++block) {
            if (items.Block(block).Meets(m_box)) {
                LookAt(items, block);
            }
        }
    }
    AcDbObjectId Found() const { return m_found; }

private:
    /// Of the blocks within the tolerance, the one with the nearest farthest corner: its items are
    /// certainly near, unlike those of a large block around the point.
    std::uint32_t NearestBlock(const ItemStore& items) const {
        const FloatPoint place = m_scene.Relative(m_place);
        std::uint32_t nearest = items.BlockCount();
        float least = INFINITY;
        for (std::uint32_t block = 0; block < items.BlockCount(); ++block) {
            const FloatBox& box = items.Block(block);
            const float reach = std::max(place.x - box.minX, box.maxX - place.x) +
                                std::max(place.y - box.minY, box.maxY - place.y);
            if (reach < least && box.Meets(m_box)) {
                least = reach;
                nearest = block;
            }
        }
        return nearest;
    }

    void Narrow() { m_box = m_scene.Relative(BoxAround(m_place, m_distance)); }

    void LookAt(const ItemStore& items, std::uint32_t block) {
        for (std::uint32_t item = block * ItemStore::kBlockSize; item < items.BlockEnd(block);
             ++item) {
            const AcDbObjectId id(items.Id(item));
            if (!BoxOf(items.Places(item)).Meets(m_box) ||
                !m_scene.Looks()[items.Style(item)].isVisible || !m_scene.Shape(id, m_shape)) {
                continue;
            }
            const double distance = DistanceToPath(m_shape.places, m_place);
            if (distance < m_distance || (distance == m_distance && id > m_found)) {
                m_distance = distance;
                m_found = id;
                Narrow();
            }
        }
    }

    const DrawingScene& m_scene;
    PlanePoint m_place;
    double m_distance;
    FloatBox m_box;
    AcDbObjectId m_found;
    EntityShape m_shape;
};

AcDbObjectId AreaAround(const DrawingScene& scene, const PlanePoint& place) {
    const FloatBox box = scene.Relative(BoxAround(place, 0));
    const ItemStore& items = scene.Items(ShapeKind::Area);
    AcDbObjectId found;
    EntityShape shape;
    for (std::uint32_t block = 0; block < items.BlockCount(); ++block) {
        if (!items.Block(block).Meets(box)) {
            continue;
        }
        for (std::uint32_t item = block * ItemStore::kBlockSize; item < items.BlockEnd(block);
             ++item) {
            const AcDbObjectId id(items.Id(item));
            if (id > found && scene.Looks()[items.Style(item)].isVisible &&
                BoxOf(items.Places(item)).Meets(box) && scene.Shape(id, shape) &&
                IsInsideRings(shape.places, place)) {
                found = id;
            }
        }
    }
    return found;
}

bool IsMeant(const EntityShape& shape, const AcGeExtents2d& box, BoxPick mode) {
    if (mode == BoxPick::Whole) {
        return IsPathInBox(shape.places, box);
    }
    return PathMeetsBox(shape.places, box) ||
           (shape.kind == ShapeKind::Area && IsInsideRings(shape.places, {box.minX, box.minY}));
}

/// Excludes the border, so that rounding cannot change the result.
bool IsWellInside(const FloatBox& inner, const FloatBox& box) {
    return inner.minX > box.minX && inner.maxX < box.maxX && inner.minY > box.minY &&
           inner.maxY < box.maxY;
}

} // namespace

AcDbObjectId PickNearest(const DrawingScene& scene, const PlanePoint& place, double tolerance) {
    if (!scene.Database() || !IsShowable(place.x, place.y) || !(tolerance >= 0)) {
        return {};
    }
    NearestSearch spots(scene, place, tolerance);
    spots.Look(ShapeKind::Point);
    spots.Look(ShapeKind::Text);
    if (!spots.Found().isNull()) {
        return spots.Found();
    }
    NearestSearch lines(scene, place, tolerance);
    lines.Look(ShapeKind::Line);
    lines.Look(ShapeKind::Area);
    return lines.Found().isNull() ? AreaAround(scene, place) : lines.Found();
}

std::vector<AcDbObjectId> PickInBox(const DrawingScene& scene, const AcGeExtents2d& box,
                                    BoxPick mode) {
    std::vector<AcDbObjectId> ids;
    if (!scene.Database() || !IsShowable(box)) {
        return ids;
    }
    const FloatBox relative = scene.Relative(box);
    EntityShape shape;
    for (std::size_t kind = 0; kind < kShapeKinds; ++kind) {
        const ItemStore& items = scene.Items(static_cast<ShapeKind>(kind));
        for (std::uint32_t block = 0; block < items.BlockCount(); ++block) {
            if (!items.Block(block).Meets(relative)) {
                continue;
            }
            const bool isAllIn = IsWellInside(items.Block(block), relative);
            for (std::uint32_t item = block * ItemStore::kBlockSize; item < items.BlockEnd(block);
                 ++item) {
                const AcDbObjectId id(items.Id(item));
                if (scene.Looks()[items.Style(item)].isVisible &&
                    (isAllIn || (BoxOf(items.Places(item)).Meets(relative) &&
                                 scene.Shape(id, shape) && IsMeant(shape, box, mode)))) {
                    ids.push_back(id);
                }
            }
        }
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

} // namespace Tessaly
