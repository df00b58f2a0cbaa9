// Finds entities by id and formats them for lists.
#pragma once

#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Panels {

/// The entity of the current drawing with this id, including parts of schemes. Evaluates to false
/// if it belongs to no system.
Topology::CEntity FindEntity(AcDbObjectId id);

/// The entity's storage. The entity must be valid.
Topology::CTopologyStorage& StorageOf(const Topology::CEntity& entity);

/// The kind as the system's topology names it, such as "Section".
CString KindOf(const Topology::CEntity& entity);
/// Empty if the drawing does not have the system.
CString SystemNameOf(const Topology::CEntity& entity);

/// Numbers in their shortest form; texts unchanged.
CString TextOf(const AcDbValue& value);

/// A length or coordinate with two decimals.
CString MeasureText(double value);

} // namespace Orvane::Panels
