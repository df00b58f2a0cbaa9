// The way of a network into the drawing, and back out of it.
#pragma once

#include <vector>

#include "plugins/network/ImportedSystems.h"
#include "plugins/network/NetworkModel.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Network {

/// Functions of line systems in the topology configuration.
inline constexpr int kFunctionWater = 1;
inline constexpr int kFunctionSewer = 2;

/// Makes a system of nodes and sections of the current drawing from a network, and one of
/// polygons named "<name> polygons" if it has any.
/// \return an empty text, or the reason why nothing was added
CString AddToDrawing(const NetworkModel& model, int systemFunction, const CString& name,
                     ImportedSystems& imported, ImportProgress& progress);

} // namespace Orvane::Network
