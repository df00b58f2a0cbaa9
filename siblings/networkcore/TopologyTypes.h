// Plain data of networks: what entities are made from.
#pragma once

#include <span>
#include <string_view>

#include "platform/arx/DbEntity.h"

namespace Orvane::Topology {

/// A place in drawing units.
using Point = AcGePoint3d;

/// Stands for a height that is not known.
inline constexpr double kNoHeight = std::numeric_limits<double>::quiet_NaN();

// What the storage makes entities of. Texts are UTF-8. All of it is copied.

/// A named value.
struct AttributeData {
    std::string_view name;
    AcDbValue value;
};

struct NodeData {
    std::string_view name;      ///< empty: named by the name rules
    Point position;             ///< not numbers: it has no place
    std::string_view kind = {}; ///< what it is in the network, as "Tank"; may be empty
    std::span<const AttributeData> attributes = {};
};

/// Where a section ends: at a node, or, where there is no such node, at a stated name.
struct SectionEnd {
    AcDbObjectId node = {};
    std::string_view missingName = {}; ///< looked at only without a node
    double height = kNoHeight;         ///< of the line, where it is not that of the node
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
    std::string_view name; ///< empty: named by the name rules
    std::span<const AcDbMPolygon::Ring> rings;
    std::string_view kind = {};
    std::span<const AttributeData> attributes = {};
};

struct TextData {
    std::string_view text;
    Point position;
};

} // namespace Orvane::Topology
