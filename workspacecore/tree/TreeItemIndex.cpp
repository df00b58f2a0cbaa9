#include "workspacecore/tree/TreeItemIndex.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace Orvane::Workspace {

namespace {

constexpr const wchar_t* kEveryFamily = L"0";
/// Matches any kind of entity; not a valid enmEntityType.
constexpr int kAnyEntityType = -1;
constexpr int kUnknown = -1;

int Number(std::unordered_map<std::wstring, int>& numbers, const std::wstring& text) {
    return numbers.emplace(text, static_cast<int>(numbers.size())).first->second;
}

int FindNumber(const std::unordered_map<std::wstring, int>& numbers, const std::wstring& text) {
    const auto hit = numbers.find(text);
    return hit == numbers.end() ? kUnknown : hit->second;
}

} // namespace

std::size_t TreeItemIndex::KeyHash::operator()(const Key& key) const {
    const auto bits = [](int number) { return static_cast<std::uint32_t>(number); };
    const std::uint64_t mixed = (std::uint64_t{bits(key.tag)} << 32U | bits(key.entityType)) ^
                                std::uint64_t{bits(key.topology)} << 20U;
    return mixed * 0x9E3779B97F4A7C15U; // spreads neighbouring keys over the table
}

TreeItemIndex::TreeItemIndex(const DefinitionMapByType& definitions, const Kinds& kinds)
    : m_byTopology(kinds.byTopology) {
    std::size_t place = 0;
    const auto [folder, lastFolder] = definitions.equal_range(kinds.entityFolder);
    for (auto entry = folder; entry != lastFolder; ++entry) {
        AddFolder(entry->second, place++);
    }
    const auto [configuration, last] = definitions.equal_range(kinds.configuration);
    for (auto entry = configuration; entry != last; ++entry) {
        AddConfiguration(entry->second);
    }
}

template <class Put>
void TreeItemIndex::ForEachTopology(const DefinitionPtr& definition, const Put& put) {
    const int tag = Number(m_tags, definition->GetRepositoryTag().MakeLower().Str());
    if (!m_byTopology) {
        put(Key{tag, Number(m_topologies, {}), definition->GetEntityType()});
        return;
    }
    for (const auto& [topology, data] : *definition->GetWsTopologyDataMap()) {
        put(Key{tag, Number(m_topologies, topology.Str()), definition->GetEntityType()});
    }
}

void TreeItemIndex::AddFolder(const DefinitionPtr& definition, std::size_t place) {
    ForEachTopology(definition, [&](const Key& key) {
        m_folders[key].push_back({place, definition});
    });
}

void TreeItemIndex::AddConfiguration(const DefinitionPtr& definition) {
    // The first registration wins.
    ForEachTopology(definition, [&](const Key& key) {
        m_configurations.try_emplace(key, definition);
        m_configurations.try_emplace({key.tag, key.topology, kAnyEntityType}, definition);
    });
}

const std::vector<TreeItemIndex::Registered>& TreeItemIndex::Folders(const Key& key) const {
    static const std::vector<Registered> none;
    const auto hit = m_folders.find(key);
    return hit == m_folders.end() ? none : hit->second;
}

TreeItemIndex::DefinitionPtr TreeItemIndex::Configuration(const Key& key) const {
    const auto hit = m_configurations.find(key);
    return hit == m_configurations.end() ? nullptr : hit->second;
}

TreeItemIndex::Family TreeItemIndex::In(const CString& tag, const CString& topology) const {
    Family family;
    family.m_pIndex = this;
    family.m_tag = FindNumber(m_tags, CString(tag).MakeLower().Str());
    family.m_everyFamily = FindNumber(m_tags, kEveryFamily);
    family.m_topology = FindNumber(m_topologies, topology.Str());
    return family;
}

TreeItemIndex::DefinitionVector TreeItemIndex::Family::EntityFolders(enmEntityType type) const {
    const std::vector<Registered>& ofFamily = m_pIndex->Folders({m_tag, m_topology, type});
    const std::vector<Registered>& ofAll = m_pIndex->Folders({m_everyFamily, m_topology, type});
    std::vector<Registered> merged;
    const auto earlier = [](const Registered& a, const Registered& b) { return a.place < b.place; };
    // A set union, so the family "0" itself does not get its folders twice.
    std::set_union(ofFamily.begin(), ofFamily.end(), ofAll.begin(), ofAll.end(),
                   std::back_inserter(merged), earlier);
    DefinitionVector found;
    for (const Registered& entry : merged) {
        found.push_back(entry.definition);
    }
    return found;
}

TreeItemIndex::DefinitionPtr TreeItemIndex::Family::Configuration(enmEntityType type) const {
    return m_pIndex->Configuration({m_tag, m_topology, type});
}

TreeItemIndex::DefinitionPtr TreeItemIndex::Family::Configuration() const {
    return m_pIndex->Configuration({m_tag, m_topology, kAnyEntityType});
}

} // namespace Orvane::Workspace
