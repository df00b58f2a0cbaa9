// Highlights entities in the view.
#pragma once

#include <span>

#include "platform/arx/DbObject.h"

namespace Orvane::Plugins {

/// Highlights these entities and clears earlier highlights. Does nothing without a view.
void MarkEntities(std::span<const AcDbObjectId> ids);

} // namespace Orvane::Plugins
