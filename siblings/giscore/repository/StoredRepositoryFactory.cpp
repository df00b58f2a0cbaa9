#include "siblings/giscore/repository/StoredRepositoryFactory.h"

#include <boost/make_shared.hpp>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/repository/RepositoryFolder.h"
#include "siblings/giscore/repository/RepositoryRecords.h"

namespace Orvane {

void CStoredRepositoryFactory::ReloadRepository(int /*mode*/) {
    CModuleConfiguration& configuration = *CModuleConfiguration::Instance();
    m_bIsRead = true;
    m_pDisk = boost::make_shared<CRepositoryFolder>(
        m_strTag, configuration.GetPath(L"support") + L"repository", L"repository/" + m_strTag);
    m_pNet.reset();
    const CString key = L"net repository/" + m_strTag;
    configuration.SetProblems(key, {});
    CString folder;
    if (configuration.GetGSValueText(L"NET_REPOSITORY", folder) && !folder.Trim().IsEmpty()) {
        m_pNet =
            boost::make_shared<CRepositoryFolder>(m_strTag, folder, key, MissingFolder::IsAProblem);
    }
}

void CStoredRepositoryFactory::ReadOnce() {
    if (!m_bIsRead) {
        ReloadRepository(0);
    }
}

CRepositoryFactory::StorePtr CStoredRepositoryFactory::GetDiskStore() {
    ReadOnce();
    return m_pDisk;
}

CRepositoryFactory::StorePtr CStoredRepositoryFactory::GetNetStore() {
    ReadOnce();
    return m_pNet;
}

CRepositoryFactory::StorePtr CStoredRepositoryFactory::GetSystemStore(System::CGisSystem* pSystem) {
    return pSystem ? boost::make_shared<CRepositoryRecords>(m_strTag, *pSystem) : StorePtr();
}

} // namespace Orvane
