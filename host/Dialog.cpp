#include "host/Dialog.h"

#include <algorithm>

namespace Tessaly {

namespace {

constexpr std::size_t kMostWarnings = 20;

struct ChoiceName {
    std::wstring_view name;
    Choice choice;
};
constexpr ChoiceName kChoices[] = {
    {L"YES", Choice::Yes}, {L"NO", Choice::No}, {L"CANCEL", Choice::Cancel}};

std::optional<Choice> FindChoice(CString answer) {
    answer.Trim().MakeUpper();
    for (const ChoiceName& entry : kChoices) {
        if (!answer.IsEmpty() && entry.name.starts_with(answer.View())) {
            return entry.choice;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<CString> AskText(const wchar_t* prompt) {
    CString answer;
    if (acedGetString(kGetStringAllowBlanks, prompt, answer) != RTNORM || answer.Trim().IsEmpty()) {
        return std::nullopt;
    }
    return answer;
}

Choice AskChoice(const CString& prompt, Choice fallback) {
    const std::optional<CString> answer = AskText(prompt);
    if (!answer) {
        return fallback;
    }
    const std::optional<Choice> choice = FindChoice(*answer);
    if (!choice) {
        // Not asked again: in a script the next line is no answer.
        acutPrintf(L"\"%s\" is none of the answers.\n", *answer);
    }
    return choice.value_or(fallback);
}

void PrintWarnings(const std::vector<CString>& warnings) {
    const std::size_t count = std::min(warnings.size(), kMostWarnings);
    for (std::size_t i = 0; i < count; ++i) {
        acutPrintf(L"%s\n", warnings[i]);
    }
    if (count < warnings.size()) {
        acutPrintf(L"... and %d more warnings.\n", static_cast<int>(warnings.size() - count));
    }
}

bool Refuse(const CString& reason, const wchar_t* consequence) {
    if (!reason.IsEmpty()) {
        acutPrintf(L"%s\n", reason);
    }
    acutPrintf(L"%s\n", consequence);
    return false;
}

AcApDocument* CurrentDrawing() {
    AcApDocument* const pDoc = acDocManagerPtr()->curDocument();
    if (!pDoc) {
        acutPrintf(L"No drawing is open.\n");
    }
    return pDoc;
}

} // namespace Tessaly
