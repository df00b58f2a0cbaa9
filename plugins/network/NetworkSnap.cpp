#include "plugins/network/NetworkSnap.h"

#include <cmath>
#include <utility>

#include "plugins/network/NodeGrid.h"
#include "siblings/giscoreadds/SpatialIndex.h"

namespace Orvane::Network {

namespace {

constexpr std::uint32_t kNone = kNoneNear;

/// The given nodes, any number of which may be close together.
class GivenNodes {
public:
    explicit GivenNodes(std::span<const AcGePoint3d> nodes) {
        // Of several at one position only the first is used.
        NodeGrid<AcGePoint3d> places(0);
        std::vector<Selection::BoxEntry> boxes;
        for (std::uint32_t i = 0; i < nodes.size(); ++i) {
            if (places.Nearest(nodes[i], 0) == kNone) {
                places.Add(nodes[i]);
                boxes.push_back({{nodes[i].x, nodes[i].y, nodes[i].x, nodes[i].y}, i});
            }
        }
        m_index = Selection::CSpatialIndex(boxes);
    }
    std::optional<Selection::CSpatialIndex::Hit> Nearest(const AcGePoint3d& place,
                                                         double tolerance) const {
        return m_index.Nearest(place.x, place.y, tolerance);
    }

private:
    Selection::CSpatialIndex m_index;
};

} // namespace

SnapResult SnapEnds(std::span<const AcGePoint3d> nodes, std::span<const LineEnds> lines,
                    double tolerance) {
    const GivenNodes given(nodes);
    const auto givenCount = static_cast<std::uint32_t>(nodes.size());
    NodeGrid<AcGePoint3d> made(tolerance);
    SnapResult result;
    result.ends.reserve(lines.size());
    for (const LineEnds& line : lines) {
        std::array<std::uint32_t, 2> ends{};
        for (const std::size_t i : {0, 1}) {
            const auto hit = given.Nearest(line[i], tolerance);
            std::uint32_t number =
                made.Nearest(line[i], hit ? std::min(hit->distance, tolerance) : tolerance);
            if (hit && (number == kNone || hit->distance <= made.DistanceTo(number, line[i]))) {
                ends[i] = hit->id;
                continue;
            }
            if (number == kNone) {
                number = made.Add(line[i]);
            } else if (std::isnan(made.Nodes()[number].z)) {
                made.Nodes()[number].z = line[i].z;
            }
            ends[i] = givenCount + number;
        }
        result.ends.push_back(ends);
    }
    result.newNodes = std::move(made.Nodes());
    return result;
}

double UsualTolerance(std::span<const AcGePoint3d> nodes, std::span<const LineEnds> lines) {
    AcGeExtents2d box;
    for (const AcGePoint3d& node : nodes) {
        box.add(node);
    }
    for (const LineEnds& line : lines) {
        box.add(line[0]);
        box.add(line[1]);
    }
    const double side = box.isEmpty() ? 0 : std::max(box.maxX - box.minX, box.maxY - box.minY);
    return side > 0 && std::isfinite(side) ? std::pow(10, std::floor(std::log10(side)) - 6) : 0;
}

} // namespace Orvane::Network
