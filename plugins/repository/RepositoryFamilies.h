// Registers the plug-in's families of configurations.
#pragma once

namespace Orvane::Repository {

/// Registers the families and the repositories of their items. Call before RegisterFamilies.
void RegisterRepositories();

/// Registers tree items and commands of the families. The base executor must be registered first.
void RegisterFamilies();

} // namespace Orvane::Repository
