// The program's command line.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/win/String.h"

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
    CString error; ///< empty if the command line made sense
};

OptionsResult ReadOptions(const std::vector<std::string>& arguments);

/// How to call the program.
const wchar_t* UsageText();

} // namespace Tessaly
