#include "siblings/networkcore/AttributeTable.h"

#include <algorithm>
#include <bit>

namespace Orvane::Topology {

Run AttributeTable::Add(std::span<const AttributeData> attributes) {
    Run run{static_cast<std::uint32_t>(m_entries.size()), 0};
    for (const AttributeData& attribute : attributes) {
        if (!attribute.name.empty()) {
            Set(run, attribute);
        }
    }
    return run;
}

Run AttributeTable::Copy(const AttributeTable& other, Run run) {
    return Add(other.Of(run));
}

void AttributeTable::Set(Run& run, const AttributeData& attribute) {
    const Entry entry = MakeEntry(attribute);
    if (const Entry* const pOld = FindEntry(run, entry.name)) {
        m_entries[static_cast<std::size_t>(pOld - m_entries.data())] = entry;
    } else {
        Append(run, entry);
    }
}

void AttributeTable::Append(Run& run, const Entry& entry) {
    if (m_entries.size() > std::numeric_limits<std::uint32_t>::max() - run.count - 1) {
        throw std::length_error("too many attributes in a drawing");
    }
    if (run.first + run.count != m_entries.size()) {
        const auto first = static_cast<std::uint32_t>(m_entries.size());
        for (std::uint32_t i = 0; i < run.count; ++i) {
            const Entry moved = m_entries[run.first + i]; // a copy: the table may move
            m_entries.push_back(moved);
        }
        run.first = first;
    }
    m_entries.push_back(entry);
    ++run.count;
}

bool AttributeTable::Remove(Run& run, AttributeName name) {
    const Entry* const pEntry = FindEntry(run, name);
    if (!pEntry) {
        return false;
    }
    const auto begin = m_entries.begin() + run.first;
    const auto at = m_entries.begin() + (pEntry - m_entries.data());
    std::rotate(at, at + 1, begin + run.count);
    --run.count;
    return true;
}

AttributeName AttributeTable::FindName(std::string_view name) const {
    static_assert(static_cast<std::uint32_t>(AttributeName::Unknown) == InternedTexts::kUnknown);
    return static_cast<AttributeName>(m_names.Find(name));
}

std::optional<AttributeData> AttributeTable::Find(Run run, AttributeName name) const {
    const Entry* const pEntry = FindEntry(run, name);
    return pEntry ? std::optional(Read(*pEntry)) : std::nullopt;
}

std::vector<AttributeData> AttributeTable::Of(Run run) const {
    std::vector<AttributeData> attributes;
    attributes.reserve(run.count);
    for (const Entry& entry : std::span(m_entries).subspan(run.first, run.count)) {
        attributes.push_back(Read(entry));
    }
    return attributes;
}

AttributeTable::Entry AttributeTable::MakeEntry(const AttributeData& attribute) {
    Entry entry;
    entry.name = static_cast<AttributeName>(m_names.Intern(attribute.name));
    entry.isNumber = attribute.number.has_value();
    entry.value = attribute.number ? std::bit_cast<std::uint64_t>(*attribute.number)
                                   : std::bit_cast<std::uint64_t>(m_texts.Add(attribute.text));
    return entry;
}

AttributeData AttributeTable::Read(const Entry& entry) const {
    AttributeData attribute;
    attribute.name = m_names[static_cast<std::uint32_t>(entry.name)];
    if (entry.isNumber) {
        attribute.number = std::bit_cast<double>(entry.value);
    } else {
        attribute.text = m_texts[std::bit_cast<TextRef>(entry.value)];
    }
    return attribute;
}

const AttributeTable::Entry* AttributeTable::FindEntry(Run run, AttributeName name) const {
    const auto entries = std::span(m_entries).subspan(run.first, run.count);
    const auto hit = std::find_if(entries.begin(), entries.end(),
                                  [name](const Entry& entry) { return entry.name == name; });
    return hit == entries.end() ? nullptr : &*hit;
}

} // namespace Orvane::Topology
