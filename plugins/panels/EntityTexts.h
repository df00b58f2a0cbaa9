// What entities of networks and areas are called in lists, and where they are found.
#pragma once

#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Panels {

/// The entity of an id in the current drawing, a scheme's part or not; false if it belongs to
/// no system.
Topology::CEntity FindEntity(AcDbObjectId id);

/// Its storage; of an entity that is true.
Topology::CTopologyStorage& StorageOf(const Topology::CEntity& entity);

/// "Section", as its system's topology calls it.
CString KindOf(const Topology::CEntity& entity);
/// Empty for a system that the drawing does not have.
CString SystemNameOf(const Topology::CEntity& entity);

/// Numbers as short as they can be, texts as they are.
CString TextOf(const AcDbValue& value);

/// Lengths and positions for people: two decimals.
CString MeasureText(double value);

} // namespace Orvane::Panels
