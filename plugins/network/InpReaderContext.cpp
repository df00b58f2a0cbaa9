#include "plugins/network/InpReaderContext.h"

#include <algorithm>
#include <cmath>

#include "platform/win/Number.h"

namespace Orvane::Network {

using Plugins::Msg;
using Plugins::Text;
using Plugins::TextUtf8;

bool InpContext::HasColumns(const InpSectionRule& rule, std::uint32_t line,
                            const InpColumns& columns) {
    if (columns.size() >= rule.fewestColumns) {
        return true;
    }
    problems.Fail(line, TextUtf8(Msg::FewColumns, std::string(rule.heading), columns.size(),
                                 unsigned{rule.fewestColumns}, Text(rule.columns)));
    return false;
}

std::optional<double> InpContext::Number(std::uint32_t line, Msg what, std::string_view text) {
    const std::optional<double> number = TextToReal(text);
    if (number && std::abs(*number) <= kLargestNumber) {
        return number;
    }
    problems.Fail(
        line, TextUtf8(number ? Msg::TooLargeNumber : Msg::NotANumber, Text(what), Quoted(text)));
    return std::nullopt;
}

std::optional<Point> InpContext::Place(std::uint32_t line, std::string_view x, std::string_view y) {
    const std::optional<double> first = Number(line, Msg::XWord, x);
    const std::optional<double> second = Number(line, Msg::YWord, y);
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
                                              std::uint32_t line, Msg what, InpProblems& problems) {
    const std::size_t before = names.size();
    const std::uint32_t number = FindOrAdd(names, name, line);
    if (number == before) {
        return number;
    }
    problems.Fail(line, TextUtf8(Msg::NameTaken, Text(what), Quoted(name), m_lines[number]));
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
