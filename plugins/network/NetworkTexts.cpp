#include "plugins/network/NetworkTexts.h"

#include <functional>

namespace Orvane::Network {

namespace {

std::uint32_t HashOf(std::string_view text) {
    const std::size_t hash = std::hash<std::string_view>{}(text);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

} // namespace

std::size_t NameIndex::SlotOf(const TextColumn& column, std::string_view text,
                              std::uint32_t hash) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    while (m_slots[at].index != kFree &&
           (m_slots[at].hash != hash || column[m_slots[at].index] != text)) {
        at = (at + 1) & mask;
    }
    return at;
}

std::optional<std::uint32_t> NameIndex::Find(const TextColumn& column,
                                             std::string_view text) const {
    if (m_slots.empty()) {
        return std::nullopt;
    }
    const Slot& slot = m_slots[SlotOf(column, text, HashOf(text))];
    return slot.index == kFree ? std::nullopt : std::optional(slot.index);
}

std::uint32_t NameIndex::Insert(const TextColumn& column, std::uint32_t index) {
    if (2 * (m_count + 1) > m_slots.size()) {
        Grow();
    }
    const std::uint32_t hash = HashOf(column[index]);
    Slot& slot = m_slots[SlotOf(column, column[index], hash)];
    if (slot.index == kFree) {
        slot = {hash, index};
        ++m_count;
    }
    return slot.index;
}

void NameIndex::Grow() {
    std::vector<Slot> old(m_slots.empty() ? 16 : m_slots.size() * 2);
    old.swap(m_slots);
    const std::size_t mask = m_slots.size() - 1;
    for (const Slot& slot : old) {
        if (slot.index == kFree) {
            continue;
        }
        // The texts are all different, so the first free slot is the right one.
        std::size_t at = slot.hash & mask;
        while (m_slots[at].index != kFree) {
            at = (at + 1) & mask;
        }
        m_slots[at] = slot;
    }
}

std::uint32_t InternedTexts::Intern(std::string_view text) {
    if (const auto known = m_index.Find(m_texts, text)) {
        return *known;
    }
    return m_index.Insert(m_texts, m_texts.Add(text));
}

} // namespace Orvane::Network
