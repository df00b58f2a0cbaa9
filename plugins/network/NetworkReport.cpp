#include "plugins/network/NetworkReport.h"

#include <algorithm>

#include "platform/win/CodePage.h"
#include "platform/win/TextFormat.h"

namespace Orvane::Network {

namespace {

template <class... Args>
std::string Line(std::wstring_view format, const Args&... args) {
    return WideToUtf8(FormatText(format, args...));
}

/// "1043 Pipe, 13 Pump" in the order of the kinds.
template <class Kind, class Counts>
std::string KindCounts(const Counts& counts) {
    std::string text;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        if (counts[i] > 0) {
            text += text.empty() ? "" : ", ";
            text += Line(L"%u %s", counts[i], std::string(KindName(static_cast<Kind>(i))));
        }
    }
    return text.empty() ? text : " (" + text + ")";
}

std::string ExtentsLine(const Extents& extents) {
    return Line(L"  extents        %.2f, %.2f to %.2f, %.2f", extents.low.x, extents.low.y,
                extents.high.x, extents.high.y);
}

} // namespace

std::vector<std::string> StatisticsLines(const NetworkStatistics& statistics) {
    std::vector<std::string> lines = {
        Line(L"  nodes          %u%s", statistics.nodeCount,
             KindCounts<NodeKind>(statistics.nodesByKind)),
        Line(L"  sections       %u%s", statistics.sectionCount,
             KindCounts<SectionKind>(statistics.sectionsByKind)),
        Line(L"  drawn length   %.2f", statistics.drawnLength),
        Line(L"  stated length  %.2f, by %u sections", statistics.statedLength,
             statistics.sectionsWithStatedLength),
        Line(L"  components     %u, the largest of %u nodes", statistics.componentCount,
             statistics.largestComponentNodes),
    };
    if (const auto& extents = statistics.extents) {
        lines.push_back(ExtentsLine(*extents));
    }
    if (const auto& range = statistics.elevations) {
        lines.push_back(Line(L"  elevations     %.2f to %.2f", range->low, range->high));
    }
    return lines;
}

std::vector<std::string> PolygonLines(std::size_t count, std::span<const Point> points) {
    std::vector<std::string> lines = {Line(L"  polygons       %u", count)};
    if (!points.empty()) {
        const auto [west, east] = std::ranges::minmax(points, {}, &Point::x);
        const auto [south, north] = std::ranges::minmax(points, {}, &Point::y);
        lines.push_back(ExtentsLine({{west.x, south.y}, {east.x, north.y}}));
    }
    return lines;
}

std::string CheckSummary(const CheckResult& result) {
    std::string text;
    for (std::size_t i = 0; i < result.counts.size(); ++i) {
        if (result.counts[i] > 0) {
            text += text.empty() ? "" : ", ";
            text += Line(L"%s: %u", std::string(KindName(static_cast<FindingKind>(i))),
                         result.counts[i]);
        }
    }
    return text.empty() ? "no findings" : text;
}

} // namespace Orvane::Network
