#include "platform/mfc/MessageBox.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "platform/arx/EdPrompt.h"
#include "platform/arx/HostPort.h"
#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/WindowCore.h"
#include "platform/win/PlatformTexts.h"

namespace {

constexpr wchar_t kProductTitle[] = L"Halvane";
/// Number of attempts at the prompt before it counts as unanswered.
constexpr int kMostAsked = 5;

struct BoxButton {
    int id;
    const wchar_t* keyword;
    PlatformMsg text;
};

constexpr BoxButton kOk{IDOK, L"OK", PlatformMsg::Ok};
constexpr BoxButton kCancel{IDCANCEL, L"Cancel", PlatformMsg::Cancel};
constexpr BoxButton kYes{IDYES, L"Yes", PlatformMsg::Yes};
constexpr BoxButton kNo{IDNO, L"No", PlatformMsg::No};

/// The toolkit arranges these in the order customary on the desktop.
constexpr std::pair<const wchar_t*, QMessageBox::StandardButton> kStandardButtons[] = {
    {L"OK", QMessageBox::Ok},
    {L"Cancel", QMessageBox::Cancel},
    {L"Yes", QMessageBox::Yes},
    {L"No", QMessageBox::No}};

/// The last button is the answer if the user gives none.
std::span<const BoxButton> ButtonsOf(UINT type) {
    static constexpr std::array kJustOk = {kOk};
    static constexpr std::array kOkCancel = {kOk, kCancel};
    static constexpr std::array kYesNoCancel = {kYes, kNo, kCancel};
    static constexpr std::array kYesNo = {kYes, kNo};
    switch (type & MB_TYPEMASK) {
    case MB_OKCANCEL:
        return kOkCancel;
    case MB_YESNOCANCEL:
        return kYesNoCancel;
    case MB_YESNO:
        return kYesNo;
    default:
        return kJustOk;
    }
}

QMessageBox::Icon BoxIcon(UINT type) {
    switch (type & MB_ICONMASK) {
    case MB_ICONSTOP:
        return QMessageBox::Critical;
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONEXCLAMATION:
        return QMessageBox::Warning;
    case MB_ICONINFORMATION:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

std::vector<PromptChoice> ChoicesOf(std::span<const BoxButton> buttons) {
    std::vector<PromptChoice> choices;
    for (const BoxButton& button : buttons) {
        choices.push_back({button.keyword, MessageText(button.text)});
    }
    return choices;
}

QAbstractButton* AddButton(QMessageBox& box, const PromptChoice& choice) {
    for (const auto& [keyword, standard] : kStandardButtons) {
        if (choice.keyword == keyword) {
            QPushButton* const pButton = box.addButton(standard);
            pButton->setText(ToQString(choice.text.View()));
            return pButton;
        }
    }
    return box.addButton(ToQString(choice.text.View()), QMessageBox::ActionRole);
}

/// A box that is not above a modal dialog could not be answered until the dialog is closed.
QWidget* ParentOf(CWnd* pParent) {
    if (QWidget* const pModal = QApplication::activeModalWidget()) {
        return pModal;
    }
    return pParent && pParent->Core() ? pParent->Core()->Outer() : QApplication::activeWindow();
}

/// Nothing if the user did not answer.
std::optional<std::size_t> ShowBox(CWnd* pParent, const ChoicePrompt& prompt,
                                   const wchar_t* caption, QMessageBox::Icon icon) {
    AfxStartToolkit();
    // QPointer: the parent and its children may be destroyed while the box is open.
    const QPointer<QMessageBox> box = new QMessageBox(ParentOf(pParent));
    box->setIcon(icon);
    box->setWindowTitle(ToQString(caption));
    box->setTextFormat(Qt::PlainText);
    box->setText(ToQString(prompt.question.View()));
    std::vector<QAbstractButton*> buttons;
    for (const PromptChoice& choice : prompt.choices) {
        buttons.push_back(AddButton(*box, choice));
    }
    const std::size_t preset = prompt.fallback.value_or(buttons.size() - 1);
    box->setDefaultButton(qobject_cast<QPushButton*>(buttons[preset]));
    const bool canLeave = box->standardButtons() != QMessageBox::NoButton;
    box->setEscapeButton(canLeave ? buttons.back() : AddButton(*box, CancelChoice()));
    box->exec();
    const QAbstractButton* const pClicked = box ? box->clickedButton() : nullptr;
    const auto place = std::find(buttons.begin(), buttons.end(), pClicked) - buttons.begin();
    const auto chosen = static_cast<std::size_t>(place);
    delete box.data();
    return chosen < buttons.size() ? std::optional(chosen) : std::nullopt;
}

int AskAtPrompt(const wchar_t* text, const wchar_t* caption, UINT type) {
    const std::span<const BoxButton> buttons = ButtonsOf(type);
    if (buttons.size() == 1) {
        HostPort().Alert(text, caption);
        return IDOK;
    }
    HostPort().Print(std::wstring(L"\n") + caption + L": " + text + L"\n");
    const ChoicePrompt prompt{CString(), ChoicesOf(buttons)};
    for (int asked = 0; asked < kMostAsked; ++asked) {
        CString answer;
        if (HostPort().GetChoice(prompt, answer) != PromptEnd::Answered) {
            break;
        }
        if (const std::optional<std::size_t> choice = FindChoice(prompt, answer)) {
            return buttons[*choice].id;
        }
    }
    return buttons.back().id;
}

} // namespace

int ShowMessageBox(CWnd* pParent, const wchar_t* text, const wchar_t* caption, UINT type) {
    text = text ? text : L"";
    caption = caption ? caption : kProductTitle;
    if (!AfxIsDesktopMode()) {
        return AskAtPrompt(text, caption, type);
    }
    const std::span<const BoxButton> buttons = ButtonsOf(type);
    const std::size_t preset = (type & MB_DEFMASK) / MB_DEFBUTTON2;
    const ChoicePrompt prompt{text, ChoicesOf(buttons), std::min(preset, buttons.size() - 1)};
    const auto chosen = ShowBox(pParent, prompt, caption, BoxIcon(type));
    return buttons[chosen.value_or(buttons.size() - 1)].id;
}

std::optional<std::size_t> ShowChoiceBox(CWnd* pParent, const ChoicePrompt& prompt,
                                         const wchar_t* caption) {
    return ShowBox(pParent, prompt, caption, QMessageBox::Question);
}

int AfxMessageBox(const wchar_t* text, UINT type) {
    return ShowMessageBox(nullptr, text, kProductTitle, type);
}
