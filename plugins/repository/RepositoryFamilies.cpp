#include "plugins/repository/RepositoryFamilies.h"

#include <boost/make_shared.hpp>
#include <span>

#include "plugins/repository/LabelFamily.h"
#include "plugins/repository/LongitudinalFamily.h"
#include "plugins/repository/QueryFamily.h"
#include "plugins/repository/RepositoryTexts.h"
#include "plugins/repository/ThemeFamily.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/repository/StoredRepositoryFactory.h"
#include "siblings/giscore/topology/Topology.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/tree/WsRegistrationFactory.h"

namespace Orvane::Repository {

namespace {

constexpr unsigned int kNoEntities = 0;
constexpr unsigned int kThemed = EntityNode | EntitySection | EntityPolygon;

/// A family with everything that is registered for it.
struct Family {
    Family(const wchar_t* itsTag, IRepositoryFamily& itsItems, Msg name, const wchar_t* iconName,
           unsigned int types, enmTopologyType onlyTopology = TopologyNone)
        : tag(itsTag), items(itsItems), factory(itsTag, types != kNoEntities), msgName(name),
          icon(iconName), entityTypes(types), topology(onlyTopology) {}

    const wchar_t* tag;
    IRepositoryFamily& items;
    CStoredRepositoryFactory factory;
    Msg msgName;
    const wchar_t* icon;
    /// The family has a folder and a command set for each of these entity types, accepts dropped
    /// queries, and has a default item. 0 for none of this.
    unsigned int entityTypes;
    enmTopologyType topology; ///< TopologyNone for all
};

/// In tree order.
std::span<Family> Families() {
    static QueryFamily queries;
    static ThemeFamily themes;
    static LabelFamily labels;
    static LongitudinalFamily profiles;
    static Family families[] = {
        {L"QUERY", queries, Msg::Queries, L"IDI_QUERY", kNoEntities},
        {L"THEME", themes, Msg::Themes, L"IDI_THEME", kThemed},
        {L"LABEL", labels, Msg::Labels, L"IDI_LABEL", kThemed},
        {L"LONGITUDINAL", profiles, Msg::LongitudinalSections, L"IDI_LONGITUDINAL", kNoEntities,
         TopologyLine},
    };
    return families;
}

/// All functions of a topology.
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

void RegisterRepositories() {
    for (Family& family : Families()) {
        CRepositoryManager& repositories = *CRepositoryManager::Instance();
        repositories.RegisterRepositoryFactory(family.tag, &family.factory);
        repositories.RegisterRepositoryFamily(family.tag, &family.items);
    }
}

void RegisterFamilies() {
    using Factory = Workspace::CWsRegistrationFactory;
    for (Family& family : Families()) {
        const int perEntity = family.entityTypes != kNoEntities;
        auto topologies = FunctionsOf(family.topology);
        Factory::RegisterRepositoryItem(
            family.tag, Text(family.msgName),
            CModuleConfiguration::Instance()->GetIcon(family.icon), family.entityTypes,
            Workspace::CWsManager::Instance()->CmdMgr()->GetBaseExecutor(),
            family.topology == TopologyNone ? nullptr : &topologies, Factory::TargetBoth, perEntity,
            perEntity,
            /*hasAdd*/ 1, /*hasEdit*/ 1, /*hasDelete*/ 1, /*hasRename*/ 1, /*hasRun*/ 1,
            /*hasDoubleClick*/ 1, /*hasQueryDrop*/ perEntity, /*hasRepositoryDrop*/ 1,
            /*hasCopy*/ 1, /*hasSendToSystem*/ 1, /*hasSendToRepository*/ 1,
            /*doubleClickNotEdit*/ 1);
    }
}

} // namespace Orvane::Repository
