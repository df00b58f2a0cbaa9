// Which displays there are for the toolkit to use. For sources only.
#pragma once

#include <string>

/// The displays on which a desktop can be seen, in the notation of QT_QPA_PLATFORM, the best
/// one first; empty if there is none. Of those that the variable names, or else of X11 and
/// Wayland, the ones whose server answers within seconds. Others that it names are taken at
/// their word.
std::string VisibleDisplays();
/// What the toolkit is to be started with, which it can always open.
/// \param desktop false: windows in memory, of the kind that the variable names
std::string DisplaysToStartWith(bool desktop);
