// What a module provides for a repository of its own.
#pragma once

namespace Orvane {

/// Stands for one family of repository items. Registered by tag, not owned: it has to
/// live as long as the process.
class CRepositoryFactory {
public:
    virtual ~CRepositoryFactory() = default;

    /// Reads the items of the family again from where they are kept.
    /// \param mode as handed to CRepositoryManager::ReloadRepositories
    virtual void ReloadRepository(int mode) = 0;
    /// Non-zero if one item of the family can be the default one.
    virtual int SupportsDefaultItem() const { return 0; }
};

} // namespace Orvane
