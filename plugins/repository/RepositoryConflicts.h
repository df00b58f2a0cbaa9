// What to do when two people have changed the same configuration.
#pragma once

#include "siblings/giscore/repository/RepositoryStore.h"

namespace Orvane::Repository {

/// Gives a changed item back to its store. If somebody else has changed or deleted it since it
/// was read, the user is asked which one to keep. The item that holds the user's changes now,
/// which is a copy where both are kept; null if nothing was written, which the user knows.
CRepositoryStore::ItemPtr GiveBack(CRepositoryStore& store, const CRepositoryStore::ItemPtr& item);

/// Asks whether an item is really to be deleted, and once more if somebody else has changed it
/// since it was read.
bool AskDelete(const CRepositoryStore& store, const CRepositoryItem& item);

} // namespace Orvane::Repository
