#include "workspacecore/commands/WsCommand.h"

#include <algorithm>
#include <cstdint>

#include "workspacecore/foundation/XmlField.h"

namespace Orvane::Workspace {

CWsCommand::CWsCommand(const CWsCommand& other) {
    *this = other;
}

// Field by field, which bears assignment to itself.
// NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
CWsCommand& CWsCommand::operator=(const CWsCommand& other) {
    m_strId = other.m_strId;
    m_strName = other.m_strName;
    m_strDescription = other.m_strDescription;
    m_hIcon = other.m_hIcon;
    m_treeCmdBehavior = other.m_treeCmdBehavior;
    m_cmdGroup = other.m_cmdGroup;
    m_strRepositoryTag = other.m_strRepositoryTag;
    m_nWsItemTypes = other.m_nWsItemTypes;
    m_pCmdExecutor = other.m_pCmdExecutor;
    m_nMenuCmdId = other.m_nMenuCmdId;
    m_entityType = other.m_entityType;
    m_bIsSetDataCommand = other.m_bIsSetDataCommand;
    return *this;
}

void CWsCommand::AddWsTopologyData(TopologyDataPtr data) {
    m_wsTopologyDataVector.push_back(data);
    m_wsTopologyDataMap.emplace(data->GetMapKey(), data);
}

void CWsCommand::RemoveWsTopologyData(const TopologyDataPtr& data) {
    const auto hit = std::find(m_wsTopologyDataVector.begin(), m_wsTopologyDataVector.end(), data);
    const CString key = data->GetMapKey();
    if (hit != m_wsTopologyDataVector.end()) {
        m_wsTopologyDataVector.erase(hit);
    }
    m_wsTopologyDataMap.erase(key);
}

int CWsCommand::DoesTopologyDataExist(const CWsTopologyData* data) const {
    return m_wsTopologyDataMap.contains(data->GetMapKey()) ? 1 : 0;
}

CString CWsCommand::GetXML() const {
    // Handle and pointer are written for whoever looks at the dump; readers discard them.
    const auto low32 = [](const void* pointer) {
        return static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(pointer));
    };
    CString xml(L"<wsCommand ");
    xml.AppendFormat(L"id=\"%s\" name=\"%s\" description=\"%s\" icon=\"%d\" repoCmdBehavior=\"%d\" "
                     L"cmdGroup=\"%d\" repositoryTag=\"%s\" wsItemTypes=\"%d\" cmdExecutor=\"%d\" "
                     L"setCmd=\"%s\" ",
                     EncodeXmlField(m_strId), EncodeXmlField(m_strName),
                     EncodeXmlField(m_strDescription), low32(m_hIcon), m_treeCmdBehavior,
                     m_cmdGroup, EncodeXmlField(m_strRepositoryTag),
                     static_cast<std::int32_t>(m_nWsItemTypes), low32(m_pCmdExecutor),
                     FormatText(L"%d", m_bIsSetDataCommand));
    return xml += L"></wsCommand>";
}

} // namespace Orvane::Workspace
