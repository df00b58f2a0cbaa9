#include "plugins/repository/QueryFamily.h"

#include <boost/make_shared.hpp>

#include "platform/arx/EdPrompt.h"
#include "plugins/common/Marks.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTexts.h"
#include "plugins/repository/SystemEntities.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "siblings/giscoreadds/SelectionSet.h"

namespace Orvane::Repository {

namespace {

using Query::Condition;
using Query::CQueryDefinition;

constexpr enmEntityType kQueried[] = {EntityNone, EntityNode, EntitySection, EntityPolygon};

bool AskQueriedType(CQueryDefinition& query, const System::CGisSystem* pSystem) {
    const auto& topologies = *CModuleConfiguration::Instance()->GetTopologyConfiguration();
    std::vector<PromptChoice> choices = {
        {L"all", Text(Msg::Everything)},
        {L"node", topologies.GetEntityTypeName(EntityNode, pSystem)},
        {L"section", topologies.GetEntityTypeName(EntitySection, nullptr)},
        {L"polygon", topologies.GetEntityTypeName(EntityPolygon, nullptr)}};
    const auto* const pCurrent =
        std::find(std::begin(kQueried), std::end(kQueried), query.GetQueriedType());
    const std::size_t current = pCurrent == std::end(kQueried) ? 0 : pCurrent - kQueried;
    const auto choice = acedAskChoice({Text(Msg::QueriedEntities), choices, current});
    if (choice) {
        query.SetQueriedType(kQueried[*choice]);
    }
    return choice.has_value();
}

bool AskMatch(CQueryDefinition& query) {
    const auto choice =
        acedAskChoice({Text(Msg::Match),
                       {{L"all", Text(Msg::AllConditions)}, {L"any", Text(Msg::AnyCondition)}},
                       query.GetMatchAny() ? 1 : 0});
    query.SetMatchAny(choice == 1U);
    return choice.has_value();
}

/// Asks for each existing condition, then for new ones until the answer is empty.
bool AskConditions(CQueryDefinition& query, const System::CGisSystem* pSystem) {
    const std::vector<Condition>& old = query.GetConditions();
    std::vector<Condition> conditions;
    for (std::size_t i = 0;; ++i) {
        const CString current = i < old.size() ? ConditionText(old[i]) : CString();
        const auto answer = AskTextOrNone(Text(Msg::Condition, conditions.size() + 1), current);
        if (!answer) {
            return false;
        }
        if (answer->IsEmpty() && i >= old.size()) {
            break;
        }
        if (answer->IsEmpty()) {
            continue; // removed
        }
        auto condition = Query::ParseCondition(*answer);
        if (!condition) {
            return Refuse(Text(Msg::NoCondition, *answer));
        }
        if (pSystem) {
            condition->attribute =
                AttributeInUse(*pSystem, query.GetQueriedType(), condition->attribute)
                    .value_or(condition->attribute);
        }
        conditions.push_back(*condition);
    }
    query.SetConditions(std::move(conditions));
    return true;
}

void TellSelection(const System::CGisSystem& system, const std::vector<AcDbObjectId>& ids) {
    Selection::CSelectionSet selection;
    for (const AcDbObjectId id : ids) {
        selection.Add(id, Topology::CEntity(&StorageOf(system), id).GetEntityType());
    }
    Notification::CNotificationFramework::Instance()
        ->GetPublisher(L"SELECTION_COMPLETED")
        ->Notify(&selection, nullptr);
}

} // namespace

boost::shared_ptr<CRepositoryItem> QueryFamily::CreateItem(const wchar_t* guid,
                                                           const wchar_t* name) {
    return boost::make_shared<CQueryDefinition>(guid, name);
}

bool QueryFamily::EditContent(CRepositoryItem& item, const System::CGisSystem* pSystem) {
    auto& query = static_cast<CQueryDefinition&>(item);
    return AskQueriedType(query, pSystem) && AskMatch(query) && AskConditions(query, pSystem);
}

std::optional<int> QueryFamily::Run(const CRepositoryItem& item, System::CGisSystem& system,
                                    const CQueryDefinition* /*pOnly*/) {
    const auto& query = static_cast<const CQueryDefinition&>(item);
    const std::vector<AcDbObjectId> ids = EntitiesOf(system, EntityNone, &query);
    Plugins::MarkEntities(ids);
    TellSelection(system, ids);
    acutPrintf(L"%s\n", Text(Msg::Selected, item.GetName(), ids.size(), system.GetSystemName()));
    return static_cast<int>(ids.size());
}

} // namespace Orvane::Repository
