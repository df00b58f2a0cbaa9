// Prompts and refusals at the command line.
#pragma once

#include <string>

#include "platform/win/String.h"

namespace Orvane::Plugins {

void PrintLine(const std::string& line);
/// Prints why a command was refused. Always returns false.
bool Refuse(const CString& reason);

} // namespace Orvane::Plugins
