#include "plugins/repository/LongitudinalProfile.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <queue>

#include "platform/win/CodePage.h"
#include "platform/win/TextFormat.h"
#include "plugins/common/Texts.h"

namespace Orvane::Repository {

using Network::kMissingNode;
using Network::Point;

namespace {

double LengthOf(const NetworkGeometry& geometry, std::size_t section) {
    double length = 0;
    std::optional<Point> from;
    ForEachLinePoint(geometry, section, [&](const Point& point) {
        length += from ? std::hypot(point.x - from->x, point.y - from->y) : 0;
        from = point;
    });
    return length;
}

/// The sections at each node in one array; each section is listed at both ends.
class Neighbours {
public:
    explicit Neighbours(const NetworkGeometry& geometry)
        : m_geometry(geometry), m_offsets(geometry.NodeCount() + 1) {
        ForEachEnd([&](std::int32_t node, std::int32_t) { ++m_offsets[node + 1]; });
        for (std::size_t i = 1; i < m_offsets.size(); ++i) {
            m_offsets[i] += m_offsets[i - 1];
        }
        m_sections.resize(m_offsets.back());
        std::vector<std::size_t> next = m_offsets;
        ForEachEnd(
            [&](std::int32_t node, std::int32_t section) { m_sections[next[node]++] = section; });
    }
    std::span<const std::int32_t> Of(std::int32_t node) const {
        return std::span(m_sections)
            .subspan(m_offsets[node], m_offsets[node + 1] - m_offsets[node]);
    }

private:
    template <class Take>
    void ForEachEnd(Take take) {
        for (std::size_t i = 0; i < m_geometry.SectionCount(); ++i) {
            const std::int32_t start = m_geometry.startNodes[i];
            const std::int32_t end = m_geometry.endNodes[i];
            if (start != kMissingNode && end != kMissingNode) {
                take(start, static_cast<std::int32_t>(i));
                take(end, static_cast<std::int32_t>(i));
            }
        }
    }

    const NetworkGeometry& m_geometry;
    std::vector<std::size_t> m_offsets;
    std::vector<std::int32_t> m_sections;
};

constexpr double kFar = std::numeric_limits<double>::infinity();

/// How each node is reached from the start node.
struct Reached {
    std::vector<double> distance;
    std::vector<std::int32_t> by; ///< section, or kMissingNode
};

std::int32_t OtherEnd(const NetworkGeometry& geometry, std::int32_t section, std::int32_t node) {
    return geometry.startNodes[section] == node ? geometry.endNodes[section]
                                                : geometry.startNodes[section];
}

Reached ReachFrom(const NetworkGeometry& geometry, std::int32_t from, std::int32_t to) {
    const Neighbours neighbours(geometry);
    Reached reached{std::vector<double>(geometry.NodeCount(), kFar),
                    std::vector<std::int32_t>(geometry.NodeCount(), kMissingNode)};
    using Step = std::pair<double, std::int32_t>;
    std::priority_queue<Step, std::vector<Step>, std::greater<>> open;
    reached.distance[from] = 0;
    open.emplace(0, from);
    while (!open.empty() && open.top().second != to) {
        const auto [distance, node] = open.top();
        open.pop();
        if (distance > reached.distance[node]) {
            continue;
        }
        for (const std::int32_t section : neighbours.Of(node)) {
            const std::int32_t other = OtherEnd(geometry, section, node);
            const double way = distance + LengthOf(geometry, section);
            if (way < reached.distance[other]) {
                reached.distance[other] = way;
                reached.by[other] = section;
                open.emplace(way, other);
            }
        }
    }
    return reached;
}

std::optional<double> SlopeOf(const ProfileStation& from, const ProfileStation& to) {
    const bool hasInverts = from.invert && to.invert;
    const std::optional<double> low = hasInverts ? from.invert : from.ground;
    const std::optional<double> high = hasInverts ? to.invert : to.ground;
    const double length = to.chainage - from.chainage;
    return low && high && length > 0 ? std::optional((*high - *low) / length * 100) : std::nullopt;
}

std::wstring Cell(const std::optional<double>& number, int decimals) {
    return number ? FormatText(L"%.*f", decimals, *number) : std::wstring(L"-");
}

} // namespace

std::optional<NetworkPath> ShortestPath(const NetworkGeometry& geometry, std::int32_t from,
                                        std::int32_t to) {
    const Reached reached = ReachFrom(geometry, from, to);
    if (reached.distance[to] == kFar) {
        return std::nullopt;
    }
    NetworkPath path{{to}, {}, {reached.distance[to]}};
    for (std::int32_t node = to; node != from;) {
        const std::int32_t section = reached.by[node];
        node = OtherEnd(geometry, section, node);
        path.sections.push_back(section);
        path.nodes.push_back(node);
        path.chainages.push_back(reached.distance[node]);
    }
    std::reverse(path.nodes.begin(), path.nodes.end());
    std::reverse(path.sections.begin(), path.sections.end());
    std::reverse(path.chainages.begin(), path.chainages.end());
    return path;
}

std::vector<std::string> ProfileLines(const std::vector<ProfileStation>& stations) {
    const auto has = [&](auto member) {
        return std::any_of(stations.begin(), stations.end(),
                           [member](const ProfileStation& s) { return (s.*member).has_value(); });
    };
    const bool hasGround = has(&ProfileStation::ground);
    const bool hasInvert = has(&ProfileStation::invert);
    std::vector<std::string> lines;
    const auto add = [&](const std::wstring& chainage, const std::wstring& ground,
                         const std::wstring& invert, const std::wstring& slope,
                         const std::string& name) {
        std::wstring line = FormatText(L"%12s", chainage);
        line += hasGround ? FormatText(L"%11s", ground) : L"";
        line += hasInvert ? FormatText(L"%11s", invert) : L"";
        line += hasGround || hasInvert ? FormatText(L"%10s", slope) : L"";
        lines.push_back(WideToUtf8(line) + "  " + name);
    };
    using Plugins::Msg;
    using Plugins::Text;
    add(Text(Msg::Chainage).Str(), Text(Msg::Ground).Str(), Text(Msg::Invert).Str(),
        Text(Msg::Slope).Str() + L" %", Plugins::TextUtf8(Msg::NodeColumn));
    for (std::size_t i = 0; i < stations.size(); ++i) {
        const ProfileStation& at = stations[i];
        const auto slope = i > 0 ? SlopeOf(stations[i - 1], at) : std::nullopt;
        add(Cell(at.chainage, 2), Cell(at.ground, 2), Cell(at.invert, 2),
            i > 0 ? Cell(slope, 2) : L"", at.name);
    }
    return lines;
}

} // namespace Orvane::Repository
