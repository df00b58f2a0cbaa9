#include "siblings/giscore/data/DataConfiguration.h"

#include <algorithm>

#include "siblings/giscore/notification/GisEvents.h"

namespace Orvane::Data {

CDataConfiguration* CDataConfiguration::Instance() {
    static auto* const instance = new CDataConfiguration;
    return instance;
}

void CDataConfiguration::SetFloatToStrPrecision_Point(int decimals) {
    m_nPointPrecision = std::clamp(decimals, 0, 15);
}

CString CDataConfiguration::PointToStr(double coordinate) const {
    CString text;
    text.Format(L"%.*f", m_nPointPrecision, coordinate);
    return text;
}

void CDataConfiguration::RefreshTemporaryDataDefinitions() {
    m_temporaryData = ReadDataDefinitions(L"TemporaryData.ini");
    System::CGisEvents::Instance()->Raise(&System::ISystemEvents::OnTemporaryDataRefreshed);
}

} // namespace Orvane::Data
