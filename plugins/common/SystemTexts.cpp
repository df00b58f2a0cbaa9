#include "plugins/common/SystemTexts.h"

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/topology/Topology.h"

namespace Orvane::Plugins {

CString FunctionName(const System::CGisSystem& system) {
    const CTopology* const pTopology =
        CModuleConfiguration::Instance()->GetTopology(system.GetTopologyType());
    if (!pTopology) {
        return {};
    }
    const CTopologyFunction* const pFunction =
        pTopology->GetTopologyFunctionById(system.GetSystemFunction());
    return pFunction ? pFunction->GetName() : pTopology->GetNameUI();
}

} // namespace Orvane::Plugins
