#include "workspacecore/tree/TreeItemIndex.h"

#include <algorithm>
#include <iterator>

namespace Orvane::Workspace {

namespace {

constexpr const wchar_t* kEveryFamily = L"0";

std::wstring Key(CString tag, const CString& topology) {
    return tag.MakeLower().Str() + L'\n' + topology.Str();
}

std::wstring Key(const CString& tag, enmEntityType type, const CString& topology) {
    return Key(tag, topology) + L'\n' + std::to_wstring(type);
}

} // namespace

TreeItemIndex::TreeItemIndex(const DefinitionMapByType& definitions, const Kinds& kinds)
    : m_byTopology(kinds.byTopology) {
    std::size_t place = 0;
    const auto [folder, lastFolder] = definitions.equal_range(kinds.entityFolder);
    for (auto entry = folder; entry != lastFolder; ++entry, ++place) {
        const DefinitionPtr& definition = entry->second;
        ForEachTopology(definition, [&](const CString& topology) {
            m_folders[Key(definition->GetRepositoryTag(), definition->GetEntityType(), topology)]
                .push_back({place, definition});
        });
    }
    const auto [first, last] = definitions.equal_range(kinds.configuration);
    for (auto entry = first; entry != last; ++entry) {
        const DefinitionPtr& definition = entry->second;
        const CString tag = definition->GetRepositoryTag();
        // The first one stays.
        ForEachTopology(definition, [&](const CString& topology) {
            m_configurations.emplace(Key(tag, definition->GetEntityType(), topology), definition);
            m_configurations.emplace(Key(tag, topology), definition);
        });
    }
}

template <class Put>
void TreeItemIndex::ForEachTopology(const DefinitionPtr& definition, const Put& put) const {
    if (!m_byTopology) {
        put(CString());
        return;
    }
    for (const auto& [topology, data] : *definition->GetWsTopologyDataMap()) {
        put(topology);
    }
}

const std::vector<TreeItemIndex::Registered>&
TreeItemIndex::Folders(const CString& tag, enmEntityType type, const CString& topology) const {
    static const std::vector<Registered> none;
    const auto hit = m_folders.find(Key(tag, type, topology));
    return hit == m_folders.end() ? none : hit->second;
}

TreeItemIndex::DefinitionVector TreeItemIndex::EntityFolders(const CString& tag, enmEntityType type,
                                                             const CString& topology) const {
    const std::vector<Registered>& ofFamily = Folders(tag, type, topology);
    const std::vector<Registered>& ofAll = Folders(kEveryFamily, type, topology);
    std::vector<Registered> merged;
    const auto earlier = [](const Registered& a, const Registered& b) { return a.place < b.place; };
    // A union: the family "0" itself has its folders once.
    std::set_union(ofFamily.begin(), ofFamily.end(), ofAll.begin(), ofAll.end(),
                   std::back_inserter(merged), earlier);
    DefinitionVector found;
    for (const Registered& entry : merged) {
        found.push_back(entry.definition);
    }
    return found;
}

TreeItemIndex::DefinitionPtr TreeItemIndex::Configuration(const CString& tag, enmEntityType type,
                                                          const CString& topology) const {
    const auto hit = m_configurations.find(Key(tag, type, topology));
    return hit == m_configurations.end() ? nullptr : hit->second;
}

TreeItemIndex::DefinitionPtr TreeItemIndex::Configuration(const CString& tag,
                                                          const CString& topology) const {
    const auto hit = m_configurations.find(Key(tag, topology));
    return hit == m_configurations.end() ? nullptr : hit->second;
}

} // namespace Orvane::Workspace
