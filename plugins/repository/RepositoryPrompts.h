// Questions with an answer to fall back on.
#pragma once

#include <optional>
#include <vector>

#include "platform/win/String.h"
#include "plugins/common/Prompts.h"

namespace Orvane::Repository {

using Plugins::PrintLine;
using Plugins::Refuse;

/// "label <current>: ". An empty answer is the current text; nothing if it was cancelled.
std::optional<CString> AskText(const CString& label, const CString& current);

/// The same where "-" stands for an empty text.
std::optional<CString> AskTextOrNone(const CString& label, const CString& current);

/// What can be chosen: by its word, which is the same in every language, or as it is shown.
struct Choice {
    CString word;
    CString shown;
};

/// "label [one/another] <one>: ". The number of the choice; nothing if it was cancelled, or
/// for an answer that is none of them, which the user is told.
std::optional<std::size_t> AskChoice(const CString& label, const std::vector<Choice>& choices,
                                     std::size_t current);

/// No unless the user says yes.
bool AskYes(const CString& label);

/// The numbers of a text with blanks between; nothing if there is something else in it.
std::optional<std::vector<double>> NumbersOf(const CString& text);
/// The reverse.
CString NumbersText(const std::vector<double>& numbers);

} // namespace Orvane::Repository
