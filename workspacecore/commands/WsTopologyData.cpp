#include "workspacecore/commands/WsTopologyData.h"

namespace Orvane::Workspace {

CString CWsTopologyData::GetMapKey() const {
    CString key;
    key.Format(L"%d:%d", m_topologyType, m_nTopologyFunction);
    return key;
}

CString CWsTopologyData::GetXML() const {
    CString xml(L"<wsTopologyData ");
    xml.AppendFormat(L"topologyType=\"%d\" topologyFunction=\"%d\" ", m_topologyType,
                     m_nTopologyFunction);
    return xml += L"></wsTopologyData>";
}

} // namespace Orvane::Workspace
