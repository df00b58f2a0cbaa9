// Commands that open, save and close drawings, and undo and redo.
#pragma once

#include <span>

#include "host/HostCommands.h"

namespace Tessaly {

std::span<const HostCommand> DrawingCommands();

/// Opens a drawing and reports the outcome, and who else has it open.
/// \param mayAsk whether to ask about read-only in that case
bool OpenDrawing(const wchar_t* path, bool mayAsk = false);

/// Asks about each drawing with unsaved changes and saves it if the user wants that. False if the
/// user cancelled or saving failed.
bool AskAboutUnsavedDrawings();
/// Lists drawings with unsaved changes, when exiting without asking.
void NameUnsavedDrawings();

} // namespace Tessaly
