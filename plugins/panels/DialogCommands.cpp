// The commands that open dialogs. In a console they prompt and print instead.
#include "platform/arx/DbDatabase.h"
#include "platform/arx/EdDisplay.h"
#include "platform/arx/EdPrompt.h"
#include "platform/mfc/WinApp.h"
#include "plugins/common/Prompts.h"
#include "plugins/panels/DrawingReports.h"
#include "plugins/panels/EntityProperties.h"
#include "plugins/panels/EntitySearch.h"
#include "plugins/panels/EntityTexts.h"
#include "plugins/panels/FindDialog.h"
#include "plugins/panels/LegendDialog.h"
#include "plugins/panels/PanelCommands.h"
#include "plugins/panels/PanelTexts.h"
#include "plugins/panels/PropertiesDialog.h"
#include "plugins/panels/StatisticsDialog.h"
#include "siblings/giscore/systems/SystemManager.h"

namespace Orvane::Panels {

namespace {

using Plugins::Refuse;

constexpr std::size_t kMostPrinted = 100;

/// Keywords accepted in every language, in addition to the translated ones.
constexpr struct {
    const wchar_t* word;
    Msg shown;
} kPlaces[] = {
    {L"everywhere", Msg::Everywhere},
    {L"name", Msg::Name},
    {L"kind", Msg::Kind},
    {L"attributes", Msg::Attributes},
};

bool HasDrawing() {
    return acdbHostApplicationServices()->workingDatabase() || Refuse(Text(Msg::NoDrawing));
}

std::optional<SearchIn> AskWhere() {
    ChoicePrompt prompt{Text(Msg::AskFindWhere), {}, 0};
    for (const auto& place : kPlaces) {
        prompt.choices.push_back({place.word, Text(place.shown)});
    }
    const auto choice = acedAskChoice(prompt);
    return choice ? std::optional(static_cast<SearchIn>(*choice)) : std::nullopt;
}

/// 0 for all systems.
std::optional<int> AskSystem() {
    const CString name = acedAskText(Text(Msg::AskFindIn)).value_or(CString());
    if (name.IsEmpty()) {
        return 0;
    }
    const System::CGisSystem* const pSystem =
        System::CSystemManager::Instance()->GetSystemByName(name);
    if (!pSystem) {
        Refuse(Text(Msg::NoSuchSystem, name));
        return std::nullopt;
    }
    return pSystem->GetSystemId();
}

bool SearchAtPrompt() {
    EntitySearch search;
    search.text = acedAskText(Text(Msg::AskFindWhat)).value_or(CString());
    const auto system = AskSystem();
    const auto where = system ? AskWhere() : std::nullopt;
    if (!where) {
        return false;
    }
    search.systemId = *system;
    search.where = *where;
    const SearchResult result = SearchDrawing(search, kMostPrinted);
    for (const FoundEntity& entity : result.entities) {
        acutPrintf(L"%s\n",
                   Text(Msg::FoundLine, entity.kind, entity.name, entity.system, entity.foundIn));
    }
    acutPrintf(L"%s\n", result.count == 0 ? Text(Msg::NothingFound)
                        : result.count > result.entities.size()
                            ? Text(Msg::FoundMore, result.count, result.entities.size())
                            : Text(Msg::Found, result.count));
    return true;
}

bool SearchEntity() {
    return HasDrawing() &&
           (AfxIsDesktopMode() ? ShowDialog(kFindDialogId) != nullptr : SearchAtPrompt());
}

/// Prints the properties and lets the user change one.
bool ChangeAtPrompt(const Topology::CEntity& entity) {
    const std::vector<EntityProperty> properties = PropertiesOf(entity);
    for (const EntityProperty& property : properties) {
        acutPrintf(L"%s: %s\n", property.label, property.value);
    }
    const CString label = acedAskText(Text(Msg::AskProperty)).value_or(CString());
    if (label.IsEmpty()) {
        return true;
    }
    const EntityProperty* const pProperty = FindProperty(properties, label);
    if (!pProperty) {
        return Refuse(Text(Msg::NoProperty, label));
    }
    CString value;
    if (acedGetString(kGetStringAllowBlanks, Text(Msg::AskValue, pProperty->value), value) !=
        RTNORM) {
        return false;
    }
    const CString reason = SetProperty(entity, *pProperty, value);
    if (!reason.IsEmpty()) {
        return Refuse(reason);
    }
    acutPrintf(L"%s\n", Text(Msg::ValueSet, pProperty->label, value));
    return true;
}

bool EntityPropertiesCommand() {
    AcDbObjectId id;
    AcGePoint3d place;
    if (!HasDrawing() || acedEntSel(Text(Msg::AskEntity), id, place) == RTCAN) {
        return false;
    }
    const Topology::CEntity entity = FindEntity(id);
    if (!entity) {
        return Refuse(Text(Msg::NoEntity));
    }
    if (!AfxIsDesktopMode()) {
        return ChangeAtPrompt(entity);
    }
    ShowProperties(id);
    return true;
}

bool SystemStatistics() {
    if (!HasDrawing()) {
        return false;
    }
    const System::CGisSystem* const pSystem = System::CSystemManager::Instance()->GetActiveSystem();
    if (AfxIsDesktopMode()) {
        return ShowDialog(kStatisticsDialogId) != nullptr;
    }
    if (!pSystem) {
        return Refuse(Text(Msg::NoActiveSystem));
    }
    acutPrintf(L"%s\n", Text(Msg::FiguresOf, pSystem->GetSystemName()));
    for (const Figure& figure : FiguresOf(*pSystem)) {
        acutPrintf(L"  %s: %s\n", figure.label, figure.value);
    }
    return true;
}

bool PrintLegend() {
    const auto rows = LegendOf(*acdbHostApplicationServices()->workingDatabase());
    for (const LegendRow& row : rows) {
        acutPrintf(L"%s\n", Text(Msg::LegendLine, row.layer, row.colorIndex, row.count));
    }
    if (rows.empty()) {
        acutPrintf(L"%s\n", Text(Msg::EmptyLegend));
    }
    return true;
}

bool Legend() {
    return HasDrawing() && (AfxIsDesktopMode() ? ShowLegend() : PrintLegend());
}

bool ShowSettings() {
    CModuleConfiguration::Instance()->ShowGSDialog(L"");
    return true;
}

constexpr PanelCommand kCommands[] = {
    {L"SEARCH_ENTITY", 900630, 900631, SearchEntity},
    {L"ENTITY_PROPERTIES", 900632, 900633, EntityPropertiesCommand},
    {L"SYSTEM_STATISTICS", 900634, 900635, SystemStatistics},
    {L"LEGEND", 900636, 900637, Legend},
    {L"GENERAL_SETTINGS", 900638, 900639, ShowSettings},
};

} // namespace

std::span<const PanelCommand> DialogCommands() {
    return kCommands;
}

} // namespace Orvane::Panels
