// What all parts of the reader share while one file is read.
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

/// Turns the columns of a file into numbers and attributes, and notes what is wrong.
class InpContext {
public:
    InpProblems problems;
    InpFormat format = InpFormat::Epanet;

    /// Notes an error and answers false if a line has fewer columns than its section needs.
    bool HasColumns(const InpSectionRule& rule, std::uint32_t line, const InpColumns& columns);

    /// The number of a column; nothing, and an error, if it is not a number.
    std::optional<double> Number(std::uint32_t line, Plugins::Msg what, std::string_view text);
    /// The place in two columns.
    std::optional<Point> Place(std::uint32_t line, std::string_view x, std::string_view y);

    /// Adds the columns that the rule names as attributes of an entity. Such a column may
    /// hold anything: some files have a word where others have a number.
    void AddAttributes(const InpSectionRule& rule, const InpColumns& columns, std::uint32_t owner,
                       AttributeTable& table);
    void AddAttribute(AttributeTable& table, std::uint32_t owner, std::string_view name,
                      std::string_view text);
};

/// Names of entities together with the lines that brought them.
class InpNames {
public:
    std::optional<std::uint32_t> Find(const TextColumn& names, std::string_view name) const {
        return m_index.Find(names, name);
    }
    /// Adds a name unless it is known; returns its number in both cases.
    std::uint32_t FindOrAdd(TextColumn& names, std::string_view name, std::uint32_t line);
    /// Adds a name that must be new. Nothing, and an error, if it is not.
    std::optional<std::uint32_t> AddNew(TextColumn& names, std::string_view name,
                                        std::uint32_t line, Plugins::Msg what,
                                        InpProblems& problems);
    std::uint32_t LineOf(std::uint32_t number) const { return m_lines[number]; }

private:
    NameIndex m_index;
    std::vector<std::uint32_t> m_lines;
};

/// Points that come in any order of their owners.
class OwnedPoints {
public:
    void Add(std::uint32_t owner, const Point& point) { m_points.emplace_back(owner, point); }
    /// The points by owner; those of each owner in the order in which they came.
    PointLists Sorted(std::size_t ownerCount) const;

private:
    std::vector<std::pair<std::uint32_t, Point>> m_points;
};

} // namespace Orvane::Network
