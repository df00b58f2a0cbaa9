#include "workspacecore/tree/FamilyOrder.h"

#include <algorithm>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/foundation/XmlDocument.h"

namespace Orvane::Workspace {

namespace {

constexpr enmWSTreeItemType kToolGroups[] = {WsItemSystemTool,        WsItemSystemToolDraw,
                                             WsItemSystemToolEdit,    WsItemSystemToolSetData,
                                             WsItemSystemToolManager, WsItemSystemToolFastCommand};

bool IsToolGroup(const CWsTreeTemplate::Ptr& node) {
    const auto& definition = node->GetItemDefinition();
    return definition && std::find(std::begin(kToolGroups), std::end(kToolGroups),
                                   definition->GetWsItemType()) != std::end(kToolGroups);
}

bool IsOfFamily(const CWsTreeTemplate::Ptr& node, const CString& tag) {
    const auto& definition = node->GetItemDefinition();
    return definition && definition->GetRepositoryTag().CompareNoCase(tag) == 0;
}

} // namespace

std::vector<CString> LoadFamilyOrder() {
    std::vector<CString> order;
    CString path;
    path.Format(L"%sworkspaceRepositoryOrder.xml",
                CModuleConfiguration::Instance()->GetPath(L"support"));
    XmlDocument document;
    if (!document.Load(path) || !document.FindElem(L"sortOrder")) {
        return order;
    }
    document.IntoElem();
    while (document.FindElem(L"r")) {
        order.push_back(document.GetAttrib(L"tag"));
    }
    return order;
}

void SortByFamily(CWsTreeTemplate::Children& children, const std::vector<CString>& familyOrder) {
    CWsTreeTemplate::Children pending = children;
    children.clear();
    // Moves the items before `end` to the sorted ones.
    const auto take = [&](auto begin, auto end) {
        children.insert(children.end(), begin, end);
        pending.erase(begin, end);
    };
    take(pending.begin(), std::stable_partition(pending.begin(), pending.end(), IsToolGroup));
    for (const CString& tag : familyOrder) {
        const auto hit = std::find_if(pending.begin(), pending.end(),
                                      [&](const auto& node) { return IsOfFamily(node, tag); });
        if (hit != pending.end()) {
            take(hit, hit + 1);
        }
    }
    take(pending.begin(), pending.end());
}

} // namespace Orvane::Workspace
