#include "plugins/network/InpReaderContext.h"

#include <algorithm>
#include <cmath>

#include "platform/win/Number.h"

namespace Orvane::Network {

bool InpContext::HasColumns(const InpSectionRule& rule, std::uint32_t line,
                            const InpColumns& columns) {
    if (columns.size() >= rule.fewestColumns) {
        return true;
    }
    std::string reason = "the line of [";
    reason.append(rule.heading).append("] has ").append(std::to_string(columns.size()));
    reason.append(columns.size() == 1 ? " column" : " columns").append(", fewer than the ");
    reason.append(std::to_string(rule.fewestColumns)).append(" needed (");
    reason.append(rule.columns).append(")");
    problems.Fail(line, std::move(reason));
    return false;
}

std::optional<double> InpContext::Number(std::uint32_t line, std::string_view what,
                                         std::string_view text) {
    const std::optional<double> number = TextToReal(text);
    if (number && std::abs(*number) <= kLargestNumber) {
        return number;
    }
    std::string reason = "the ";
    reason.append(what).append(" ").append(Quoted(text));
    problems.Fail(line, reason.append(number ? " is larger than 1e15" : " is no number"));
    return std::nullopt;
}

std::optional<Point> InpContext::Place(std::uint32_t line, std::string_view x, std::string_view y) {
    const std::optional<double> first = Number(line, "x coordinate", x);
    const std::optional<double> second = Number(line, "y coordinate", y);
    return first && second ? std::optional(Point{*first, *second}) : std::nullopt;
}

void InpContext::AddAttributes(const InpSectionRule& rule, const InpColumns& columns,
                               std::uint32_t owner, AttributeTable& table) {
    const bool isOther = format == InpFormat::Swmm && !rule.swmmAttributes.empty();
    const auto names = isOther ? rule.swmmAttributes : rule.attributes;
    for (std::size_t i = 0; i < names.size() && rule.attributeColumn + i < columns.size(); ++i) {
        AddAttribute(table, owner, names[i], columns[rule.attributeColumn + i]);
    }
}

void InpContext::AddAttribute(AttributeTable& table, std::uint32_t owner, std::string_view name,
                              std::string_view text) {
    if (!text.empty()) {
        table.Add(owner, name, text, TextToReal(text));
    }
}

std::uint32_t InpNames::FindOrAdd(TextColumn& names, std::string_view name, std::uint32_t line) {
    if (const auto known = Find(names, name)) {
        return *known;
    }
    m_lines.push_back(line);
    return m_index.Insert(names, names.Add(name));
}

std::optional<std::uint32_t> InpNames::AddNew(TextColumn& names, std::string_view name,
                                              std::uint32_t line, std::string_view what,
                                              InpProblems& problems) {
    const std::size_t before = names.size();
    const std::uint32_t number = FindOrAdd(names, name, line);
    if (number == before) {
        return number;
    }
    std::string reason = "the ";
    reason.append(what).append(" ").append(Quoted(name)).append(" stands in line ");
    problems.Fail(line, reason.append(std::to_string(m_lines[number])).append(" already"));
    return std::nullopt;
}

PointLists OwnedPoints::Sorted(std::size_t ownerCount) const {
    PointLists lists;
    lists.offsets.assign(ownerCount + 1, 0);
    for (const auto& [owner, point] : m_points) {
        ++lists.offsets[owner + 1];
    }
    for (std::size_t i = 0; i < ownerCount; ++i) {
        lists.offsets[i + 1] += lists.offsets[i];
    }
    std::vector<std::uint32_t> next = lists.offsets;
    lists.points.resize(m_points.size());
    for (const auto& [owner, point] : m_points) {
        lists.points[next[owner]++] = point;
    }
    return lists;
}

} // namespace Orvane::Network
