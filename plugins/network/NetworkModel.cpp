#include "plugins/network/NetworkModel.h"

#include <algorithm>
#include <array>

namespace Orvane::Network {

namespace {

constexpr std::array<std::string_view, kNodeKindCount> kNodeKindNames = {
    "Junction", "Reservoir", "Tank", "Outfall", "Storage", "Divider", "Other"};
constexpr std::array<std::string_view, kSectionKindCount> kSectionKindNames = {
    "Pipe", "Pump", "Valve", "Conduit", "Weir", "Orifice", "Outlet", "Other"};

/// The place of a word, or the last place, which is that of `Other`.
template <std::size_t N>
std::size_t PlaceOf(const std::array<std::string_view, N>& words, std::string_view word) {
    const auto found = std::find(words.begin(), words.end() - 1, word);
    return static_cast<std::size_t>(found - words.begin());
}

} // namespace

std::string_view KindName(NodeKind kind) {
    return kNodeKindNames[static_cast<std::size_t>(kind)];
}

std::string_view KindName(SectionKind kind) {
    return kSectionKindNames[static_cast<std::size_t>(kind)];
}

NodeKind NodeKindOf(std::string_view name) {
    return static_cast<NodeKind>(PlaceOf(kNodeKindNames, name));
}

SectionKind SectionKindOf(std::string_view name) {
    return static_cast<SectionKind>(PlaceOf(kSectionKindNames, name));
}

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
    // Files mostly hold the entities in one order throughout; then there is nothing to do.
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

} // namespace Orvane::Network
