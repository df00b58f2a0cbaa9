// Prompts that offer several choices.
#pragma once

#include <optional>
#include <vector>

#include "platform/win/String.h"

/// One choice of a prompt.
struct PromptChoice {
    CString keyword; ///< language-independent English keyword, for scripts: "Yes"
    CString text;    ///< display text in the user's language: "Ja"
};

struct ChoicePrompt {
    CString question; ///< without the choices: "Save the changes?"
    std::vector<PromptChoice> choices;
    std::optional<std::size_t> fallback = {}; ///< index of the choice for an empty answer
    bool takesOther = false;                  ///< other answers are allowed, such as a number
};

/// "Save the changes? [Ja/Nein] <Nein>: ".
PLATFORM_API CString PromptText(const ChoicePrompt& prompt);
/// "Ja/Nein".
PLATFORM_API CString ChoicesText(const ChoicePrompt& prompt);

/// Finds the choice for an answer, ignoring case: a keyword, optionally preceded by "_", a text, or
/// an unambiguous prefix of either. Texts take precedence over keywords when matching prefixes,
/// unless "_" asks for a keyword.
PLATFORM_API std::optional<std::size_t> FindChoice(const ChoicePrompt& prompt, CString answer);

/// The answer that selects this choice in every language.
inline CString KeywordAnswer(const PromptChoice& choice) {
    return L"_" + choice.keyword;
}
