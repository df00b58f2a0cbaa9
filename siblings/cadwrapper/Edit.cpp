#include "siblings/cadwrapper/Edit.h"

#include "platform/arx/EdDisplay.h"

namespace Orvane {

bool CORVCEdit::zoom(std::span<const AcDbObjectId> ids, double factor) {
    IDrawingDisplay* const pDisplay = DrawingDisplay();
    return pDisplay && pDisplay->ZoomTo(ids, factor);
}

} // namespace Orvane
