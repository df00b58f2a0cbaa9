// Prompts and reports of the host's commands.
#pragma once

#include <optional>
#include <vector>

#include "host/Texts.h"
#include "platform/arx/ApDocManager.h"
#include "platform/arx/EdPrompt.h"

namespace Tessaly {

/// Nothing if the user cancelled or typed nothing.
std::optional<CString> AskText(Msg label);

/// A line each; a long list is cut off with a count of the rest.
void PrintWarnings(const std::vector<CString>& warnings);
/// Prints the reason of a failure, if there is one, and what it means. Always false, for
/// commands to return.
bool Refuse(const CString& reason, Msg consequence);
bool Refuse(Msg consequence);

/// Prints a message and returns null if no drawing is open.
AcApDocument* CurrentDrawing();

} // namespace Tessaly
