// Search of drawing entities by place.
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

/// An upright rectangle in drawing units; its border belongs to it. A point is a box
/// whose two corners coincide.
struct Box {
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;
};

/// A box and the caller's number for what it bounds. Numbers may repeat: a long entity
/// is better entered as several short boxes than as one that covers half a drawing.
struct BoxEntry {
    Box box;
    std::uint32_t id = 0;
};

/// Boxes packed into a tree, for search by place. The tree is built once, in n log n,
/// and never changes; searching it from several threads is safe. It owns copies of the
/// boxes and nothing else.
class GISCOREADDS_API CSpatialIndex {
public:
    struct Hit {
        std::uint32_t id = 0;
        double distance = 0; ///< drawing units, from the point to the nearest edge of the box
    };

    CSpatialIndex();
    /// Entries with a corner that is not a finite number, or whose corners are swapped,
    /// are left out.
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

    /// The entries nearest to a point, nearest first. At most `count`, and none farther
    /// away than `maxDistance`; which of equally near ones fall off the end is open.
    std::vector<Hit> Nearest(double x, double y, double maxDistance, std::size_t count) const;
    std::optional<Hit> Nearest(double x, double y, double maxDistance) const;

private:
    struct Tree;
    using Callback = void (*)(void* visitor, std::uint32_t id);
    void QueryThrough(const Box& box, Callback callback, void* visitor) const;

    std::unique_ptr<const Tree> m_tree;
};

} // namespace Orvane::Selection
