// The program's command line.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/Texts.h"

namespace Tessaly {

struct Options {
    bool console = false;
    bool help = false;
    std::optional<CString> script;     ///< run it and end with its status
    std::optional<CString> first;      ///< run it, then go on at the prompt
    std::optional<CString> snapshot;   ///< draw the desktop into this file, and end
    std::optional<CString> transcript; ///< what the desktop's command line shows goes here, too
    std::optional<CString> theme;      ///< "light" or "dark" for this run
    CString drawing;                   ///< opened at the start; empty: a new one
    CString trace;
    CString support; ///< empty: the user's own folder
    CString install; ///< empty: where the program lies
};

struct OptionsResult {
    Options options;
    std::optional<Msg> problem; ///< the first one, if the command line made no sense
    CString argument;           ///< that is to blame

    /// Formatted late: the user's language is known only once the options are. Empty if there
    /// is no problem.
    CString Error() const { return problem ? Text(*problem, argument) : CString(); }
};

/// Reads on after a problem, so that the folder of the settings is known in any case.
OptionsResult ReadOptions(const std::vector<std::string>& arguments);

} // namespace Tessaly
