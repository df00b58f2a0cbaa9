#include "plugins/network/NetworkCheck.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <optional>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "plugins/network/NetworkCrossings.h"

namespace Orvane::Network {

namespace {

constexpr Point kNowhere{kNotStated, kNotStated};

constexpr std::array<std::string_view, kFindingKindCount> kKindNames = {
    "isolated nodes",       "coincident nodes",
    "zero-length sections", "sections that name a missing node",
    "parallel sections",    "crossings without a node"};

/// Counts all findings and keeps as many of each kind as are wanted.
class Findings {
public:
    explicit Findings(std::size_t mostListed) : m_mostListed(mostListed) {}

    void Add(const Finding& finding) {
        if (m_result.counts[static_cast<std::size_t>(finding.kind)]++ < m_mostListed) {
            m_result.findings.push_back(finding);
        }
    }
    CheckResult Take() { return std::move(m_result); }

private:
    std::size_t m_mostListed;
    CheckResult m_result;
};

void FindIsolatedNodes(const NetworkGeometry& geometry, Findings& findings) {
    std::vector<bool> isUsed(geometry.NodeCount(), false);
    for (const auto nodes : {geometry.startNodes, geometry.endNodes}) {
        for (const std::int32_t node : nodes) {
            if (node != kMissingNode) {
                isUsed[node] = true;
            }
        }
    }
    for (std::uint32_t node = 0; node < isUsed.size(); ++node) {
        if (!isUsed[node]) {
            findings.Add({FindingKind::IsolatedNode, node, kNoEntity, geometry.nodes[node]});
        }
    }
}

/// Nodes in a grid whose cells are as wide as the tolerance, so that a node has to be held
/// against those of the nine cells around it only. Since the nodes kept lie farther apart
/// than the tolerance, a cell holds few of them, however many nodes lie at one place.
class NodeGrid {
public:
    NodeGrid(std::span<const Point> nodes, double tolerance)
        : m_nodes(nodes), m_tolerance(tolerance), m_next(nodes.size(), kNoEntity) {}

    /// A node kept before that lies within the tolerance; else keeps this one.
    std::optional<std::uint32_t> FindOrKeep(std::uint32_t node) {
        const Cell cell = CellOf(m_nodes[node]);
        const int reach = m_tolerance > 0 ? 1 : 0;
        std::uint32_t found = kNoEntity;
        for (int i = -reach; i <= reach; ++i) {
            for (int j = -reach; j <= reach; ++j) {
                found = std::min(found, FindIn({cell.x + i, cell.y + j}, m_nodes[node]));
            }
        }
        if (found != kNoEntity) {
            return found;
        }
        const auto [first, isNew] = m_firsts.try_emplace(cell, node);
        if (!isNew) {
            m_next[node] = std::exchange(first->second, node);
        }
        return std::nullopt;
    }

private:
    struct Cell {
        double x = 0; ///< whole numbers, or the coordinate itself without a tolerance
        double y = 0;
        friend bool operator==(const Cell&, const Cell&) = default;
    };
    struct CellHash {
        std::size_t operator()(const Cell& cell) const {
            constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
            std::uint64_t hash = std::bit_cast<std::uint64_t>(cell.x) * kOdd;
            hash = (std::rotl(hash, 29) ^ std::bit_cast<std::uint64_t>(cell.y)) * kOdd;
            return hash ^ (hash >> 32);
        }
    };

    Cell CellOf(const Point& point) const {
        // Adding 0 turns -0 into 0, which is the same place with another bit pattern.
        if (m_tolerance > 0) {
            return {std::floor(point.x / m_tolerance) + 0.0,
                    std::floor(point.y / m_tolerance) + 0.0};
        }
        return {point.x + 0.0, point.y + 0.0};
    }

    std::uint32_t FindIn(const Cell& cell, const Point& point) const {
        const auto first = m_firsts.find({cell.x + 0.0, cell.y + 0.0});
        std::uint32_t found = kNoEntity;
        for (std::uint32_t at = first == m_firsts.end() ? kNoEntity : first->second;
             at != kNoEntity; at = m_next[at]) {
            const Point& kept = m_nodes[at];
            if (std::hypot(kept.x - point.x, kept.y - point.y) <= m_tolerance) {
                found = std::min(found, at);
            }
        }
        return found;
    }

    std::span<const Point> m_nodes;
    double m_tolerance;
    std::unordered_map<Cell, std::uint32_t, CellHash> m_firsts;
    std::vector<std::uint32_t> m_next; ///< the node kept before in the same cell
};

void FindCoincidentNodes(const NetworkGeometry& geometry, double tolerance, Findings& findings) {
    NodeGrid grid(geometry.nodes, std::isfinite(tolerance) ? std::max(tolerance, 0.0) : 0.0);
    for (std::uint32_t node = 0; node < geometry.NodeCount(); ++node) {
        if (!IsPlace(geometry.nodes[node])) {
            continue;
        }
        if (const auto earlier = grid.FindOrKeep(node)) {
            findings.Add({FindingKind::CoincidentNode, node, *earlier, geometry.nodes[node]});
        }
    }
}

bool HasBothNodes(const NetworkGeometry& geometry, std::size_t section) {
    return geometry.startNodes[section] != kMissingNode &&
           geometry.endNodes[section] != kMissingNode;
}

void FindZeroLengthSections(const NetworkGeometry& geometry, Findings& findings) {
    for (std::uint32_t section = 0; section < geometry.SectionCount(); ++section) {
        if (!HasBothNodes(geometry, section)) {
            continue;
        }
        std::optional<Point> first;
        std::size_t count = 0;
        bool isPoint = true;
        ForEachLinePoint(geometry, section, [&](const Point& point) {
            first = first.value_or(point);
            isPoint = isPoint && point == *first;
            ++count;
        });
        if (isPoint && count > 1) {
            findings.Add({FindingKind::ZeroLengthSection, section, kNoEntity, *first});
        }
    }
}

void FindMissingNodes(const NetworkGeometry& geometry, Findings& findings) {
    for (std::uint32_t section = 0; section < geometry.SectionCount(); ++section) {
        if (HasBothNodes(geometry, section)) {
            continue;
        }
        std::optional<Point> first;
        ForEachLinePoint(geometry, section,
                         [&](const Point& point) { first = first.value_or(point); });
        findings.Add({FindingKind::MissingNode, section, kNoEntity, first.value_or(kNowhere)});
    }
}

struct SectionEnds {
    std::int32_t low = 0;
    std::int32_t high = 0;
    std::uint32_t section = 0;
};

std::vector<SectionEnds> SortedEnds(const NetworkGeometry& geometry) {
    std::vector<SectionEnds> all;
    all.reserve(geometry.SectionCount());
    for (std::uint32_t section = 0; section < geometry.SectionCount(); ++section) {
        if (HasBothNodes(geometry, section)) {
            const auto [low, high] =
                std::minmax(geometry.startNodes[section], geometry.endNodes[section]);
            all.push_back({low, high, section});
        }
    }
    std::sort(all.begin(), all.end(), [](const SectionEnds& a, const SectionEnds& b) {
        return std::tie(a.low, a.high, a.section) < std::tie(b.low, b.high, b.section);
    });
    return all;
}

void FindParallelSections(const NetworkGeometry& geometry, Findings& findings) {
    std::vector<Finding> found;
    SectionEnds first{kMissingNode, kMissingNode, kNoEntity};
    for (const SectionEnds& ends : SortedEnds(geometry)) {
        if (ends.low != first.low || ends.high != first.high) {
            first = ends;
            continue;
        }
        found.push_back({FindingKind::ParallelSection, ends.section, first.section,
                         geometry.nodes[geometry.startNodes[ends.section]]});
    }
    std::ranges::sort(found, {}, &Finding::entity);
    std::ranges::for_each(found, [&](const Finding& finding) { findings.Add(finding); });
}

void FindCrossings(const NetworkGeometry& geometry, Findings& findings) {
    ForEachCrossing(geometry, [&](std::uint32_t section, std::uint32_t earlier, const Point& at) {
        findings.Add({FindingKind::Crossing, section, earlier, at});
    });
}

/// Ten digits tell a millimetre in coordinates of millions of metres.
std::string PlaceText(const Point& place) {
    char buffer[64];
    char* end = std::to_chars(buffer, buffer + 30, place.x, std::chars_format::general, 10).ptr;
    *end++ = ',';
    *end++ = ' ';
    end = std::to_chars(end, buffer + sizeof buffer, place.y, std::chars_format::general, 10).ptr;
    return {buffer, end};
}

std::string MissingNodeText(const Finding& finding, const INetworkNames& names) {
    const std::string start = names.MissingStart(finding.entity);
    const std::string end = names.MissingEnd(finding.entity);
    if (start.empty() && end.empty()) {
        return "lacks a node";
    }
    if (start.empty() || end.empty() || start == end) {
        return "names the missing node " + (start.empty() ? end : start);
    }
    return "names the missing nodes " + start + " and " + end;
}

std::string ReasonText(const Finding& finding, const INetworkNames& names) {
    switch (finding.kind) {
    case FindingKind::IsolatedNode:
        return "isolated node, no section starts or ends here";
    case FindingKind::CoincidentNode:
        return "coincident node, lies where " + names.NodeName(finding.other) + " lies";
    case FindingKind::ZeroLengthSection:
        return "zero-length section";
    case FindingKind::MissingNode:
        return MissingNodeText(finding, names);
    case FindingKind::ParallelSection:
        return "parallel section, joins the same nodes as " + names.SectionName(finding.other);
    case FindingKind::Crossing:
        return "crosses " + names.SectionName(finding.other) + " without a node at " +
               PlaceText(finding.place);
    }
    return {};
}

} // namespace

std::string_view KindName(FindingKind kind) {
    return kKindNames[static_cast<std::size_t>(kind)];
}

CheckResult CheckNetwork(const NetworkGeometry& geometry, const CheckOptions& options) {
    Findings findings(options.mostListed);
    FindIsolatedNodes(geometry, findings);
    FindCoincidentNodes(geometry, options.coincidenceTolerance, findings);
    FindZeroLengthSections(geometry, findings);
    FindMissingNodes(geometry, findings);
    FindParallelSections(geometry, findings);
    FindCrossings(geometry, findings);
    return findings.Take();
}

std::string FindingText(const Finding& finding, const INetworkNames& names) {
    const bool isNode =
        finding.kind == FindingKind::IsolatedNode || finding.kind == FindingKind::CoincidentNode;
    return (isNode ? names.NodeName(finding.entity) : names.SectionName(finding.entity)) + ": " +
           ReasonText(finding, names);
}

} // namespace Orvane::Network
