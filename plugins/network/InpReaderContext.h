// State shared by all parts of the reader while reading one file.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "plugins/common/Texts.h"
#include "plugins/network/InpReaderText.h"
#include "plugins/network/NetworkModel.h"

namespace Orvane::Network {

using InpColumns = std::vector<std::string_view>;

/// Converts columns into numbers and attributes, and records problems.
class InpContext {
public:
    InpProblems problems;
    InpFormat format = InpFormat::Epanet;

    /// Records an error and returns false if a line has fewer columns than its section requires.
    bool HasColumns(const InpSectionRule& rule, std::uint32_t line, const InpColumns& columns);

    /// The number in a column; records an error and returns nothing if it is not a number.
    std::optional<double> Number(std::uint32_t line, Plugins::Msg what, std::string_view text);
    /// The position in two columns.
    std::optional<Point> Place(std::uint32_t line, std::string_view x, std::string_view y);

    /// Adds the columns named by the rule as attributes of an entity. Their values may be of any
    /// type: some files have a word where others have a number.
    void AddAttributes(const InpSectionRule& rule, const InpColumns& columns, std::uint32_t owner,
                       AttributeTable& table);
    void AddAttribute(AttributeTable& table, std::uint32_t owner, std::string_view name,
                      std::string_view text);
};

/// Entity names with the lines that introduced them.
class InpNames {
public:
    std::optional<std::uint32_t> Find(const TextColumn& names, std::string_view name) const {
        return m_index.Find(names, name);
    }
    /// Adds a name unless it is known; returns its number either way.
    std::uint32_t FindOrAdd(TextColumn& names, std::string_view name, std::uint32_t line);
    /// Adds a name that must be new; otherwise records an error and returns nothing.
    std::optional<std::uint32_t> AddNew(TextColumn& names, std::string_view name,
                                        std::uint32_t line, Plugins::Msg what,
                                        InpProblems& problems);
    std::uint32_t LineOf(std::uint32_t number) const { return m_lines[number]; }

private:
    NameIndex m_index;
    std::vector<std::uint32_t> m_lines;
};

/// Points added in arbitrary order of their owners.
class OwnedPoints {
public:
    void Add(std::uint32_t owner, const Point& point) { m_points.emplace_back(owner, point); }
    /// Grouped by owner; each owner's points keep the order in which they were added.
    PointLists Sorted(std::size_t ownerCount) const;

private:
    std::vector<std::pair<std::uint32_t, Point>> m_points;
};

} // namespace Orvane::Network
