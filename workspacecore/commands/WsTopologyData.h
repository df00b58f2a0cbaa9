// A topology and one of its functions, to which a command or tree item applies.
#pragma once

#include "platform/win/String.h"
#include "siblings/giscore/topology/GisTypes.h"
#include "workspacecore/Api.h"

namespace Orvane::Workspace {

class WORKSPACE_API CWsTopologyData {
public:
    CWsTopologyData() = default;
    CWsTopologyData(enmTopologyType topologyType, int topologyFunction)
        : m_topologyType(topologyType), m_nTopologyFunction(topologyFunction) {}
    CWsTopologyData(const CWsTopologyData&) = default;
    CWsTopologyData& operator=(const CWsTopologyData&) = default;
    virtual ~CWsTopologyData() = default;

    enmTopologyType GetTopologyType() const { return m_topologyType; }
    void SetTopologyType(enmTopologyType topologyType) { m_topologyType = topologyType; }
    /// 0 for a topology without functions.
    int GetTopologyFunction() const { return m_nTopologyFunction; }
    void SetTopologyFunction(int topologyFunction) { m_nTopologyFunction = topologyFunction; }

    /// "type:function", the key of all maps of topology data.
    CString GetMapKey() const;
    CString GetXML() const;
    void MakeDeepCopy(CWsTopologyData& target) const { target = *this; }

private:
    enmTopologyType m_topologyType = TopologyNone;
    int m_nTopologyFunction = 0;
};

} // namespace Orvane::Workspace
