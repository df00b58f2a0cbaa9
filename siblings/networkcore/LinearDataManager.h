// Data along lines by station, such as cover depth or bedding.
#pragma once

#include <vector>

#include "siblings/giscore/data/DataDefinition.h"
#include "siblings/networkcore/Api.h"

namespace Orvane::Data {

/// Main thread only.
class NETWORKCORE_API CLinearDataManager {
public:
    /// Lives to the end of the process.
    static CLinearDataManager* Instance();

    /// Reloads the definitions from LinearData.ini in the folder "support".
    void RefreshLinearDataDefinitions();
    const std::vector<CDataDefinition>& GetLinearDataDefinitions() const { return m_definitions; }

private:
    CLinearDataManager() = default;

    std::vector<CDataDefinition> m_definitions;
};

} // namespace Orvane::Data
