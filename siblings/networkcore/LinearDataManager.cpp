#include "siblings/networkcore/LinearDataManager.h"

namespace Orvane::Data {

CLinearDataManager* CLinearDataManager::Instance() {
    static auto* const instance = new CLinearDataManager;
    return instance;
}

void CLinearDataManager::RefreshLinearDataDefinitions() {
    m_definitions = ReadDataDefinitions(L"LinearData.ini");
}

} // namespace Orvane::Data
