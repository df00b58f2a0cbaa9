#include "siblings/giscore/repository/StoredRepositoryFactory.h"

#include <boost/make_shared.hpp>
#include <utility>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/repository/RepositoryFolder.h"
#include "siblings/giscore/repository/RepositoryRecords.h"

namespace Orvane {

namespace {

using FolderPtr = boost::shared_ptr<CRepositoryFolder>;

/// \return whether anything is different now
bool Reload(FolderPtr& folder, const CString& tag, const CString& root, const CString& problemKey,
            MissingFolder missing) {
    if (folder && folder->GetRoot() == root) {
        return folder->Reload();
    }
    folder = boost::make_shared<CRepositoryFolder>(tag, root, problemKey, missing);
    return true;
}

} // namespace

bool CStoredRepositoryFactory::Read() {
    CModuleConfiguration& configuration = *CModuleConfiguration::Instance();
    m_bIsRead = true;
    const bool isDiskNew =
        Reload(m_pDisk, m_strTag, configuration.GetPath(L"support") + L"repository",
               L"repository/" + m_strTag, MissingFolder::IsMade);
    const CString key = L"net repository/" + m_strTag;
    CString root;
    if (configuration.GetGSValueText(L"NET_REPOSITORY", root) && !root.Trim().IsEmpty()) {
        return Reload(m_pNet, m_strTag, root, key, MissingFolder::IsAProblem) || isDiskNew;
    }
    configuration.SetProblems(key, {});
    return std::exchange(m_pNet, nullptr) || isDiskNew;
}

void CStoredRepositoryFactory::ReloadRepository(int /*mode*/) {
    const bool wasRead = m_bIsRead;
    if (Read() && wasRead) {
        Notification::CNotificationFramework::Instance()
            ->GetPublisher(L"REFRESH_CHILDREN")
            ->Notify(nullptr, const_cast<wchar_t*>(m_strTag.GetString()));
    }
}

void CStoredRepositoryFactory::LookForChanges() {
    if (m_bIsRead) {
        ReloadRepository(0);
    }
}

void CStoredRepositoryFactory::ReadOnce() {
    if (!m_bIsRead) {
        Read();
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
