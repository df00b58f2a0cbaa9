// The families of repository items that modules have brought.
#pragma once

#include <vector>

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane {

class CRepositoryFactory;
class CRepositoryItemFactory;
class IRepositoryFamily;

/// Tags are found without regard to case. Main thread only.
class GISCORE_API CRepositoryManager {
public:
    /// Lives to the end of the process.
    static CRepositoryManager* Instance();

    /// A tag that is taken already gets the new factory in its old place. Null is ignored.
    void RegisterRepositoryFactory(const wchar_t* tag, CRepositoryFactory* pFactory);
    void RegisterRepositoryItemFactory(const wchar_t* tag, CRepositoryItemFactory* pFactory);
    /// A family on which the base executor's commands work. It also becomes the item factory
    /// of its tag.
    void RegisterRepositoryFamily(const wchar_t* tag, IRepositoryFamily* pFamily);

    /// Null for an unknown tag. (The spelling is the interface's.)
    CRepositoryFactory* GetRepositoryfactory(const wchar_t* tag) const;
    CRepositoryItemFactory* GetRepositoryItemFactory(const wchar_t* tag) const;
    IRepositoryFamily* GetRepositoryFamily(const wchar_t* tag) const;
    /// Tags of the families, in the order of registration.
    std::vector<CString> GetRepositoryFamilyTags() const;

    /// Asks every factory, in the order of registration, to read its items again. A
    /// factory that is registered meanwhile is asked too, at its turn.
    void ReloadRepositories(int mode);
    /// Asks every factory to look for what others have changed.
    void LookForChanges();

private:
    template <class Factory>
    struct Entry {
        CString tag;
        Factory* pFactory;
    };
    CRepositoryManager() = default;

    std::vector<Entry<CRepositoryFactory>> m_factories;
    std::vector<Entry<CRepositoryItemFactory>> m_itemFactories;
    std::vector<Entry<IRepositoryFamily>> m_families;
};

} // namespace Orvane
