#include "workspacecore/tree/WsTreeItemDefinition.h"

#include "workspacecore/foundation/XmlRecord.h"

namespace Orvane::Workspace {

CWsTreeItemDefinition::CWsTreeItemDefinition(const CWsTreeItemDefinition& other)
    : m_wsTopologyData(other.m_wsTopologyData) {
    CopyValues(other);
}

// Member by member, so self-assignment is safe.
// NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
CWsTreeItemDefinition& CWsTreeItemDefinition::operator=(const CWsTreeItemDefinition& other) {
    CopyValues(other);
    m_wsTopologyData = other.m_wsTopologyData;
    return *this;
}

void CWsTreeItemDefinition::CopyValues(const CWsTreeItemDefinition& other) {
    m_strId = other.m_strId;
    m_hIcon = other.m_hIcon;
    m_strName = other.m_strName;
    m_strDescription = other.m_strDescription;
    m_wsItemType = other.m_wsItemType;
    m_wsParentItemType = other.m_wsParentItemType;
    m_strRepositoryTag = other.m_strRepositoryTag;
    m_bAcceptQueryDrop = other.m_bAcceptQueryDrop;
    m_bIsEntitySpecific = other.m_bIsEntitySpecific;
    m_bIsDoubleClickActionEdit = other.m_bIsDoubleClickActionEdit;
    m_entityType = other.m_entityType;
    m_nIconIndex = other.m_nIconIndex;
    m_nGrayIconIndex = other.m_nGrayIconIndex;
}

void CWsTreeItemDefinition::MakeDeepCopy(CWsTreeItemDefinition& target) const {
    const TopologyDataVector source = m_wsTopologyData.vector;
    target.CopyValues(*this);
    target.m_wsTopologyData.vector.clear();
    for (const TopologyDataPtr& data : source) {
        target.AddWsTopologyData(TopologyDataPtr(new CWsTopologyData(*data)));
    }
}

CString CWsTreeItemDefinition::GetXML() const {
    CString xml(L"<wsTreeItemDefinition ");
    xml.AppendFormat(L"id=\"%s\" icon=\"%d\" name=\"%s\" description=\"%s\" wsItemType=\"%d\" "
                     L"wsParentItemType=\"%d\" repositoryTag=\"%s\" acceptQueryDrop=\"%d\" "
                     L"cmdIdDoubleClick=\"%s\" cmdIdQueryDrop=\"%s\" entitySpecific=\"%d\" ",
                     EncodeXmlField(m_strId), HandleAsNumber(m_hIcon), EncodeXmlField(m_strName),
                     EncodeXmlField(m_strDescription), static_cast<std::int32_t>(m_wsItemType),
                     static_cast<std::int32_t>(m_wsParentItemType),
                     EncodeXmlField(m_strRepositoryTag), m_bAcceptQueryDrop,
                     EncodeXmlField(m_strCmdIdDoubleClick), EncodeXmlField(m_strCmdIdQueryDrop),
                     m_bIsEntitySpecific);
    xml += L">";
    for (const TopologyDataPtr& data : m_wsTopologyData.vector) {
        xml += data->GetXML();
    }
    return xml += L"</wsTreeItemDefinition>";
}

} // namespace Orvane::Workspace
