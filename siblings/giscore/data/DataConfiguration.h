// Display of data, and the definitions of session-only data.
#pragma once

#include <vector>

#include "siblings/giscore/data/DataDefinition.h"

namespace Orvane::Data {

/// Main thread only.
class GISCORE_API CDataConfiguration {
public:
    /// Lives to the end of the process.
    static CDataConfiguration* Instance();

    /// Decimal places of coordinates in texts; clamped to 0..15.
    void SetFloatToStrPrecision_Point(int decimals);
    int GetFloatToStrPrecision_Point() const { return m_nPointPrecision; }
    /// Formats a coordinate with the configured number of decimal places.
    CString PointToStr(double coordinate) const;

    /// Reloads the definitions of temporary data from TemporaryData.ini in the folder "support"
    /// and notifies the observers of the GIS core.
    void RefreshTemporaryDataDefinitions();
    const std::vector<CDataDefinition>& GetTemporaryDataDefinitions() const {
        return m_temporaryData;
    }

private:
    CDataConfiguration() = default;

    int m_nPointPrecision = 3;
    std::vector<CDataDefinition> m_temporaryData;
};

} // namespace Orvane::Data
