#include "siblings/giscore/topology/Topology.h"

#include <algorithm>

namespace Orvane {

const CTopologyFunction* CTopology::GetTopologyFunctionById(int id) const {
    const auto hit =
        std::find_if(m_functions.begin(), m_functions.end(),
                     [id](const CTopologyFunction& function) { return function.GetId() == id; });
    return hit == m_functions.end() ? nullptr : &*hit;
}

const CTopologyEntityType* CTopology::GetEntityType(enmEntityType type) const {
    const auto hit =
        std::find_if(m_entityTypes.begin(), m_entityTypes.end(),
                     [type](const CTopologyEntityType& entry) { return entry.GetType() == type; });
    return hit == m_entityTypes.end() ? nullptr : &*hit;
}

} // namespace Orvane
