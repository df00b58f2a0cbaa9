#include "plugins/network/NetworkReport.h"

#include <algorithm>

#include "plugins/common/Texts.h"

namespace Orvane::Network {

using Plugins::Msg;
using Plugins::MsgAt;
using Plugins::Text;
using Plugins::TextUtf8;

namespace {

/// Labels with a column of values.
class Table {
public:
    template <class... Args>
    void Add(Msg label, Msg value, const Args&... args) {
        Add(label, Text(value, args...));
    }
    void Add(Msg label, const CString& value) { m_rows.emplace_back(Text(label), value); }

    std::vector<std::string> Lines() const {
        constexpr int kNarrowest = 13;
        int width = kNarrowest;
        for (const auto& [label, value] : m_rows) {
            width = std::max(width, label.GetLength());
        }
        std::vector<std::string> lines;
        for (const auto& [label, value] : m_rows) {
            lines.push_back(WideToUtf8(FormatText(L"  %-*s  %s", width, label, value)));
        }
        return lines;
    }

private:
    std::vector<std::pair<CString, CString>> m_rows;
};

Msg TitleOf(NodeKind kind) {
    return MsgAt(Msg::NodeKinds, static_cast<std::size_t>(kind));
}

Msg TitleOf(SectionKind kind) {
    return kind == SectionKind::Other ? Msg::OtherKind
                                      : MsgAt(Msg::SectionKinds, static_cast<std::size_t>(kind));
}

/// " (1043 Pipe, 13 Pump)", ordered by kind.
template <class Kind, class Counts>
CString KindCounts(const Counts& counts) {
    CString text;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        if (counts[i] > 0) {
            text.AppendFormat(L"%s%u %s", text.IsEmpty() ? L" (" : L", ", counts[i],
                              Text(TitleOf(static_cast<Kind>(i))));
        }
    }
    return text.IsEmpty() ? text : text + L")";
}

CString CountText(std::size_t count) {
    return CString(FormatText(L"%u", count));
}

void AddExtents(Table& table, const Extents& extents) {
    table.Add(Msg::Extents, Msg::ExtentsFromTo, extents.low.x, extents.low.y, extents.high.x,
              extents.high.y);
}

} // namespace

std::vector<std::string> StatisticsLines(const NetworkStatistics& statistics) {
    Table table;
    table.Add(Msg::Nodes,
              CountText(statistics.nodeCount) + KindCounts<NodeKind>(statistics.nodesByKind));
    table.Add(Msg::Sections, CountText(statistics.sectionCount) +
                                 KindCounts<SectionKind>(statistics.sectionsByKind));
    table.Add(Msg::DrawnLength, CString(FormatText(L"%.2f", statistics.drawnLength)));
    table.Add(Msg::StatedLength, Msg::StatedLengthOf, statistics.statedLength,
              statistics.sectionsWithStatedLength);
    table.Add(Msg::Components, Msg::ComponentCounts, statistics.componentCount,
              statistics.largestComponentNodes);
    if (const auto& extents = statistics.extents) {
        AddExtents(table, *extents);
    }
    if (const auto& range = statistics.elevations) {
        table.Add(Msg::Elevations, Msg::FromTo, range->low, range->high);
    }
    return table.Lines();
}

std::vector<std::string> PolygonLines(std::size_t count, std::span<const Point> points) {
    Table table;
    table.Add(Msg::Polygons, CountText(count));
    if (!points.empty()) {
        const auto [west, east] = std::ranges::minmax(points, {}, &Point::x);
        const auto [south, north] = std::ranges::minmax(points, {}, &Point::y);
        AddExtents(table, {{west.x, south.y}, {east.x, north.y}});
    }
    return table.Lines();
}

std::string CheckSummary(const CheckResult& result) {
    CString text;
    for (std::size_t i = 0; i < result.counts.size(); ++i) {
        if (result.counts[i] > 0) {
            text.AppendFormat(L"%s%s: %u", text.IsEmpty() ? L"" : L", ",
                              Text(MsgAt(Msg::FindingKinds, i)), result.counts[i]);
        }
    }
    return text.IsEmpty() ? TextUtf8(Msg::NoFindings) : WideToUtf8(text.View());
}

} // namespace Orvane::Network
