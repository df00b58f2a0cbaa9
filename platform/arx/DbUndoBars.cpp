#include <algorithm>
#include <iterator>

#include "platform/arx/DbUndoState.h"

namespace {

std::uint64_t KeyOf(AcDbObjectId id, UndoPart part, AcDbNameId name) {
    constexpr unsigned kNameBits = 24; // what AcDbIntern promises
    constexpr unsigned kIdShift = 32;
    return std::uint64_t{id.number()} << kIdShift |
           std::uint64_t{static_cast<std::uint8_t>(part)} << kNameBits |
           static_cast<std::uint32_t>(name);
}

/// A bar below all entries is none.
template <class Bars, class Move>
void MoveBars(Bars& bars, Move move) {
    for (auto bar = bars.begin(); bar != bars.end();) {
        bar->second = move(bar->second);
        bar = bar->second == 0 ? bars.erase(bar) : std::next(bar);
    }
}

} // namespace

void UndoBars::raise(AcDbObjectId id, UndoPart part, std::size_t entries, AcDbNameId name) {
    if (entries > 0) {
        m_parts[KeyOf(id, part, name)] = entries;
    }
}

void UndoBars::raise(AcDbObjectId id, const CString& record, std::size_t entries) {
    if (entries > 0) {
        m_records[{id, record}] = entries;
    }
}

bool UndoBars::holds(AcDbObjectId id, UndoPart part, std::size_t entry, AcDbNameId name) const {
    if (m_parts.empty()) {
        return false;
    }
    const auto hit = m_parts.find(KeyOf(id, part, name));
    return hit != m_parts.end() && entry < hit->second;
}

bool UndoBars::holds(AcDbObjectId id, const CString& record, std::size_t entry) const {
    const auto hit = m_records.find({id, record});
    return hit != m_records.end() && entry < hit->second;
}

void UndoBars::cut(std::size_t entries) {
    const auto cutOne = [entries](std::size_t bar) { return std::min(bar, entries); };
    MoveBars(m_parts, cutOne);
    MoveBars(m_records, cutOne);
}

void UndoBars::dropOldest(std::size_t entries) {
    const auto lower = [entries](std::size_t bar) { return bar - std::min(bar, entries); };
    MoveBars(m_parts, lower);
    MoveBars(m_records, lower);
}

void UndoBars::clear() {
    m_parts.clear();
    m_records.clear();
}
