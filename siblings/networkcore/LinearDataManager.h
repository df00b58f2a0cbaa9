// Data that runs along lines, such as covering or bedding by station.
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

    /// Reads the definitions again from LinearData.ini in the folder "support".
    void RefreshLinearDataDefinitions();
    const std::vector<CDataDefinition>& GetLinearDataDefinitions() const { return m_definitions; }

private:
    CLinearDataManager() = default;

    std::vector<CDataDefinition> m_definitions;
};

} // namespace Orvane::Data
