#include "workspacecore/panel/WsTreeManager.h"

#include <algorithm>

#include "platform/mfc/TreeCtrl.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "workspacecore/foundation/XmlDocument.h"
#include "workspacecore/resources/Icons.h"
#include "workspacecore/resources/ModuleResources.h"

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

/// By its name in the configuration, or by its number among the pictures of this module.
struct IconSource {
    const wchar_t* name;
    UINT number = 0;
};

HICON Find(const IconSource& source) {
    return source.name ? CModuleConfiguration::Instance()->GetIcon(source.name)
                       : ModuleIcon(source.number);
}

/// \param kept stays null, and so is asked for again, until the icon is found
HICON FindOnce(HICON& kept, const IconSource& source) {
    if (!kept) {
        kept = Find(source);
    }
    return kept;
}

template <class Key>
HICON FindOnce(std::map<Key, HICON>& kept, Key key, const IconSource& source) {
    const auto known = kept.find(key);
    if (known != kept.end()) {
        return known->second;
    }
    const HICON icon = Find(source);
    if (icon) {
        kept.emplace(key, icon);
    }
    return icon;
}

constexpr struct {
    enmEntityType type;
    const wchar_t* name;
} kEntityIcons[] = {{EntityNode, L"IDI_NODE"},
                    {EntitySection, L"IDI_SECTION"},
                    {EntityPolygon, L"ORV_IDI_POLYGON_16X16"},
                    {EntityPolygonNode, L"ORV_IDI_POLYGONNODE_16X16"}};
constexpr const wchar_t* kUnknownEntityIcon = L"ORV_IDI_UNKNOWNENTITY";

} // namespace

CWsTreeManager::CWsTreeManager() : m_pTreeItemDefinitionList(new CWsTreeItemDefinitionList) {
    LoadRepositorySortOrder();
}

CWsTreeManager::~CWsTreeManager() {
    m_pTreeItemDefinitionList->Clear();
}

void CWsTreeManager::LoadRepositorySortOrder() {
    CString path;
    path.Format(L"%sworkspaceRepositoryOrder.xml",
                CModuleConfiguration::Instance()->GetPath(L"support"));
    XmlDocument document;
    if (!document.Load(path) || !document.FindElem(L"sortOrder")) {
        return;
    }
    document.IntoElem();
    while (document.FindElem(L"r")) {
        m_repositorySortOrder.push_back(document.GetAttrib(L"tag"));
    }
}

CWsTreeItemData* CWsTreeManager::Data(enmTree tree, HTREEITEM item) const {
    return m_views[tree] && item
               ? PointerOf<CWsTreeItemData>(static_cast<LPARAM>(m_views[tree]->GetItemData(item)))
               : nullptr;
}

HTREEITEM CWsTreeManager::Selected(enmTree tree) const {
    return m_views[tree] ? m_views[tree]->GetSelectedItem() : nullptr;
}

HTREEITEM CWsTreeManager::UnderCursor(enmTree tree) const {
    if (!m_views[tree]) {
        return nullptr;
    }
    return m_views[tree]->HitTest(m_views[tree]->ScreenToClient(GetMessagePos()));
}

void CWsTreeManager::Delete(enmTree tree, HTREEITEM item) const {
    CTreeCtrl* const pView = m_views[tree];
    if (!pView || !item) {
        return;
    }
    HTREEITEM child = pView->GetChildItem(item);
    if (!child) {
        pView->DeleteItem(item);
    }
    // A child that had children itself stands empty after the first call and goes with the
    // next; the item stays in any case.
    for (; child; child = pView->GetChildItem(item)) {
        Delete(tree, child);
    }
}

void CWsTreeManager::SortTreeTemplate(const CWsTreeTemplate::Ptr& treeTemplate) const {
    if (!treeTemplate) {
        return;
    }
    CWsTreeTemplate::Children& sorted = *treeTemplate->GetChildren();
    CWsTreeTemplate::Children pending = sorted;
    sorted.clear();
    // Moves what is in front of `end` to the sorted ones.
    const auto take = [&](auto begin, auto end) {
        sorted.insert(sorted.end(), begin, end);
        pending.erase(begin, end);
    };
    take(pending.begin(), std::stable_partition(pending.begin(), pending.end(), IsToolGroup));
    for (const CString& tag : m_repositorySortOrder) {
        const auto hit = std::find_if(pending.begin(), pending.end(),
                                      [&](const auto& node) { return IsOfFamily(node, tag); });
        if (hit != pending.end()) {
            take(hit, hit + 1);
        }
    }
    take(pending.begin(), pending.end());
}

HICON CWsTreeManager::Icon(enmIcon icon) {
    static constexpr IconSource kSources[IconCount] = {
        {nullptr, IconSystemManager}, {L"IDI_DISKDATA"},   {nullptr, IconSystem},
        {L"ORV_IDI_TOOLBOX"},         {L"IDI_PENCIL"},     {L"IDI_DATA_EDIT"},
        {L"IDI_WINDOW_EDIT"},         {L"ORV_ID_MANAGER"}, {L"IDI_FLASH"}};
    return FindOnce(m_icons[icon], kSources[icon]);
}

HICON CWsTreeManager::GetSystemManagerIcon() {
    return Icon(SystemManagerIcon);
}
HICON CWsTreeManager::GetSystemIcon() {
    return Icon(SystemIcon);
}
HICON CWsTreeManager::GetDiskRepositoryIcon() {
    return Icon(DiskRepositoryIcon);
}
HICON CWsTreeManager::GetSystemToolIcon() {
    return Icon(SystemToolIcon);
}
HICON CWsTreeManager::GetSystemTool_DrawIcon() {
    return Icon(DrawToolIcon);
}
HICON CWsTreeManager::GetSystemTool_SetDataIcon() {
    return Icon(SetDataToolIcon);
}
HICON CWsTreeManager::GetSystemTool_EditIcon() {
    return Icon(EditToolIcon);
}
HICON CWsTreeManager::GetSystemTool_ManagerIcon() {
    return Icon(ManagerToolIcon);
}
HICON CWsTreeManager::GetFastCommandIcon() {
    return Icon(FastCommandIcon);
}

HICON CWsTreeManager::GetSystemIcon(enmTopologyType type) {
    const ModuleResources resources;
    const bool hasIcon = type == TopologyLine || type == TopologyPolygon || type == TopologyPoint;
    return hasIcon ? FindOnce(m_topologyIcons, type, {nullptr, IconSystem}) : nullptr;
}

HICON CWsTreeManager::GetEntityTypeIcon(enmEntityType type) {
    const ModuleResources resources;
    const auto* const pRow = std::find_if(std::begin(kEntityIcons), std::end(kEntityIcons),
                                          [type](const auto& row) { return row.type == type; });
    return FindOnce(m_entityIcons, type,
                    {pRow == std::end(kEntityIcons) ? kUnknownEntityIcon : pRow->name});
}

CString CWsTreeManager::GetEntityTypeName(enmEntityType type) const {
    return CModuleConfiguration::Instance()->GetTopologyConfiguration()->GetEntityTypeName(
        type, System::CSystemManager::Instance()->GetActiveSystem());
}

} // namespace Orvane::Workspace
