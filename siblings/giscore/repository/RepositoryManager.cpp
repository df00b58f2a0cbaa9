#include "siblings/giscore/repository/RepositoryManager.h"

#include <algorithm>

#include "siblings/giscore/repository/IRepositoryFamily.h"
#include "siblings/giscore/repository/RepositoryFactory.h"

namespace Orvane {

namespace {

template <class Entries>
auto FindTag(Entries& entries, const wchar_t* tag) {
    return std::find_if(entries.begin(), entries.end(),
                        [tag](const auto& entry) { return entry.tag.CompareNoCase(tag) == 0; });
}

template <class Entries, class Factory>
void Register(Entries& entries, const wchar_t* tag, Factory* pFactory) {
    const auto hit = FindTag(entries, tag);
    if (!pFactory) {
        return;
    }
    if (hit == entries.end()) {
        entries.push_back({tag, pFactory});
    } else {
        hit->pFactory = pFactory;
    }
}

} // namespace

CRepositoryManager* CRepositoryManager::Instance() {
    static auto* const instance = new CRepositoryManager;
    return instance;
}

void CRepositoryManager::RegisterRepositoryFactory(const wchar_t* tag,
                                                   CRepositoryFactory* pFactory) {
    Register(m_factories, tag, pFactory);
}

void CRepositoryManager::RegisterRepositoryItemFactory(const wchar_t* tag,
                                                       CRepositoryItemFactory* pFactory) {
    Register(m_itemFactories, tag, pFactory);
}

void CRepositoryManager::RegisterRepositoryFamily(const wchar_t* tag, IRepositoryFamily* pFamily) {
    Register(m_families, tag, pFamily);
    RegisterRepositoryItemFactory(tag, pFamily);
}

CRepositoryFactory* CRepositoryManager::GetRepositoryfactory(const wchar_t* tag) const {
    const auto hit = FindTag(m_factories, tag);
    return hit == m_factories.end() ? nullptr : hit->pFactory;
}

CRepositoryItemFactory* CRepositoryManager::GetRepositoryItemFactory(const wchar_t* tag) const {
    const auto hit = FindTag(m_itemFactories, tag);
    return hit == m_itemFactories.end() ? nullptr : hit->pFactory;
}

IRepositoryFamily* CRepositoryManager::GetRepositoryFamily(const wchar_t* tag) const {
    const auto hit = FindTag(m_families, tag);
    return hit == m_families.end() ? nullptr : hit->pFactory;
}

std::vector<CString> CRepositoryManager::GetRepositoryFamilyTags() const {
    std::vector<CString> tags;
    for (const auto& family : m_families) {
        tags.push_back(family.tag);
    }
    return tags;
}

void CRepositoryManager::ReloadRepositories(int mode) {
    // By index: a factory may bring others with it.
    for (std::size_t i = 0; i < m_factories.size(); ++i) {
        m_factories[i].pFactory->ReloadRepository(mode);
    }
}

void CRepositoryManager::LookForChanges() {
    for (std::size_t i = 0; i < m_factories.size(); ++i) {
        m_factories[i].pFactory->LookForChanges();
    }
}

} // namespace Orvane
