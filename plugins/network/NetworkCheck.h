// Finds faults in a network's geometry and topology.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "plugins/common/NetworkGeometry.h"

namespace Orvane::Network {

enum class FindingKind : std::uint8_t {
    IsolatedNode,      ///< no section starts or ends at the node
    CoincidentNode,    ///< the node coincides with an earlier node
    ZeroLengthSection, ///< all points of the drawn line are the same
    MissingNode,       ///< the section names a node that does not exist
    ParallelSection,   ///< the section connects the same two nodes as an earlier one
    Crossing           ///< two drawn lines cross without a node
};
inline constexpr std::size_t kFindingKindCount = 6;

inline constexpr std::uint32_t kNoEntity = 0xFFFFFFFF;

/// `entity` and `other` are node numbers for the first two kinds, section numbers for the others.
struct Finding {
    FindingKind kind = FindingKind::IsolatedNode;
    std::uint32_t entity = 0;
    std::uint32_t other = kNoEntity; ///< the earlier entity of a pair, or kNoEntity
    Point place;                     ///< position to show; NaN for a section without a position
};

struct CheckOptions {
    /// Two nodes coincide if they are at most this far apart, in drawing units. 0 requires equal
    /// positions.
    double coincidenceTolerance = 0;
    /// Limit of listed findings per kind; all are counted. A finding takes 32 bytes.
    std::size_t mostListed = 1'000'000;
};

/// How findings are counted, so that a fault that occurs n times takes n lines:
/// - Of k nodes at one position, all but the first give a finding that names the first. With a
///   tolerance, each node is compared with the nodes without a finding, so of two nodes close
///   together at least one is reported.
/// - Of k sections between the same two nodes, in either direction, all but the first give a
///   finding that names the first. Sections with a missing node are not compared.
/// - A section that names two missing nodes gives one finding.
/// - Two sections whose lines cross give one finding, however often they cross. They cross where
///   one passes from one side of the other to its other side, inside a segment or at a vertex;
///   sharing a node elsewhere makes no difference. Lines that only touch, end on each other or
///   overlap for a stretch do not cross there. A section that crosses itself gives no finding.
struct CheckResult {
    std::vector<Finding> findings; ///< by kind, then in the order of the entities
    std::array<std::size_t, kFindingKindCount> counts{}; ///< by FindingKind

    std::size_t Count(FindingKind kind) const { return counts[static_cast<std::size_t>(kind)]; }
};

/// Takes O(n log n), plus one step for each pair of segments whose bounding boxes intersect: few in
/// a network drawn to be read, but n squared if all n coincide. Crossings are decided exactly.
/// Requires valid arrays, see GeometryFault.
CheckResult CheckNetwork(const NetworkGeometry& geometry, const CheckOptions& options = {});

/// One line that starts with the entity's name, such as "P-520: crosses P-1033 without a node at
/// 5737102.4, 3850011.9". UTF-8.
std::string FindingText(const Finding& finding, const INetworkNames& names);

} // namespace Orvane::Network
