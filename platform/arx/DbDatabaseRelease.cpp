// Objects that nothing can bring back, and their ids.

#include <algorithm>

#include "platform/arx/DbDatabase.h"

bool AcDbDatabase::mayReleaseObjects() const {
    return m_nTelling == 0 && m_nVisiting == 0;
}

bool AcDbDatabase::isRowLeft(const AcDbObject& object) const {
    return object.m_bUnsaved && object.m_id.number() < m_nFirstUnstored;
}

void AcDbDatabase::releaseObjects(std::span<const std::uint32_t> numbers) {
    if (numbers.empty()) {
        return;
    }
    bool areUnsaved = false;
    std::vector<AcDbObjectId> places;
    for (const std::uint32_t number : numbers) {
        std::unique_ptr<AcDbObject>& pObject = m_objects[number];
        areUnsaved = areUnsaved || pObject->m_bUnsaved;
        CString key;
        if (pObject->m_bEntity) {
            const AcDbObjectId block = static_cast<const AcDbEntity&>(*pObject).m_block;
            if (places.empty() || places.back() != block) {
                places.push_back(block);
            }
        } else if (Names* const pNames = namesOf(*pObject, key)) {
            pNames->erase(key);
        }
        pObject.reset();
    }
    const auto isGone = [this](AcDbObjectId id) { return !object(id); };
    if (areUnsaved) {
        std::erase_if(m_unsaved, isGone);
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    for (const AcDbObjectId place : places) {
        if (auto* const pBlock = dynamic_cast<AcDbBlockTableRecord*>(object(place))) {
            auto& ids = pBlock->m_entities;
            const auto first =
                std::lower_bound(ids.begin(), ids.end(), AcDbObjectId(numbers.front()));
            ids.erase(std::remove_if(first, ids.end(), isGone), ids.end());
        }
    }
    freeIds();
}

/// Only at the upper end: the order of ids is the order of adding.
void AcDbDatabase::freeIds() {
    const std::uint32_t before = nextId();
    while (nextId() > m_nFirstUnstored && !m_objects.back()) {
        m_objects.pop_back();
    }
    if (nextId() < before) {
        tellIdsFreed();
    }
}
