#include "platform/arx/EdPrompt.h"

#include <algorithm>

#include "platform/arx/CommandRunner.h"
#include "platform/arx/HostPort.h"
#include "platform/win/PlatformTexts.h"

namespace {

/// Default title of messages.
constexpr std::wstring_view kMessageTitle = L"Tessaly";

constexpr const wchar_t* kEscape = L"\x1B";

AcColorSettings& Colors() {
    static AcColorSettings colors = [] {
        AcColorSettings own;
        own.m_colors.fill(AcColorSettings::kHostColor);
        return own;
    }();
    return colors;
}

/// Shortens a prompt in the middle: a value longer than any screen would hide the question.
CString Shown(const wchar_t* prompt) {
    constexpr std::size_t kLongest = 2000;
    constexpr std::size_t kEnd = 200;
    const std::wstring_view whole = prompt ? prompt : L"";
    if (whole.size() <= kLongest) {
        return CString(std::wstring(whole));
    }
    return CString(std::wstring(whole.substr(0, kLongest - kEnd)) + L" ... " +
                   std::wstring(whole.substr(whole.size() - kEnd)));
}

} // namespace

void acutPrint(std::wstring_view text) {
    HostPort().Print(text);
}

int acedGetString(int flags, const wchar_t* prompt, CString& answer) {
    const bool allowBlanks = (flags & kGetStringAllowBlanks) != 0;
    const PromptEnd end = HostPort().GetString(allowBlanks, Shown(prompt).View(), answer);
    return end == PromptEnd::Answered ? RTNORM : RTCAN;
}

int acedGetString(int flags, const wchar_t* prompt, wchar_t* buffer, std::size_t bufferSize) {
    if (!buffer || bufferSize == 0) {
        return RTERROR;
    }
    CString answer;
    const int result = acedGetString(flags, prompt, answer);
    const std::size_t length = std::min(answer.View().size(), bufferSize - 1);
    std::copy_n(answer.GetString(), length, buffer);
    buffer[length] = L'\0';
    return result;
}

std::optional<CString> acedAskText(const CString& label, const CString& current) {
    const CString prompt = label + (current.IsEmpty() ? L"" : L" <" + current + L">") + L": ";
    CString answer;
    if (acedGetString(kGetStringAllowBlanks, prompt, answer) != RTNORM) {
        return std::nullopt;
    }
    answer.Trim();
    return answer.IsEmpty() ? current : answer;
}

int acedGetChoice(const ChoicePrompt& prompt, std::size_t& choice, CString& other) {
    if (HostPort().GetChoice(prompt, other) != PromptEnd::Answered) {
        return RTCAN;
    }
    const std::optional<std::size_t> found = FindChoice(prompt, other.Trim());
    choice = found.value_or(choice);
    return found ? RTNORM : RTERROR;
}

std::optional<std::size_t> acedAskChoice(const ChoicePrompt& prompt) {
    std::size_t choice = 0;
    CString other;
    const int result = acedGetChoice(prompt, choice, other);
    if (result == RTERROR) {
        acutPrint(MessageText(PlatformMsg::NotAChoice, other, ChoicesText(prompt)).View());
        acutPrint(L"\n");
    }
    return result == RTNORM ? std::optional(choice) : std::nullopt;
}

bool acedAskYes(const CString& question) {
    return acedAskChoice({question, {YesChoice(), NoChoice()}, 1}) == 0U;
}

PromptChoice YesChoice() {
    return {L"Yes", MessageText(PlatformMsg::Yes)};
}

PromptChoice NoChoice() {
    return {L"No", MessageText(PlatformMsg::No)};
}

PromptChoice CancelChoice() {
    return {L"Cancel", MessageText(PlatformMsg::Cancel)};
}

void acedAlert(const wchar_t* message) {
    HostPort().Alert(message ? message : L"", kMessageTitle);
}

void AfxMessageBox(const wchar_t* message) {
    HostPort().Alert(message ? message : L"", kMessageTitle);
}

void acedPostCommand(const wchar_t* text) {
    const CString command(text ? text : L"");
    if (command == kEscape) {
        HostPort().Escape();
    } else {
        acedRunner().Post({command, OrderOrigin::Module});
    }
}

bool acedGetCurrentColors(AcColorSettings* pColors) {
    if (!pColors) {
        return false;
    }
    *pColors = Colors();
    return true;
}

bool acedSetCurrentColors(const AcColorSettings* pColors) {
    if (!pColors) {
        return false;
    }
    Colors() = *pColors;
    HostPort().ShowColors(Colors());
    return true;
}
