// The usual repository of a family: folders on disk and net, and the drawing.
#pragma once

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"
#include "siblings/giscore/repository/RepositoryFactory.h"

namespace Orvane {

/// The disk store is the folder "repository" in the folder "support", the net store the
/// folder of the general setting "NET_REPOSITORY", if that is not empty. Both are read at
/// their first use and when the repository is reloaded, which makes stores anew: those
/// handed out before go on, but do not follow.
class GISCORE_API CStoredRepositoryFactory final : public CRepositoryFactory {
public:
    CStoredRepositoryFactory(const wchar_t* tag, bool supportsDefaultItem)
        : m_strTag(tag), m_bSupportsDefaultItem(supportsDefaultItem) {}

    void ReloadRepository(int mode) override;
    int SupportsDefaultItem() const override { return m_bSupportsDefaultItem; }
    StorePtr GetDiskStore() override;
    StorePtr GetNetStore() override;
    StorePtr GetSystemStore(System::CGisSystem* pSystem) override;

private:
    void ReadOnce();

    CString m_strTag;
    bool m_bSupportsDefaultItem;
    bool m_bIsRead = false;
    StorePtr m_pDisk;
    StorePtr m_pNet;
};

} // namespace Orvane
