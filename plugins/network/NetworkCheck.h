// Faults of a network that show in its geometry and its topology.
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
    CoincidentNode,    ///< the node lies where an earlier one lies
    ZeroLengthSection, ///< all points of the drawn line are one and the same
    MissingNode,       ///< the section names a node that does not exist
    ParallelSection,   ///< the section joins the same two nodes as an earlier one
    Crossing           ///< two drawn lines cross where there is no node
};
inline constexpr std::size_t kFindingKindCount = 6;

inline constexpr std::uint32_t kNoEntity = 0xFFFFFFFF;

/// `entity` and `other` are numbers of nodes for the two kinds of nodes, and numbers of
/// sections for the others.
struct Finding {
    FindingKind kind = FindingKind::IsolatedNode;
    std::uint32_t entity = 0;
    std::uint32_t other = kNoEntity; ///< the earlier entity of a pair; kNoEntity without one
    Point place;                     ///< where to look; NaN for a section that lies nowhere
};

struct CheckOptions {
    /// Two nodes coincide if they are no farther apart than this, in drawing units. 0 asks
    /// for equal positions.
    double coincidenceTolerance = 0;
    /// Findings listed of each kind; the counts go on. A finding takes 32 bytes.
    std::size_t mostListed = 1'000'000;
};

/// How findings are counted, so that a fault that is there n times costs n lines:
/// - Of k nodes at one place, all but the first give a finding that names the first. With
///   a tolerance each node is held against the nodes without a finding, so of two nodes
///   close to each other at least one is named.
/// - Of k sections between the same two nodes, in either direction, all but the first
///   give a finding that names the first. Sections with a missing node are not compared.
/// - A section that names two missing nodes gives one finding.
/// - Two sections whose lines cross give one finding, however often they cross. They cross
///   where one passes from one side of the other to its other side, in the middle of
///   segments or in a vertex of theirs; sharing a node elsewhere makes no difference. A
///   line that only touches, that ends on the other, or that lies upon it for a stretch,
///   does not cross it there. A section that crosses itself gives none.
struct CheckResult {
    std::vector<Finding> findings; ///< by kind, then in the order of the entities
    std::array<std::size_t, kFindingKindCount> counts{}; ///< by number of FindingKind

    std::size_t Count(FindingKind kind) const { return counts[static_cast<std::size_t>(kind)]; }
};

/// Takes n log n operations, and one for each two segments whose rectangles meet: few in
/// a network that is drawn to be read, but the square of n where all n lie upon each other.
/// The decision whether lines cross is exact. The arrays must be sound, see GeometryFault.
CheckResult CheckNetwork(const NetworkGeometry& geometry, const CheckOptions& options = {});

/// One line that begins with the entity's name, as
/// "P-520: crosses P-1033 without a node at 5737102.4, 3850011.9". UTF-8.
std::string FindingText(const Finding& finding, const INetworkNames& names);

} // namespace Orvane::Network
