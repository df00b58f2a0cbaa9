// The attributes of all entities of a drawing.
#pragma once

#include <optional>
#include <vector>

#include "siblings/networkcore/InternedTexts.h"
#include "siblings/networkcore/TextPool.h"
#include "siblings/networkcore/TopologyTypes.h"

namespace Orvane::Topology {

/// Consecutive elements of a table that belong to one entity.
struct Run {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
};

/// Sixteen bytes an attribute. An entity keeps the run of its attributes; a run that
/// grows moves to the end, and its old place is lost until the table is copied.
class AttributeTable {
public:
    /// The attributes of a new entity. Of several with one name the last one stands; one
    /// without a name is left out.
    Run Add(std::span<const AttributeData> attributes);
    /// Takes over the attributes of an entity of another table.
    Run Copy(const AttributeTable& other, Run run);

    void Set(Run& run, const AttributeData& attribute);
    bool Remove(Run& run, AttributeName name);

    /// Unknown if no entity ever had such an attribute.
    AttributeName FindName(std::string_view name) const;
    std::optional<AttributeData> Find(Run run, AttributeName name) const;
    std::vector<AttributeData> Of(Run run) const;

private:
    struct Entry {
        std::uint64_t value = 0; ///< the bits of a number or of a TextRef
        AttributeName name = AttributeName::Unknown;
        bool isNumber = false;
    };
    Entry MakeEntry(const AttributeData& attribute);
    AttributeData Read(const Entry& entry) const;
    /// Null if there is none of the name.
    const Entry* FindEntry(Run run, AttributeName name) const;
    void Append(Run& run, const Entry& entry);

    InternedTexts m_names;
    TextPool m_texts;
    std::vector<Entry> m_entries;
};

} // namespace Orvane::Topology
