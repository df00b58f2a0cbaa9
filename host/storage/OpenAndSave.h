// How drawings are opened, saved and saved elsewhere: as GeoPackages, which every GIS opens.
#pragma once

#include <memory>

#include "platform/arx/DbStorage.h"

namespace Tessaly {

/// Remembers of each database that it read or wrote what it needs to write its changes
/// only: a drawing is saved by the storage that read it. To be used from one thread.
std::unique_ptr<IDbStorage> MakeGeoPackageStorage();

} // namespace Tessaly
