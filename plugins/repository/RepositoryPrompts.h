// Prompts with a default answer.
#pragma once

#include <optional>
#include <vector>

#include "platform/win/String.h"
#include "plugins/common/Prompts.h"

namespace Orvane::Repository {

using Plugins::PrintLine;
using Plugins::Refuse;

/// Like acedAskText, but "-" means an empty text.
std::optional<CString> AskTextOrNone(const CString& label, const CString& current);

/// Parses numbers separated by spaces; nothing if the text contains anything else.
std::optional<std::vector<double>> NumbersOf(const CString& text);
/// The inverse of NumbersOf.
CString NumbersText(const std::vector<double>& numbers);

} // namespace Orvane::Repository
