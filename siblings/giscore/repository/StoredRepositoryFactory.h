// The usual repository of a family: folders on disk and net, and the drawing.
#pragma once

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"
#include "siblings/giscore/repository/RepositoryFactory.h"

namespace Orvane {

class CRepositoryFolder;

/// The disk store is the folder "repository" in the folder "support", the net store the
/// folder of the general setting "NET_REPOSITORY", if that is not empty. Both are read at
/// their first use; when the repository is reloaded, files that have changed are read again,
/// and if anything is different then, the publisher "REFRESH_CHILDREN" tells, with the tag.
/// A store that was handed out follows, unless the setting has come to name another folder.
class GISCORE_API CStoredRepositoryFactory final : public CRepositoryFactory {
public:
    CStoredRepositoryFactory(const wchar_t* tag, bool supportsDefaultItem)
        : m_strTag(tag), m_bSupportsDefaultItem(supportsDefaultItem) {}

    void ReloadRepository(int mode) override;
    void LookForChanges() override;
    int SupportsDefaultItem() const override { return m_bSupportsDefaultItem; }
    StorePtr GetDiskStore() override;
    StorePtr GetNetStore() override;
    StorePtr GetSystemStore(System::CGisSystem* pSystem) override;

private:
    void ReadOnce();
    bool Read();

    CString m_strTag;
    bool m_bSupportsDefaultItem;
    bool m_bIsRead = false;
    boost::shared_ptr<CRepositoryFolder> m_pDisk;
    boost::shared_ptr<CRepositoryFolder> m_pNet;
};

} // namespace Orvane
