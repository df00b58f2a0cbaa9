// Spatial search over the entities of a drawing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <type_traits>
#include <vector>

#include "siblings/giscoreadds/Api.h"

namespace Orvane::Selection {

/// An axis-aligned rectangle in drawing units, borders included. A box whose corners coincide is
/// a point.
struct Box {
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;
};

/// A box and the caller's number for its contents. Numbers may repeat: it is better to enter a
/// long entity as several short boxes than as one that covers half the drawing.
struct BoxEntry {
    Box box;
    std::uint32_t id = 0;
};

/// An immutable packed tree of boxes, built once in O(n log n). Safe to search from several
/// threads. Owns copies of the boxes only.
class GISCOREADDS_API CSpatialIndex {
public:
    struct Hit {
        std::uint32_t id = 0;
        double distance = 0; ///< drawing units, from the point to the nearest edge of the box
    };

    CSpatialIndex();
    /// Skips entries with non-finite or swapped corners.
    explicit CSpatialIndex(std::span<const BoxEntry> entries);
    ~CSpatialIndex();
    CSpatialIndex(CSpatialIndex&& other) noexcept;
    CSpatialIndex& operator=(CSpatialIndex&& other) noexcept;

    std::size_t Size() const;

    /// Calls visit(id) for every entry whose box meets `box`, borders included, in no
    /// particular order.
    template <class Visitor>
    void Query(const Box& box, Visitor&& visit) const {
        QueryThrough(
            box,
            [](void* visitor, std::uint32_t id) {
                (*static_cast<std::remove_reference_t<Visitor>*>(visitor))(id);
            },
            const_cast<void*>(static_cast<const void*>(std::addressof(visit))));
    }

    /// The entries nearest to a point, nearest first: at most `count`, and none farther away than
    /// `maxDistance`. If equally near entries exceed `count`, which ones are returned is
    /// unspecified.
    std::vector<Hit> Nearest(double x, double y, double maxDistance, std::size_t count) const;
    std::optional<Hit> Nearest(double x, double y, double maxDistance) const;

private:
    struct Tree;
    using Callback = void (*)(void* visitor, std::uint32_t id);
    void QueryThrough(const Box& box, Callback callback, void* visitor) const;

    std::unique_ptr<const Tree> m_tree;
};

} // namespace Orvane::Selection
