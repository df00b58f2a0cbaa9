#include "workspacecore/commands/WsCommand.h"

#include <cstdint>

#include "workspacecore/foundation/XmlRecord.h"

namespace Orvane::Workspace {

CWsCommand::CWsCommand(const CWsCommand& other) {
    *this = other;
}

// Member by member, so self-assignment is safe.
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

CString CWsCommand::GetXML() const {
    CString xml(L"<wsCommand ");
    xml.AppendFormat(L"id=\"%s\" name=\"%s\" description=\"%s\" icon=\"%d\" repoCmdBehavior=\"%d\" "
                     L"cmdGroup=\"%d\" repositoryTag=\"%s\" wsItemTypes=\"%d\" cmdExecutor=\"%d\" "
                     L"setCmd=\"%s\" ",
                     EncodeXmlField(m_strId), EncodeXmlField(m_strName),
                     EncodeXmlField(m_strDescription), HandleAsNumber(m_hIcon), m_treeCmdBehavior,
                     m_cmdGroup, EncodeXmlField(m_strRepositoryTag),
                     static_cast<std::int32_t>(m_nWsItemTypes), HandleAsNumber(m_pCmdExecutor),
                     FormatText(L"%d", m_bIsSetDataCommand));
    return xml += L"></wsCommand>";
}

} // namespace Orvane::Workspace
