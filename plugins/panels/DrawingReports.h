// Figures of a system, and what the colours of a drawing mean.
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

/// What is known of a system, in the order in which it is read. Lengths and areas are in
/// drawing units.
std::vector<Figure> FiguresOf(const System::CGisSystem& system);

/// Entities of a layer that are drawn in one colour.
struct LegendRow {
    CString layer;
    int colorIndex; ///< of the standard 255-colour table
    std::size_t count;
};

/// Of the layers that are shown and not empty, in the drawing's order; those in the layer's
/// own colour come first.
std::vector<LegendRow> LegendOf(const AcDbDatabase& drawing);

} // namespace Orvane::Panels
