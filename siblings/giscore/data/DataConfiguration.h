// How data is shown, and which data lives for a session only.
#pragma once

#include <vector>

#include "siblings/giscore/data/DataDefinition.h"

namespace Orvane::Data {

/// Main thread only.
class GISCORE_API CDataConfiguration {
public:
    /// Lives to the end of the process.
    static CDataConfiguration* Instance();

    /// Decimal places of coordinates in texts; held between 0 and 15.
    void SetFloatToStrPrecision_Point(int decimals);
    int GetFloatToStrPrecision_Point() const { return m_nPointPrecision; }
    /// A coordinate with that many decimal places.
    CString PointToStr(double coordinate) const;

    /// Reads the definitions of temporary data again, from TemporaryData.ini in the
    /// folder "support", and tells the observers of the GIS core.
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
