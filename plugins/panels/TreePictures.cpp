#include "plugins/panels/TreePictures.h"

#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane::Panels {

TreePictures& TreePictures::Instance() {
    static TreePictures pictures;
    return pictures;
}

int TreePictures::NetRoot() {
    if (m_nNetRoot < 0) {
        m_nNetRoot = m_list.Add(CModuleConfiguration::Instance()->GetIcon(L"IDI_NETDATA"));
    }
    return m_nNetRoot;
}

int TreePictures::IndexOf(const TreeNode& node) {
    if (!node.definition) {
        return -1;
    }
    Workspace::CWsTreeItemDefinition& definition = *node.definition;
    // Both repository trees share the definition of their root.
    if (node.isTargetNet && definition.GetWsItemType() == Workspace::WsItemRepositoryRoot) {
        return NetRoot();
    }
    if (definition.GetIconIndex() < 0) {
        definition.SetIconIndex(m_list.Add(definition.GetIcon()));
        definition.SetGrayIconIndex(m_list.AddGray(definition.GetIcon()));
    }
    return node.isGray ? definition.GetGrayIconIndex() : definition.GetIconIndex();
}

} // namespace Orvane::Panels
