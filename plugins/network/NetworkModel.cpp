#include "plugins/network/NetworkModel.h"

#include <algorithm>

namespace Orvane::Network {

void AttributeTable::Add(std::uint32_t owner, std::string_view name, std::string_view text,
                         std::optional<double> number) {
    Entry entry;
    entry.owner = owner;
    entry.name = m_names.Intern(name);
    entry.text = number ? kIsNumber : m_texts.Intern(text);
    entry.number = number.value_or(kNotStated);
    m_entries.push_back(entry);
}

void AttributeTable::Seal() {
    const auto byOwner = [](const Entry& a, const Entry& b) { return a.owner < b.owner; };
    // Most files keep the entities in one order throughout, so no sorting is needed.
    if (!std::is_sorted(m_entries.begin(), m_entries.end(), byOwner)) {
        std::stable_sort(m_entries.begin(), m_entries.end(), byOwner);
    }
}

std::span<const AttributeTable::Entry> AttributeTable::EntriesOf(std::uint32_t owner) const {
    const auto first = std::ranges::lower_bound(m_entries, owner, {}, &Entry::owner);
    const auto last = std::ranges::upper_bound(first, m_entries.end(), owner, {}, &Entry::owner);
    return {first, last};
}

Attribute AttributeTable::Make(const Entry& entry) const {
    if (entry.text == kIsNumber) {
        return {m_names[entry.name], {}, entry.number};
    }
    return {m_names[entry.name], m_texts[entry.text], std::nullopt};
}

std::vector<Attribute> AttributeTable::Of(std::uint32_t owner) const {
    std::vector<Attribute> attributes;
    for (const Entry& entry : EntriesOf(owner)) {
        attributes.push_back(Make(entry));
    }
    return attributes;
}

std::optional<Attribute> AttributeTable::Find(std::uint32_t owner, std::string_view name) const {
    for (const Entry& entry : EntriesOf(owner)) {
        if (m_names[entry.name] == name) {
            return Make(entry);
        }
    }
    return std::nullopt;
}

void AttributeTable::Renumber(std::span<const std::uint32_t> newNumbers) {
    std::erase_if(m_entries, [&](const Entry& e) { return newNumbers[e.owner] == kDropped; });
    for (Entry& entry : m_entries) {
        entry.owner = newNumbers[entry.owner];
    }
}

std::string_view SectionTable::Missing(std::uint64_t key) const {
    const auto found = std::lower_bound(missingKeys.begin(), missingKeys.end(), key);
    if (found == missingKeys.end() || *found != key) {
        return {};
    }
    return missingNames[static_cast<std::size_t>(found - missingKeys.begin())];
}

NetworkGeometry GeometryOf(const NetworkModel& model) {
    NetworkGeometry geometry;
    geometry.nodes = model.nodes.positions;
    geometry.startNodes = model.sections.startNodes;
    geometry.endNodes = model.sections.endNodes;
    geometry.vertexOffsets = model.sections.innerVertices.offsets;
    geometry.vertices = model.sections.innerVertices.points;
    geometry.nodeKinds = model.nodes.kinds;
    geometry.elevations = model.nodes.elevations;
    geometry.sectionKinds = model.sections.kinds;
    geometry.statedLengths = model.sections.statedLengths;
    return geometry;
}

std::string ModelNames::NodeName(std::size_t node) const {
    return std::string(m_model.nodes.names[node]);
}

std::string ModelNames::SectionName(std::size_t section) const {
    return std::string(m_model.sections.names[section]);
}

std::string ModelNames::MissingStart(std::size_t section) const {
    return std::string(m_model.sections.MissingStart(section));
}

std::string ModelNames::MissingEnd(std::size_t section) const {
    return std::string(m_model.sections.MissingEnd(section));
}

} // namespace Orvane::Network
