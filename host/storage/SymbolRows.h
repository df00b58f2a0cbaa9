// Layers, blocks and dictionaries, and the notes about the rest, as rows.
#pragma once

#include <initializer_list>
#include <utility>

#include "host/storage/Schema.h"
#include "platform/arx/DbAttributes.h"

class AcDbObject;

namespace Tessaly {

/// Writes a layer, block or dictionary whatever the file had of it; an erased one goes from
/// the file. False on failure. In a new file nothing is looked for.
bool WriteSymbol(OpenGeoPackage& file, const AcDbObject& object, bool isNewFile);

/// Adds a row to one of the tables of notes.
bool AddNote(OpenGeoPackage& file, const char* table,
             std::initializer_list<std::pair<const char*, AcDbValue>> values);

} // namespace Tessaly
