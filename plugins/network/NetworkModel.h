// A network as plain data: the content of a network file, independent of any drawing.
//
// Lengths, diameters, elevations and positions are in the units of the file. NaN means that the
// file does not state the number. All texts are UTF-8. Entities are identified by their index in
// their table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "plugins/common/NetworkGeometry.h"
#include "plugins/network/NetworkTexts.h"

namespace Orvane::Network {

/// A named value of an entity: a number or a text.
struct Attribute {
    std::string_view name;
    std::string_view text; ///< empty for a number
    std::optional<double> number;
};

/// The attributes of all entities of a table. Each distinct name and text is stored once.
class AttributeTable {
public:
    void Add(std::uint32_t owner, std::string_view name, std::string_view text,
             std::optional<double> number);
    /// Call after the last Add and before Of: groups the attributes by owner, in the order in which
    /// they were added.
    void Seal();
    /// The attributes of one entity. The views are valid as long as the table.
    std::vector<Attribute> Of(std::uint32_t owner) const;
    /// One attribute of an entity, if present.
    std::optional<Attribute> Find(std::uint32_t owner, std::string_view name) const;
    std::size_t size() const { return m_entries.size(); }
    /// Keeps only attributes of owners that have a new number; `newNumbers` has that number, or
    /// kDropped, for each owner.
    void Renumber(std::span<const std::uint32_t> newNumbers);
    static constexpr std::uint32_t kDropped = 0xFFFFFFFF;

private:
    struct Entry {
        double number = kNotStated;
        std::uint32_t owner = 0;
        std::uint32_t name = 0;
        std::uint32_t text = 0;
    };
    static constexpr std::uint32_t kIsNumber = 0xFFFFFFFF; ///< instead of a text
    std::span<const Entry> EntriesOf(std::uint32_t owner) const;
    Attribute Make(const Entry& entry) const;

    InternedTexts m_names;
    InternedTexts m_texts;
    std::vector<Entry> m_entries;
};

struct NodeTable {
    TextColumn names;
    std::vector<NodeKind> kinds;
    std::vector<Point> positions;   ///< always finite
    std::vector<double> elevations; ///< the head of a reservoir, the invert of a manhole
    AttributeTable attributes;

    std::size_t size() const { return kinds.size(); }
};

struct SectionTable {
    TextColumn names;
    std::vector<SectionKind> kinds;
    std::vector<std::int32_t> startNodes; ///< number in NodeTable, or kMissingNode
    std::vector<std::int32_t> endNodes;
    PointLists innerVertices; ///< from start to end
    std::vector<double> diameters;
    std::vector<double> statedLengths;
    AttributeTable attributes;

    std::size_t size() const { return kinds.size(); }
    bool IsComplete(std::size_t section) const {
        return startNodes[section] != kMissingNode && endNodes[section] != kMissingNode;
    }
    /// The name a section gives for a missing start (end) node; empty if the node exists.
    std::string_view MissingStart(std::size_t section) const { return Missing(section * 2); }
    std::string_view MissingEnd(std::size_t section) const { return Missing(section * 2 + 1); }

    /// Key (section * 2, plus 1 for the end node) of each name in missingNames; ascending.
    std::vector<std::uint64_t> missingKeys;
    TextColumn missingNames;

private:
    std::string_view Missing(std::uint64_t key) const;
};

struct PolygonTable {
    TextColumn names;
    PointLists rings; ///< at least three points each; the first is not repeated at the end
    AttributeTable attributes;

    std::size_t size() const { return names.size(); }
};

/// Texts on the map.
struct LabelTable {
    TextColumn texts;
    std::vector<Point> positions;

    std::size_t size() const { return positions.size(); }
};

struct NetworkModel {
    NodeTable nodes;
    SectionTable sections;
    PolygonTable polygons;
    LabelTable labels;
};

/// A view of the model, valid as long as the model stays unchanged.
NetworkGeometry GeometryOf(const NetworkModel& model);

/// The names of the model's entities. The model must outlive it.
class ModelNames : public INetworkNames {
public:
    explicit ModelNames(const NetworkModel& model) : m_model(model) {}
    std::string NodeName(std::size_t node) const override;
    std::string SectionName(std::size_t section) const override;
    std::string MissingStart(std::size_t section) const override;
    std::string MissingEnd(std::size_t section) const override;

private:
    const NetworkModel& m_model;
};

} // namespace Orvane::Network
