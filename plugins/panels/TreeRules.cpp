#include "plugins/panels/TreeRules.h"

#include "workspacecore/core/WsManager.h"
#include "workspacecore/panel/TreeMenus.h"

namespace Orvane::Panels {

using Workspace::CWsTreeItemData;
using Workspace::CWsTreeItemDefinition;

namespace {

constexpr const wchar_t* kQueryTag = L"QUERY";

bool IsQuery(const CWsTreeItemDefinition& definition) {
    return definition.GetRepositoryTag().CompareNoCase(kQueryTag) == 0;
}

} // namespace

bool IsObject(const CWsTreeItemData& node) {
    return node.GetPtrItemDefinition() && !node.GetGuid().IsEmpty();
}

CString DoubleClickCommand(const CWsTreeItemData& node) {
    // Folders of a family have the same command as their items, but it needs an item.
    const auto& definition = node.GetPtrItemDefinition();
    const bool isFolder =
        definition && !definition->GetRepositoryTag().IsEmpty() && node.GetGuid().IsEmpty();
    return definition && !isFolder ? definition->GetCmdIdDoubleClick() : CString();
}

CString RenameCommand(const CWsTreeItemData& node) {
    return IsObject(node) && node.GetPtrItemDefinition()->GetAllowRename()
               ? node.GetPtrItemDefinition()->GetCmdIdRename()
               : CString();
}

CString DeleteCommand(const CWsTreeItemData& node) {
    if (!IsObject(node)) {
        return {};
    }
    const auto& registry = *Workspace::CWsManager::Instance()->CmdMgr()->GetCommandRegistry();
    for (const auto& command : Workspace::TreeMenuEntries(
             registry, Workspace::MenuTopology(node.GetSystem()), *node.GetPtrItemDefinition())) {
        if (command && command->GetCmdGroup() == Workspace::CommandGroupDelete) {
            return command->GetId();
        }
    }
    return {};
}

bool CanDrag(const CWsTreeItemData& node) {
    return IsObject(node) && node.GetPtrItemDefinition()->GetAllowDragBegin();
}

DropPlan PlanDrop(const CWsTreeItemData& dragged, const CWsTreeItemData& target) {
    const auto& item = dragged.GetPtrItemDefinition();
    const auto& place = target.GetPtrItemDefinition();
    if (!CanDrag(dragged) || !place || &dragged == &target) {
        return {};
    }
    if (IsQuery(*item) && place->GetAcceptQueryDrop() && IsObject(target)) {
        return {place->GetCmdIdQueryDrop(), true};
    }
    // A system accepts items of every family; folders and items accept only their own family.
    const CString family = place->GetRepositoryTag();
    const bool fits = family.IsEmpty() || family.CompareNoCase(item->GetRepositoryTag()) == 0;
    if (!fits || !place->GetAcceptRepositoryItemDrop()) {
        return {};
    }
    // A family's top folder is for all entity types, and no command has its id.
    const bool isOfAllKinds = !family.IsEmpty() && place->GetEntityType() == EntityNone;
    return {(isOfAllKinds ? item : place)->GetCmdIdRepositoryItemDrop()};
}

} // namespace Orvane::Panels
