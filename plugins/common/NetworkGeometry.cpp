#include "plugins/common/NetworkGeometry.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Orvane::Network {

namespace {

constexpr std::array<std::string_view, kNodeKindCount> kNodeKindNames = {
    "Junction", "Reservoir", "Tank", "Outfall", "Storage", "Divider", "Other"};
constexpr std::array<std::string_view, kSectionKindCount> kSectionKindNames = {
    "Pipe", "Pump", "Valve", "Conduit", "Weir", "Orifice", "Outlet", "Other"};

/// The index of a word, or the last index, which is that of `Other`.
template <std::size_t N>
std::size_t PlaceOf(const std::array<std::string_view, N>& words, std::string_view word) {
    const auto found = std::find(words.begin(), words.end() - 1, word);
    return static_cast<std::size_t>(found - words.begin());
}

bool AreNodeNumbers(std::span<const std::int32_t> numbers, std::size_t nodeCount) {
    return std::all_of(numbers.begin(), numbers.end(), [nodeCount](std::int32_t number) {
        return number == kMissingNode ||
               (number >= 0 && static_cast<std::size_t>(number) < nodeCount);
    });
}

bool AreOffsetsSound(const NetworkGeometry& geometry) {
    const auto offsets = geometry.vertexOffsets;
    if (offsets.empty()) {
        return geometry.vertices.empty();
    }
    return offsets.size() == geometry.SectionCount() + 1 && offsets.front() == 0 &&
           offsets.back() == geometry.vertices.size() &&
           std::is_sorted(offsets.begin(), offsets.end());
}

template <class T>
bool HasLength(std::span<const T> optional, std::size_t length) {
    return optional.empty() || optional.size() == length;
}

} // namespace

std::string_view KindName(NodeKind kind) {
    return kNodeKindNames[static_cast<std::size_t>(kind)];
}

std::string_view KindName(SectionKind kind) {
    return kSectionKindNames[static_cast<std::size_t>(kind)];
}

NodeKind NodeKindOf(std::string_view name) {
    return static_cast<NodeKind>(PlaceOf(kNodeKindNames, name));
}

SectionKind SectionKindOf(std::string_view name) {
    return static_cast<SectionKind>(PlaceOf(kSectionKindNames, name));
}

bool IsPlace(const Point& point) {
    constexpr double kFarthest = 1e150; // its square is still finite
    return std::abs(point.x) <= kFarthest && std::abs(point.y) <= kFarthest;
}

std::string GeometryFault(const NetworkGeometry& geometry) {
    const std::size_t nodes = geometry.NodeCount();
    const std::size_t sections = geometry.SectionCount();
    if (geometry.endNodes.size() != sections) {
        return "the numbers of start and end nodes differ";
    }
    if (!AreNodeNumbers(geometry.startNodes, nodes) || !AreNodeNumbers(geometry.endNodes, nodes)) {
        return "a section refers to an invalid node number";
    }
    if (!AreOffsetsSound(geometry)) {
        return "the inner vertices do not fit the sections";
    }
    if (!HasLength(geometry.nodeKinds, nodes) || !HasLength(geometry.elevations, nodes)) {
        return "the kinds or elevations do not fit the nodes";
    }
    if (!HasLength(geometry.sectionKinds, sections) ||
        !HasLength(geometry.statedLengths, sections)) {
        return "the kinds or stated lengths do not fit the sections";
    }
    return {};
}

} // namespace Orvane::Network
