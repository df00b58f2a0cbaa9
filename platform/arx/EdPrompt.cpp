#include "platform/arx/EdPrompt.h"

#include <algorithm>

#include "platform/arx/HostPort.h"

namespace {

/// Title of messages that name none.
constexpr std::wstring_view kMessageTitle = L"Tessaly";

AcColorSettings& Colors() {
    static AcColorSettings colors = [] {
        AcColorSettings own;
        own.m_colors.fill(AcColorSettings::kHostColor);
        return own;
    }();
    return colors;
}

} // namespace

void acutPrint(std::wstring_view text) {
    HostPort().Print(text);
}

int acedGetString(int flags, const wchar_t* prompt, CString& answer) {
    const bool allowBlanks = (flags & kGetStringAllowBlanks) != 0;
    const PromptEnd end = HostPort().GetString(allowBlanks, prompt ? prompt : L"", answer);
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

void acedAlert(const wchar_t* message) {
    HostPort().Alert(message ? message : L"", kMessageTitle);
}

void AfxMessageBox(const wchar_t* message) {
    HostPort().Alert(message ? message : L"", kMessageTitle);
}

void acedPostCommand(const wchar_t* text) {
    HostPort().PostCommand(text ? text : L"");
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
