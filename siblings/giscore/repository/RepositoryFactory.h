// What a module provides for a repository of its own.
#pragma once

#include <boost/shared_ptr.hpp>

namespace Orvane {

class CRepositoryStore;
namespace System {
class CGisSystem;
}

/// Stands for one family of repository items. Registered by tag, not owned: it has to
/// live as long as the process.
class CRepositoryFactory {
public:
    using StorePtr = boost::shared_ptr<CRepositoryStore>;

    virtual ~CRepositoryFactory() = default;

    /// Reads the items of the family again from where they are kept.
    /// \param mode as handed to CRepositoryManager::ReloadRepositories
    virtual void ReloadRepository(int mode) = 0;
    /// Reads what others have changed meanwhile, and tells the trees if there is anything. Called
    /// before each command, and about once a second while trees of folders are visible: has to
    /// be quick.
    virtual void LookForChanges() {}
    /// Non-zero if one item of the family can be the default one.
    virtual int SupportsDefaultItem() const { return 0; }

    // Where items of the family are kept. Null if there is no such place.
    virtual StorePtr GetDiskStore() { return {}; }
    virtual StorePtr GetNetStore() { return {}; }
    /// Null for a null system, too. Must not outlive the system.
    virtual StorePtr GetSystemStore(System::CGisSystem* /*pSystem*/) { return {}; }
};

} // namespace Orvane
