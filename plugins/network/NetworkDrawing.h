// Adds a network to the drawing.
#pragma once

#include <vector>

#include "plugins/network/ImportedSystems.h"
#include "plugins/network/NetworkModel.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Network {

/// Functions of line systems in the topology configuration.
inline constexpr int kFunctionWater = 1;
inline constexpr int kFunctionSewer = 2;

/// Creates a system of nodes and sections in the current drawing, and one of polygons named "<name>
/// polygons" if the network has any.
/// \return an empty string, or the reason why nothing was added
CString AddToDrawing(const NetworkModel& model, int systemFunction, const CString& name,
                     ImportedSystems& imported, ImportProgress& progress);

} // namespace Orvane::Network
