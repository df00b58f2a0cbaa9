// Questions with an answer to fall back on.
#pragma once

#include <optional>
#include <vector>

#include "platform/win/String.h"
#include "plugins/common/Prompts.h"

namespace Orvane::Repository {

using Plugins::PrintLine;
using Plugins::Refuse;

/// acedAskText where "-" stands for an empty text.
std::optional<CString> AskTextOrNone(const CString& label, const CString& current);

/// The numbers of a text separated by spaces; nothing if it contains anything else.
std::optional<std::vector<double>> NumbersOf(const CString& text);
/// The reverse.
CString NumbersText(const std::vector<double>& numbers);

} // namespace Orvane::Repository
