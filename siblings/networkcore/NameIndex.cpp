#include "siblings/networkcore/NameIndex.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace Orvane::Topology {

namespace {

std::uint32_t HashOf(int system, std::string_view name) {
    const std::uint64_t hash = std::hash<std::string_view>()(name) ^
                               (static_cast<std::uint64_t>(system) * 0x9E3779B97F4A7C15ULL);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

} // namespace

std::optional<std::uint32_t> NameIndex::Find(const INamedRows& rows, int system,
                                             std::string_view name) {
    EnterNewRows(rows);
    if (m_slots.empty()) {
        return std::nullopt;
    }
    const Slot& slot = m_slots[SlotOf(rows, system, name, HashOf(system, name))];
    return slot.row == kFree ? std::nullopt : std::optional(slot.row);
}

void NameIndex::Renamed(const INamedRows& rows, std::uint32_t row) {
    if (row >= m_nRows) {
        return; // the next search enters it under its new name
    }
    if (m_bHasDuplicates) {
        Clear(); // another row may now be the first one with the old name
    } else {
        // The slot of the old name stays; it no longer matches and is dropped when the index
        // grows.
        EnterNewRows(rows);
        Enter(rows, row);
    }
}

void NameIndex::EnterNewRows(const INamedRows& rows) {
    const std::size_t count = rows.RowCount();
    if (std::max(m_nUsed, m_nRows) + (count - m_nRows) > m_slots.size() / 2) {
        Clear();
        m_slots.resize(std::bit_ceil(std::max<std::size_t>(count, 8) * 3));
    }
    while (m_nRows < count) {
        Enter(rows, static_cast<std::uint32_t>(m_nRows++));
    }
}

void NameIndex::Enter(const INamedRows& rows, std::uint32_t row) {
    const int system = rows.SystemOf(row);
    const std::string_view name = rows.NameOf(row);
    const std::uint32_t hash = HashOf(system, name);
    Slot& slot = m_slots[SlotOf(rows, system, name, hash)];
    if (slot.row == kFree) {
        slot = {hash, row};
        ++m_nUsed;
    } else if (slot.row != row) {
        slot.row = std::min(slot.row, row);
        m_bHasDuplicates = true;
    }
}

std::size_t NameIndex::SlotOf(const INamedRows& rows, int system, std::string_view name,
                              std::uint32_t hash) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    while (m_slots[at].row != kFree &&
           (m_slots[at].hash != hash || rows.SystemOf(m_slots[at].row) != system ||
            rows.NameOf(m_slots[at].row) != name)) {
        at = (at + 1) & mask;
    }
    return at;
}

void NameIndex::Clear() {
    m_slots.clear();
    m_nUsed = 0;
    m_nRows = 0;
    m_bHasDuplicates = false;
}

} // namespace Orvane::Topology
