// Plain data from which network entities are created.
#pragma once

#include <span>
#include <string_view>

#include "platform/arx/DbEntity.h"

namespace Orvane::Topology {

/// A position in drawing units.
using Point = AcGePoint3d;

/// Marks an unknown height.
inline constexpr double kNoHeight = std::numeric_limits<double>::quiet_NaN();

// Input of CTopologyStorage::Add...; texts are UTF-8 and everything is copied.

/// A named value.
struct AttributeData {
    std::string_view name;
    AcDbValue value;
};

struct NodeData {
    std::string_view name;      ///< empty: chosen by the naming rules
    Point position;             ///< NaN: no position
    std::string_view kind = {}; ///< role in the network, such as "Tank"; may be empty
    std::span<const AttributeData> attributes = {};
};

/// Where a section ends: at a node, or, if that does not exist, at a name.
struct SectionEnd {
    AcDbObjectId node = {};
    std::string_view missingName = {}; ///< used only without a node
    double height = kNoHeight;         ///< of the line, if it differs from the node's
};

struct SectionData {
    std::string_view name; ///< empty: chosen by the naming rules
    SectionEnd start;
    SectionEnd end;
    std::span<const Point> innerVertices = {}; ///< from start to end
    std::string_view kind = {};
    std::span<const AttributeData> attributes = {};
};

struct PolygonData {
    std::string_view name; ///< empty: chosen by the naming rules
    std::span<const AcDbMPolygon::Ring> rings;
    std::string_view kind = {};
    std::span<const AttributeData> attributes = {};
};

struct TextData {
    std::string_view text;
    Point position;
};

} // namespace Orvane::Topology
