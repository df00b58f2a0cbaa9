// Imports data from other programs as plain entities.
#pragma once

#include <vector>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbImport.h"

namespace Tessaly {

/// The import command; asks for a file. False if nothing was imported.
bool Import();

/// Adds the features to drawing layers with the same names. An empty drawing without a coordinate
/// system takes the first one of the layers. All or nothing: if something throws, everything added
/// is erased again.
void AddToDrawing(AcDbDatabase& database, std::vector<AcDbImportLayer> layers);

/// Warnings for layers whose coordinate system differs from the drawing's.
std::vector<CString> CoordinateWarnings(const AcDbDatabase& database,
                                        const std::vector<AcDbImportLayer>& layers);

} // namespace Tessaly
