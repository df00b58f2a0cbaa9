// Printing and prompting at the host's command line.
#pragma once

#include <array>
#include <cstdint>

#include "platform/arx/PromptChoices.h"

/// Results of prompts.
inline constexpr int RTNORM = 5100;   ///< answered
inline constexpr int RTERROR = -5001; ///< the arguments make no prompt
inline constexpr int RTCAN = -5002;   ///< cancelled by the user

/// Flag of acedGetString: the answer may contain blanks.
inline constexpr int kGetStringAllowBlanks = 32;

PLATFORM_API void acutPrint(std::wstring_view text);

/// Prints a formatted text (TextFormat.h) at the command line.
template <class... Args>
void acutPrintf(std::wstring_view format, const Args&... args) {
    acutPrint(FormatText(format, args...));
}

/// Asks for a text. An answer longer than the buffer is cut to fit; the result is ended
/// with a NUL in any case.
/// \param bufferSize number of characters, the NUL included; less than 1 gives RTERROR.
/// \return RTNORM, RTCAN or RTERROR
PLATFORM_API int acedGetString(int flags, const wchar_t* prompt, wchar_t* buffer,
                               std::size_t bufferSize);
/// The same for an answer of any length.
PLATFORM_API int acedGetString(int flags, const wchar_t* prompt, CString& answer);

/// Asks "label <current>: " for a text, trimmed; an empty answer stands for the current one.
/// Nothing if the user cancelled.
PLATFORM_API std::optional<CString> acedAskText(const CString& label, const CString& current = {});

/// Asks for one of several choices. RTNORM with the number of the choice; RTERROR with the
/// answer in `other` if it is none of them; RTCAN.
PLATFORM_API int acedGetChoice(const ChoicePrompt& prompt, std::size_t& choice, CString& other);
/// The same for a prompt that takes nothing else. Nothing if the user cancelled or, which is
/// reported, gave another answer: it is not repeated, since the next line of a script is
/// hardly an answer.
PLATFORM_API std::optional<std::size_t> acedAskChoice(const ChoicePrompt& prompt);
/// Asks "question [Yes/No] <No>: ".
PLATFORM_API bool acedAskYes(const CString& question);

/// "Yes" and "No", and "Cancel" in the user's language.
PLATFORM_API PromptChoice YesChoice();
PLATFORM_API PromptChoice NoChoice();
PLATFORM_API PromptChoice CancelChoice();

/// Shows a message until the user has taken note of it.
PLATFORM_API void acedAlert(const wchar_t* message);
/// Shows a message box of the default style: the text and one button.
PLATFORM_API void AfxMessageBox(const wchar_t* message);

/// Has the host run the command of this name once the running one has ended. A single Escape
/// character cancels what is still open instead.
PLATFORM_API void acedPostCommand(const wchar_t* text);

/// Colours of the host's own surfaces by their fixed places, as 0x00RRGGBB.
struct AcColorSettings {
    /// The host's own choice, which may change with its theme.
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
