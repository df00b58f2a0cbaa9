// The commands that open, save and close drawings, and that go through their history.
#pragma once

#include <span>

#include "host/HostCommands.h"

namespace Tessaly {

std::span<const HostCommand> DrawingCommands();

/// Opens a drawing and says what came of it.
bool OpenDrawing(const wchar_t* path);

/// Asks about each drawing with unsaved changes, and saves those that the user wants saved.
/// False once the user cancelled, or a drawing could not be saved.
bool AskAboutUnsavedDrawings();
/// For who leaves without asking.
void NameUnsavedDrawings();

} // namespace Tessaly
