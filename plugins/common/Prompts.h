// Talk with the user at the command line.
#pragma once

#include <string>

#include "platform/win/String.h"

namespace Orvane::Plugins {

void PrintLine(const std::string& line);
/// The answer of a prompt without blanks around it; empty if it was cancelled.
CString Ask(const wchar_t* prompt);
/// Tells why a command is not carried out. Always false.
bool Refuse(const CString& reason);

} // namespace Orvane::Plugins
