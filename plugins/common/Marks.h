// Entities that stand out in the view.
#pragma once

#include <span>

#include "platform/arx/DbObject.h"

namespace Orvane::Plugins {

/// Shows entities in the colour of marks, and nothing else any more. Nothing happens where
/// there is no view.
void MarkEntities(std::span<const AcDbObjectId> ids);

} // namespace Orvane::Plugins
