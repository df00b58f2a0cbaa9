#include "platform/arx/PromptChoices.h"

namespace {

using Part = CString PromptChoice::*;

bool BeginsWith(const CString& text, const CString& begin) {
    return text.Left(begin.GetLength()).CompareNoCase(begin) == 0;
}

std::optional<std::size_t> FindWhole(const ChoicePrompt& prompt, Part part, const CString& answer) {
    for (std::size_t i = 0; i < prompt.choices.size(); ++i) {
        if ((prompt.choices[i].*part).CompareNoCase(answer) == 0) {
            return i;
        }
    }
    return std::nullopt;
}

/// Finds a choice by a prefix. Nothing if it is ambiguous.
std::optional<std::size_t> FindBegin(const ChoicePrompt& prompt, Part part, const CString& answer) {
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < prompt.choices.size(); ++i) {
        if (BeginsWith(prompt.choices[i].*part, answer)) {
            if (found) {
                return std::nullopt;
            }
            found = i;
        }
    }
    return found;
}

} // namespace

CString ChoicesText(const ChoicePrompt& prompt) {
    CString list;
    for (const PromptChoice& choice : prompt.choices) {
        list += (list.IsEmpty() ? L"" : L"/") + choice.text;
    }
    return list;
}

CString PromptText(const ChoicePrompt& prompt) {
    CString text =
        prompt.question + (prompt.question.IsEmpty() ? L"[" : L" [") + ChoicesText(prompt) + L"]";
    if (prompt.fallback) {
        text += L" <" + prompt.choices[*prompt.fallback].text + L">";
    }
    return text + L": ";
}

std::optional<std::size_t> FindChoice(const ChoicePrompt& prompt, CString answer) {
    answer.Trim();
    if (answer.IsEmpty()) {
        return prompt.fallback;
    }
    const bool isKeyword = answer.GetAt(0) == L'_';
    if (isKeyword) {
        answer = answer.Mid(1);
    }
    if (answer.IsEmpty()) {
        return std::nullopt;
    }
    std::optional<std::size_t> found = FindWhole(prompt, &PromptChoice::keyword, answer);
    if (!found && !isKeyword) {
        found = FindWhole(prompt, &PromptChoice::text, answer);
        found = found ? found : FindBegin(prompt, &PromptChoice::text, answer);
    }
    return found ? found : FindBegin(prompt, &PromptChoice::keyword, answer);
}
