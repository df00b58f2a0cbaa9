// The families of configurations that the plug-in brings.
#pragma once

#include "plugins/repository/RepositoryFamily.h"

namespace Orvane::Workspace {
class IWsCommandExecutor;
}

namespace Orvane::Repository {

/// Null for a tag that is none of the plug-in's.
RepositoryFamily* FindFamily(const wchar_t* tag);

/// What runs the items of a family; null for an unknown tag.
Workspace::IWsCommandExecutor* FindFamilyExecutor(const wchar_t* tag);

/// Makes the repositories and the items of all families known to the workspace. To be called
/// before RegisterFamilies.
void RegisterRepositories();

/// Tree items and commands of all families. The base executor has to be registered before.
void RegisterFamilies();

} // namespace Orvane::Repository
