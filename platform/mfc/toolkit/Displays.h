// Detects the displays available to the toolkit. For sources only.
#pragma once

#include <string>

/// The displays on which a desktop can be shown, in the notation of QT_QPA_PLATFORM, best first;
/// empty if there is none. The candidates are those that the variable names, or else X11 and
/// Wayland; these two count only if their server answers within seconds. Other named displays are
/// not checked.
std::string VisibleDisplays();
/// The displays to start the toolkit with; it can always open one of them.
/// \param desktop false: windows in memory, of the kind that the variable names
std::string DisplaysToStartWith(bool desktop);
