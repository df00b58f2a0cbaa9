// Prompts and reports of host commands.
#pragma once

#include <optional>
#include <vector>

#include "host/Texts.h"
#include "platform/arx/ApDocManager.h"
#include "platform/arx/EdPrompt.h"

namespace Tessaly {

/// Nothing if the user cancelled or entered nothing.
std::optional<CString> AskText(Msg label);

/// One line per warning; long lists are truncated, with a count of the rest.
void PrintWarnings(const std::vector<CString>& warnings);
/// Prints the reason of a failure, if there is one, and its consequence. Always returns false, for
/// use in return statements.
bool Refuse(const CString& reason, Msg consequence);
bool Refuse(Msg consequence);

/// Prints a message and returns null if no drawing is open.
AcApDocument* CurrentDrawing();

} // namespace Tessaly
