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
    bool readOnly = false;             ///< open drawings read-only that another program has open
    std::optional<CString> script;     ///< run it, then exit with its status
    std::optional<CString> first;      ///< run it, then continue at the prompt
    std::optional<CString> snapshot;   ///< save a screenshot of the desktop to this file and exit
    std::optional<CString> transcript; ///< also write the command line's output to this file
    std::optional<CString> theme;      ///< "light" or "dark", for this run
    CString drawing;                   ///< opened at start-up; empty: a new drawing
    CString trace;
    CString support; ///< empty: the user's settings folder
    CString install; ///< empty: the program's folder
};

struct OptionsResult {
    Options options;
    std::optional<Msg> problem; ///< the first problem with the command line
    CString argument;           ///< the option or value at fault

    /// Formatted on demand, because the user's language is known only after reading the options.
    /// Empty without a problem.
    CString Error() const { return problem ? Text(*problem, argument) : CString(); }
};

/// Continues after a problem, so that the settings folder is known in any case.
OptionsResult ReadOptions(const std::vector<std::string>& arguments);

} // namespace Tessaly
