#include "plugins/network/NetworkGeometry.h"

#include <algorithm>
#include <cmath>

namespace Orvane::Network {

namespace {

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

bool IsPlace(const Point& point) {
    constexpr double kFarthest = 1e150; // its square is still a finite number
    return std::abs(point.x) <= kFarthest && std::abs(point.y) <= kFarthest;
}

NetworkGeometry GeometryOf(const NetworkModel& model) {
    NetworkGeometry geometry;
    geometry.nodes = model.nodes.positions;
    geometry.startNodes = model.sections.startNodes;
    geometry.endNodes = model.sections.endNodes;
    geometry.vertexOffsets = model.sections.innerVertices.offsets;
    geometry.vertices = model.sections.innerVertices.points;
    geometry.nodeKinds = model.nodes.kinds;
    geometry.elevations = model.nodes.elevations;
    geometry.sectionKinds = model.sections.kinds;
    geometry.statedLengths = model.sections.statedLengths;
    return geometry;
}

std::string GeometryFault(const NetworkGeometry& geometry) {
    const std::size_t nodes = geometry.NodeCount();
    const std::size_t sections = geometry.SectionCount();
    if (geometry.endNodes.size() != sections) {
        return "there are not as many end nodes as start nodes";
    }
    if (!AreNodeNumbers(geometry.startNodes, nodes) || !AreNodeNumbers(geometry.endNodes, nodes)) {
        return "a section has the number of a node that does not exist";
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

std::string ModelNames::NodeName(std::size_t node) const {
    return std::string(m_model.nodes.names[node]);
}

std::string ModelNames::SectionName(std::size_t section) const {
    return std::string(m_model.sections.names[section]);
}

std::string ModelNames::MissingStart(std::size_t section) const {
    return std::string(m_model.sections.MissingStart(section));
}

std::string ModelNames::MissingEnd(std::size_t section) const {
    return std::string(m_model.sections.MissingEnd(section));
}

} // namespace Orvane::Network
