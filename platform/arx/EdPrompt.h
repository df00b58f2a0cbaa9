// Printing and prompting at the host's command line.
#pragma once

#include <array>
#include <cstdint>

#include "platform/arx/PromptChoices.h"

/// Results of prompts.
inline constexpr int RTNORM = 5100;   ///< answered
inline constexpr int RTERROR = -5001; ///< invalid arguments
inline constexpr int RTCAN = -5002;   ///< cancelled by the user

/// Flag of acedGetString: the answer may contain spaces.
inline constexpr int kGetStringAllowBlanks = 32;

PLATFORM_API void acutPrint(std::wstring_view text);

/// Prints a formatted text (TextFormat.h) at the command line.
template <class... Args>
void acutPrintf(std::wstring_view format, const Args&... args) {
    acutPrint(FormatText(format, args...));
}

/// Asks for a text. The answer is truncated to fit the buffer and always NUL-terminated.
/// \param bufferSize number of characters including the NUL; less than 1 gives RTERROR.
/// \return RTNORM, RTCAN or RTERROR
PLATFORM_API int acedGetString(int flags, const wchar_t* prompt, wchar_t* buffer,
                               std::size_t bufferSize);
/// The same without a limit on the length.
PLATFORM_API int acedGetString(int flags, const wchar_t* prompt, CString& answer);

/// Asks "label <current>: " for a text and trims it; an empty answer returns the current one.
/// Nothing if the user cancelled.
PLATFORM_API std::optional<CString> acedAskText(const CString& label, const CString& current = {});

/// Asks for one of several choices. RTNORM with the choice's index; RTERROR with the answer in
/// `other` if it is not one of the choices; RTCAN.
PLATFORM_API int acedGetChoice(const ChoicePrompt& prompt, std::size_t& choice, CString& other);
/// The same for a prompt that accepts only its choices. Nothing if the user cancelled or gave
/// another answer. The latter is reported; the prompt is not repeated, since the next line of a
/// script is unlikely to be an answer.
PLATFORM_API std::optional<std::size_t> acedAskChoice(const ChoicePrompt& prompt);
/// Asks "question [Yes/No] <No>: ".
PLATFORM_API bool acedAskYes(const CString& question);

/// Localised "Yes", "No" and "Cancel".
PLATFORM_API PromptChoice YesChoice();
PLATFORM_API PromptChoice NoChoice();
PLATFORM_API PromptChoice CancelChoice();

/// Shows a message until the user acknowledges it.
PLATFORM_API void acedAlert(const wchar_t* message);
/// Shows a message box of the default style: the text and an OK button.
PLATFORM_API void AfxMessageBox(const wchar_t* message);

/// Queues the command of this name until the running one has ended. A single Escape character
/// cancels the open prompt instead.
PLATFORM_API void acedPostCommand(const wchar_t* text);

/// Colours of the host's own surfaces, as 0x00RRGGBB.
struct AcColorSettings {
    /// Stands for the host's default colour, which may change with its theme.
    static constexpr std::uint32_t kHostColor = 0xFFFFFFFF;
    static constexpr std::size_t kCommandLineBackground = 5;
    static constexpr std::size_t kCommandLineText = 24;
    static constexpr std::size_t kPromptBackground = 25;
    static constexpr std::size_t kPromptText = 26;

    std::array<std::uint32_t, 30> m_colors{};
    bool operator==(const AcColorSettings&) const = default;
};

PLATFORM_API bool acedGetCurrentColors(AcColorSettings* pColors);
/// Takes effect at once.
PLATFORM_API bool acedSetCurrentColors(const AcColorSettings* pColors);
