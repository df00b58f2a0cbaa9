#include <algorithm>

#include "platform/arx/DbUndoState.h"

namespace {

std::uint64_t KeyOf(AcDbObjectId id, UndoPart part, AcDbNameId name) {
    constexpr unsigned kNameBits = 24; // what AcDbIntern promises
    constexpr unsigned kIdShift = 32;
    return std::uint64_t{id.number()} << kIdShift |
           std::uint64_t{static_cast<std::uint8_t>(part)} << kNameBits |
           static_cast<std::uint32_t>(name);
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
    const auto cutOne = [entries](auto& bar) { bar.second = std::min(bar.second, entries); };
    std::for_each(m_parts.begin(), m_parts.end(), cutOne);
    std::for_each(m_records.begin(), m_records.end(), cutOne);
}

void UndoBars::clear() {
    m_parts.clear();
    m_records.clear();
}
