#include "plugins/network/repository/RepositoryFamilies.h"

#include "plugins/network/repository/LabelFamily.h"
#include "plugins/network/repository/LongitudinalFamily.h"
#include "plugins/network/repository/QueryFamily.h"
#include "plugins/network/repository/RepositoryExecutor.h"
#include "plugins/network/repository/RepositoryTexts.h"
#include "plugins/network/repository/ThemeFamily.h"
#include "siblings/giscore/StoredRepositoryFactory.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/tree/WsRegistrationFactory.h"

namespace Orvane::Network {

namespace {

/// One family with all that is registered for it.
struct Family {
    Family(RepositoryFamily& itsItems, Msg name, const wchar_t* iconName, unsigned int types,
           bool hasEntities)
        : items(itsItems), executor(itsItems), factory(itsItems.Tag(), hasEntities),
          msgName(name), icon(iconName), entityTypes(types), isEntitySpecific(hasEntities) {}

    RepositoryFamily& items;
    CFamilyExecutor executor;
    CStoredRepositoryFactory factory;
    Msg msgName;
    const wchar_t* icon;
    unsigned int entityTypes;
    /// A folder and a command set for each kind of entity, drops of queries, a default item.
    bool isEntitySpecific;
};

constexpr unsigned int kNoEntities = 0;
constexpr unsigned int kThemed = EntityNode | EntitySection | EntityPolygon;

/// In the order in which trees show them.
std::span<Family> Families() {
    static QueryFamily queries;
    static ThemeFamily themes;
    static LabelFamily labels;
    static LongitudinalFamily profiles;
    static Family families[] = {
        {queries, Msg::Queries, L"IDI_QUERY", kNoEntities, false},
        {themes, Msg::Themes, L"IDI_THEME", kThemed, true},
        {labels, Msg::Labels, L"IDI_LABEL", kThemed, true},
        {profiles, Msg::LongitudinalSections, L"IDI_LONGITUDINAL", kNoEntities, false},
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
        const int perEntity = family.isEntitySpecific;
        Factory::RegisterRepositoryItem(
            family.items.Tag(), Text(family.msgName),
            CModuleConfiguration::Instance()->GetIcon(family.icon), family.entityTypes,
            &family.executor, nullptr, Factory::TargetBoth, perEntity, perEntity,
            /*hasAdd*/ 1, /*hasEdit*/ 1, /*hasDelete*/ 1, /*hasRename*/ 1, /*hasRun*/ 1,
            /*hasDoubleClick*/ 1, /*hasQueryDrop*/ perEntity, /*hasRepositoryDrop*/ 1,
            /*hasCopy*/ 1, /*hasSendToSystem*/ 1, /*hasSendToRepository*/ 1,
            /*doubleClickNotEdit*/ 1);
    }
}

} // namespace Orvane::Network
