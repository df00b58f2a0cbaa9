// Data of other programs, as plain entities of the drawing.
#pragma once

#include <vector>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbImport.h"

namespace Tessaly {

/// The command: asks for a file. False if nothing was imported.
bool Import();

/// Adds the features to layers of their layers' names. An empty drawing that has no
/// coordinate system takes the first one of the layers. All or nothing: if something throws,
/// what was added is erased again.
void AddToDrawing(AcDbDatabase& database, std::vector<AcDbImportLayer> layers);

/// What the user should know of the layers' coordinate systems beside the drawing's.
std::vector<CString> CoordinateWarnings(const AcDbDatabase& database,
                                        const std::vector<AcDbImportLayer>& layers);

} // namespace Tessaly
