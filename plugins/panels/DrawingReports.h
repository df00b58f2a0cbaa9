// Statistics of a system, and the legend of a drawing.
#pragma once

#include <vector>

#include "platform/arx/DbDatabase.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Panels {

struct Figure {
    CString label;
    CString value;
};

/// The statistics of a system, in display order. Lengths and areas are in drawing units.
std::vector<Figure> FiguresOf(const System::CGisSystem& system);

/// Entities of a layer drawn in one colour.
struct LegendRow {
    CString layer;
    int colorIndex; ///< of the standard 255-colour table
    std::size_t count;
};

/// The legend of all visible layers with entities, in the drawing's order; entities with the
/// layer's own colour come first.
std::vector<LegendRow> LegendOf(const AcDbDatabase& drawing);

} // namespace Orvane::Panels
