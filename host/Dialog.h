// Questions to the user, and results for them, as the host's commands need them.
#pragma once

#include <optional>
#include <vector>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/EdPrompt.h"

namespace Tessaly {

/// Nothing if the user cancelled, or answered with nothing but blanks.
std::optional<CString> AskText(const wchar_t* prompt);

enum class Choice { Yes, No, Cancel };

/// The choice that the answer, the begin of a word in any case, stands for. The fallback if
/// the user cancelled or answered anything else, so it has to be the one that loses nothing.
/// \param prompt names the choices
Choice AskChoice(const CString& prompt, Choice fallback);

/// A line each; many are cut short with their count.
void PrintWarnings(const std::vector<CString>& warnings);
/// Prints the reason of a failure with what it means, which is printed by itself too if there
/// is no reason. Always false, for commands to return.
bool Refuse(const CString& reason, const wchar_t* consequence);

/// Says so if there is none.
AcApDocument* CurrentDrawing();

} // namespace Tessaly
