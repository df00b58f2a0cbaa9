// Naming of new entities. Internal to this module.
#pragma once

#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/networkcore/NameRules.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Topology {

/// The name rules, and the counters in use.
struct CTopologyStorage::Naming {
    NameRules rules;
    bool rulesAreRead = false;
    int loadedSystem = 0; ///< system whose counters are loaded; 0: none
    System::CGisSystem::Counters counters;
};

} // namespace Orvane::Topology
