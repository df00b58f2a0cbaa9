// Plain data of networks: what entities are made from.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string_view>

namespace Orvane::Topology {

/// Names an entity of a drawing. Unique in the drawing over all kinds of entities and
/// not used again after an entity was removed.
using EntityId = std::uint32_t;
inline constexpr EntityId kNoEntity = 0;

/// Stands for a height that is not known.
inline constexpr double kNoHeight = std::numeric_limits<double>::quiet_NaN();

/// A place in drawing units.
struct Point {
    double x = 0;
    double y = 0;
    double z = kNoHeight;
};

// What the storage makes entities of. Texts are UTF-8. All of it is copied.

/// A named value: a number if there is one, else a text.
struct AttributeData {
    std::string_view name;
    std::string_view text;
    std::optional<double> number;
};

struct NodeData {
    std::string_view name; ///< empty: named by the name rules
    Point position;
    std::string_view kind = {}; ///< what it is in the network, as "Tank"; may be empty
    std::span<const AttributeData> attributes = {};
};

/// Where a section ends: at a node, or, where there is no such node, at a stated name.
struct SectionEnd {
    EntityId node = kNoEntity;
    std::string_view missingName = {}; ///< looked at only without a node
};

struct SectionData {
    std::string_view name; ///< empty: named by the name rules
    SectionEnd start;
    SectionEnd end;
    std::span<const Point> innerVertices = {}; ///< in the direction from start to end
    std::string_view kind = {};
    std::span<const AttributeData> attributes = {};
};

struct PolygonData {
    std::string_view name;       ///< empty: named by the name rules
    std::span<const Point> ring; ///< the first point is not repeated at the end
    std::string_view kind = {};
    std::span<const AttributeData> attributes = {};
};

struct TextData {
    std::string_view text;
    Point position;
};

/// An attribute's name in a storage, for reading it of many entities.
enum class AttributeName : std::uint32_t { Unknown = 0xFFFFFFFF };

} // namespace Orvane::Topology
