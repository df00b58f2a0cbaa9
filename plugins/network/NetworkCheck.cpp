#include "plugins/network/NetworkCheck.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <tuple>
#include <utility>

#include "plugins/common/Texts.h"
#include "plugins/network/NetworkCrossings.h"
#include "plugins/network/NodeGrid.h"

namespace Orvane::Network {

using Plugins::Msg;
using Plugins::TextUtf8;

namespace {

constexpr Point kNowhere{kNotStated, kNotStated};

/// Counts all findings and keeps the first ones of each kind.
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

void FindCoincidentNodes(const NetworkGeometry& geometry, double tolerance, Findings& findings) {
    // Holds only nodes without a finding, so its points stay apart however many nodes coincide.
    NodeGrid<Point> grid(std::isfinite(tolerance) ? std::max(tolerance, 0.0) : 0.0);
    std::vector<std::uint32_t> kept; ///< node numbers by grid number
    for (std::uint32_t node = 0; node < geometry.NodeCount(); ++node) {
        const Point& place = geometry.nodes[node];
        if (!IsPlace(place)) {
            continue;
        }
        const std::uint32_t earlier = grid.FirstNear(place);
        if (earlier == kNoneNear) {
            grid.Add(place);
            kept.push_back(node);
        } else {
            findings.Add({FindingKind::CoincidentNode, node, kept[earlier], place});
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

/// Ten digits resolve millimetres in coordinates of millions of metres.
std::string PlaceText(const Point& place) {
    char buffer[64];
    char* end = std::to_chars(buffer, buffer + 30, place.x, std::chars_format::general, 10).ptr;
    *end++ = ',';
    *end++ = ' ';
    end = std::to_chars(end, buffer + sizeof buffer, place.y, std::chars_format::general, 10).ptr;
    return {buffer, end};
}

std::string MissingNodeText(const std::string& section, const Finding& finding,
                            const INetworkNames& names) {
    const std::string start = names.MissingStart(finding.entity);
    const std::string end = names.MissingEnd(finding.entity);
    if (start.empty() && end.empty()) {
        return TextUtf8(Msg::LacksNode, section);
    }
    if (start.empty() || end.empty() || start == end) {
        return TextUtf8(Msg::MissingNode, section, start.empty() ? end : start);
    }
    return TextUtf8(Msg::MissingNodes, section, start, end);
}

} // namespace

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
    const std::string entity =
        isNode ? names.NodeName(finding.entity) : names.SectionName(finding.entity);
    switch (finding.kind) {
    case FindingKind::IsolatedNode:
        return TextUtf8(Msg::IsolatedNode, entity);
    case FindingKind::CoincidentNode:
        return TextUtf8(Msg::CoincidentNode, entity, names.NodeName(finding.other));
    case FindingKind::ZeroLengthSection:
        return TextUtf8(Msg::ZeroLength, entity);
    case FindingKind::MissingNode:
        return MissingNodeText(entity, finding, names);
    case FindingKind::ParallelSection:
        return TextUtf8(Msg::ParallelSection, entity, names.SectionName(finding.other));
    case FindingKind::Crossing:
        return TextUtf8(Msg::Crossing, entity, names.SectionName(finding.other),
                        PlaceText(finding.place));
    }
    return {};
}

} // namespace Orvane::Network
