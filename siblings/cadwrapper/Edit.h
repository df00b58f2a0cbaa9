// Operations on the view of the current drawing.
#pragma once

#include <span>

#include "platform/arx/DbEntity.h"
#include "siblings/cadwrapper/Api.h"

namespace Orvane {

class CADWRAPPER_API CORVCEdit {
public:
    /// Centres the view on the entities and fits them. A factor of 1.05 leaves a margin of five
    /// per cent, 3 shows three times their extent. Returns false and keeps the view if no entity
    /// has a position or there is no view.
    static bool zoom(AcDbObjectId id, double factor) { return zoom({&id, 1}, factor); }
    static bool zoom(std::span<const AcDbObjectId> ids, double factor);
};

} // namespace Orvane
