// Messages and questions to the user.
#pragma once

#include "platform/arx/PromptChoices.h"
#include "platform/win/Types.h"

class CWnd;

inline constexpr UINT MB_OK = 0x00;
inline constexpr UINT MB_OKCANCEL = 0x01;
inline constexpr UINT MB_YESNOCANCEL = 0x03;
inline constexpr UINT MB_YESNO = 0x04;
inline constexpr UINT MB_TYPEMASK = 0x0F;
inline constexpr UINT MB_ICONSTOP = 0x10;
inline constexpr UINT MB_ICONQUESTION = 0x20;
inline constexpr UINT MB_ICONEXCLAMATION = 0x30;
inline constexpr UINT MB_ICONINFORMATION = 0x40;
inline constexpr UINT MB_ICONMASK = 0xF0;
inline constexpr UINT MB_DEFBUTTON1 = 0x000; ///< Enter presses the first button
inline constexpr UINT MB_DEFBUTTON2 = 0x100;
inline constexpr UINT MB_DEFBUTTON3 = 0x200; ///< the last one if there are fewer
inline constexpr UINT MB_DEFMASK = 0x300;

/// Shows a text with buttons and waits. Without a desktop, asks at the host's prompt.
/// \return the id of the button; the safest one if there is no answer: IDCANCEL, or IDNO without a
/// cancel button
PLATFORM_API int ShowMessageBox(CWnd* pParent, const wchar_t* text, const wchar_t* caption,
                                UINT type);
/// Shows a question on the desktop, with a button for each choice. Nothing if the user did not
/// answer.
PLATFORM_API std::optional<std::size_t> ShowChoiceBox(CWnd* pParent, const ChoicePrompt& prompt,
                                                      const wchar_t* caption);
/// A message box above the active window, titled with the product's name.
PLATFORM_API int AfxMessageBox(const wchar_t* text, UINT type);
