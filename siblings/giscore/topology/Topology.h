// One kind of system: lines, polygons, points or a scheme.
#pragma once

#include <vector>

#include "siblings/giscore/Api.h"
#include "siblings/giscore/topology/TopologyEntityType.h"
#include "siblings/giscore/topology/TopologyFunction.h"

namespace Orvane {

/// One topology of the configuration, which owns it. Immutable after loading.
class GISCORE_API CTopology {
public:
    explicit CTopology(enmTopologyType type) : m_enmType(type) {}

    enmTopologyType GetTopologyType() const { return m_enmType; }
    /// Non-zero if this topology is enabled.
    int GetOnOff() const { return m_bOn; }
    /// Display name.
    const CString& GetNameUI() const { return m_strName; }

    /// Non-zero if its systems have a function.
    int GetHasFunctions() const { return !m_functions.empty(); }
    /// In the order of the configuration; may be empty.
    const std::vector<CTopologyFunction>& GetTopologyFunctionVector() const { return m_functions; }
    /// Null if there is no such function.
    const CTopologyFunction* GetTopologyFunctionById(int id) const;

    const std::vector<CTopologyEntityType>& GetEntityTypeVector() const { return m_entityTypes; }
    /// Null if systems of this topology hold no such entities.
    const CTopologyEntityType* GetEntityType(enmEntityType type) const;

private:
    friend class TopologyReader;

    enmTopologyType m_enmType;
    int m_bOn = 1;
    CString m_strName;
    std::vector<CTopologyFunction> m_functions;
    std::vector<CTopologyEntityType> m_entityTypes;
};

} // namespace Orvane
