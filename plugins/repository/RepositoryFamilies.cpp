#include "plugins/repository/RepositoryFamilies.h"

#include <boost/make_shared.hpp>
#include <span>

#include "plugins/repository/LabelFamily.h"
#include "plugins/repository/LongitudinalFamily.h"
#include "plugins/repository/QueryFamily.h"
#include "plugins/repository/RepositoryExecutor.h"
#include "plugins/repository/RepositoryTexts.h"
#include "plugins/repository/ThemeFamily.h"
#include "siblings/giscore/StoredRepositoryFactory.h"
#include "siblings/giscore/Topology.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/tree/WsRegistrationFactory.h"

namespace Orvane::Repository {

namespace {

constexpr unsigned int kNoEntities = 0;
constexpr unsigned int kThemed = EntityNode | EntitySection | EntityPolygon;

/// One family with all that is registered for it.
struct Family {
    Family(RepositoryFamily& itsItems, Msg name, const wchar_t* iconName, unsigned int types,
           enmTopologyType onlyTopology = TopologyNone)
        : items(itsItems), executor(itsItems), factory(itsItems.Tag(), types != kNoEntities),
          msgName(name), icon(iconName), entityTypes(types), topology(onlyTopology) {}

    RepositoryFamily& items;
    CFamilyExecutor executor;
    CStoredRepositoryFactory factory;
    Msg msgName;
    const wchar_t* icon;
    /// With kinds of entities: a folder and a command set for each, drops of queries, and a
    /// default item.
    unsigned int entityTypes;
    enmTopologyType topology; ///< TopologyNone: all
};

/// In the order in which trees show them.
std::span<Family> Families() {
    static QueryFamily queries;
    static ThemeFamily themes;
    static LabelFamily labels;
    static LongitudinalFamily profiles;
    static Family families[] = {
        {queries, Msg::Queries, L"IDI_QUERY", kNoEntities},
        {themes, Msg::Themes, L"IDI_THEME", kThemed},
        {labels, Msg::Labels, L"IDI_LABEL", kThemed},
        {profiles, Msg::LongitudinalSections, L"IDI_LONGITUDINAL", kNoEntities, TopologyLine},
    };
    return families;
}

Family* Find(const wchar_t* tag) {
    for (Family& family : Families()) {
        if (CString(family.items.Tag()).CompareNoCase(tag) == 0) {
            return &family;
        }
    }
    return nullptr;
}

/// Every function of a topology.
Workspace::CWsTopologyDataSet::Vector FunctionsOf(enmTopologyType type) {
    Workspace::CWsTopologyDataSet::Vector all;
    const CTopology* const pTopology = CModuleConfiguration::Instance()->GetTopology(type);
    if (pTopology && !pTopology->GetHasFunctions()) {
        all.push_back(boost::make_shared<Workspace::CWsTopologyData>(type, 0));
    }
    for (const CTopologyFunction& function :
         pTopology ? pTopology->GetTopologyFunctionVector() : std::vector<CTopologyFunction>()) {
        all.push_back(boost::make_shared<Workspace::CWsTopologyData>(type, function.GetId()));
    }
    return all;
}

} // namespace

RepositoryFamily* FindFamily(const wchar_t* tag) {
    Family* const pFamily = Find(tag);
    return pFamily ? &pFamily->items : nullptr;
}

Workspace::IWsCommandExecutor* FindFamilyExecutor(const wchar_t* tag) {
    Family* const pFamily = Find(tag);
    return pFamily ? &pFamily->executor : nullptr;
}

void RegisterRepositories() {
    for (Family& family : Families()) {
        Workspace::CWsManager& workspace = *Workspace::CWsManager::Instance();
        workspace.RegisterRepositoryFactory(family.items.Tag(), &family.factory);
        workspace.RegisterRepositoryItemFactory(family.items.Tag(), &family.items);
    }
}

void RegisterFamilies() {
    using Factory = Workspace::CWsRegistrationFactory;
    for (Family& family : Families()) {
        const int perEntity = family.entityTypes != kNoEntities;
        auto topologies = FunctionsOf(family.topology);
        Factory::RegisterRepositoryItem(
            family.items.Tag(), Text(family.msgName),
            CModuleConfiguration::Instance()->GetIcon(family.icon), family.entityTypes,
            &family.executor, family.topology == TopologyNone ? nullptr : &topologies,
            Factory::TargetBoth, perEntity, perEntity,
            /*hasAdd*/ 1, /*hasEdit*/ 1, /*hasDelete*/ 1, /*hasRename*/ 1, /*hasRun*/ 1,
            /*hasDoubleClick*/ 1, /*hasQueryDrop*/ perEntity, /*hasRepositoryDrop*/ 1,
            /*hasCopy*/ 1, /*hasSendToSystem*/ 1, /*hasSendToRepository*/ 1,
            /*doubleClickNotEdit*/ 1);
    }
}

} // namespace Orvane::Repository
