// Working with the view of the current drawing.
#pragma once

#include <span>

#include "platform/arx/DbEntity.h"
#include "siblings/cadwrapper/Api.h"

namespace Orvane {

class CADWRAPPER_API CORVCEdit {
public:
    /// Shows entities whole, in the middle. A factor of 1.05 leaves five per cent of margin,
    /// one of 3 shows three times as much to each side. False, and the view stays, if none of
    /// them has a place or there is no view.
    static bool zoom(AcDbObjectId id, double factor) { return zoom({&id, 1}, factor); }
    static bool zoom(std::span<const AcDbObjectId> ids, double factor);
};

} // namespace Orvane
