// The families of configurations that the plug-in brings.
#pragma once

namespace Orvane::Repository {

/// Makes the families and the repositories of their items known. To be called before
/// RegisterFamilies.
void RegisterRepositories();

/// Tree items and commands of the families. The base executor has to be registered before.
void RegisterFamilies();

} // namespace Orvane::Repository
