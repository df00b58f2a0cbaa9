#include "siblings/giscore/repository/StoredRepositoryFactory.h"

#include <boost/make_shared.hpp>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/repository/RepositoryFolder.h"
#include "siblings/giscore/repository/RepositoryRecords.h"

namespace Orvane {

namespace {

using FolderPtr = boost::shared_ptr<CRepositoryFolder>;

void Reload(FolderPtr& folder, const CString& tag, const CString& root, const CString& problemKey,
            MissingFolder missing) {
    if (folder && folder->GetRoot() == root) {
        folder->Reload();
    } else {
        folder = boost::make_shared<CRepositoryFolder>(tag, root, problemKey, missing);
    }
}

} // namespace

void CStoredRepositoryFactory::ReloadRepository(int /*mode*/) {
    CModuleConfiguration& configuration = *CModuleConfiguration::Instance();
    m_bIsRead = true;
    Reload(m_pDisk, m_strTag, configuration.GetPath(L"support") + L"repository",
           L"repository/" + m_strTag, MissingFolder::IsMade);
    const CString key = L"net repository/" + m_strTag;
    CString root;
    if (configuration.GetGSValueText(L"NET_REPOSITORY", root) && !root.Trim().IsEmpty()) {
        Reload(m_pNet, m_strTag, root, key, MissingFolder::IsAProblem);
    } else {
        m_pNet.reset();
        configuration.SetProblems(key, {});
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
