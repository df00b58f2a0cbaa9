// Questions that are answered by one of several choices.
#pragma once

#include <optional>
#include <vector>

#include "platform/win/String.h"

/// One answer that a prompt offers.
struct PromptChoice {
    CString keyword; ///< English and the same in every language, for scripts: "Yes"
    CString text;    ///< what the user reads: "Ja"
};

struct ChoicePrompt {
    CString question; ///< without the choices: "Save the changes?"
    std::vector<PromptChoice> choices;
    std::optional<std::size_t> fallback = {}; ///< chosen by an empty answer
    bool takesOther = false; ///< the answer may also be something else, as a number
};

/// "Save the changes? [Ja/Nein] <Nein>: ".
PLATFORM_API CString PromptText(const ChoicePrompt& prompt);
/// "Ja/Nein".
PLATFORM_API CString ChoicesText(const ChoicePrompt& prompt);

/// The choice that an answer stands for, in any case of letters: a keyword, also with "_" in
/// front; a text; or what only one of them begins with. Texts come before keywords there,
/// unless "_" asks for a keyword.
PLATFORM_API std::optional<std::size_t> FindChoice(const ChoicePrompt& prompt, CString answer);

/// What answers a prompt with this choice in every language.
inline CString KeywordAnswer(const PromptChoice& choice) {
    return L"_" + choice.keyword;
}
