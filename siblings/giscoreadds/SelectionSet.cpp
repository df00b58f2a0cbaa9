#include "siblings/giscoreadds/SelectionSet.h"

namespace Orvane::Selection {

bool CSelectionSet::Add(AcDbObjectId id, enmEntityType type) {
    if (!m_ids.insert(id).second) {
        return false;
    }
    m_entries.push_back({id, type});
    return true;
}

bool CSelectionSet::Remove(AcDbObjectId id) {
    if (m_ids.erase(id) == 0) {
        return false;
    }
    std::erase_if(m_entries, [id](const Entry& entry) { return entry.id == id; });
    return true;
}

void CSelectionSet::Clear() {
    m_entries.clear();
    m_ids.clear();
}

bool CSelectionSet::Contains(AcDbObjectId id) const {
    return m_ids.contains(id);
}

std::vector<AcDbObjectId> CSelectionSet::OfType(enmEntityType type) const {
    std::vector<AcDbObjectId> ids;
    for (const Entry& entry : m_entries) {
        if (entry.type == type) {
            ids.push_back(entry.id);
        }
    }
    return ids;
}

} // namespace Orvane::Selection
