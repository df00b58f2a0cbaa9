// Reading of anything that GDAL's vector drivers read.
#pragma once

#include <memory>

#include "platform/arx/DbImport.h"

namespace Tessaly {

/// Formats whose files point to other places, or to the network, are left out: what is
/// imported is the file that the user named.
std::unique_ptr<IDbImporter> MakeImporter();

} // namespace Tessaly
