#include "platform/mfc/MessageBox.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

#include "platform/arx/HostPort.h"
#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/WindowCore.h"

namespace {

constexpr wchar_t kProductTitle[] = L"Halvane";
/// At a prompt, before what is said instead counts as no answer.
constexpr int kMostAsked = 5;

struct BoxButton {
    int id;
    QMessageBox::StandardButton button;
    const wchar_t* word; ///< at a prompt; its first letter alone will do
};

constexpr BoxButton kOk{IDOK, QMessageBox::Ok, L"OK"};
constexpr BoxButton kCancel{IDCANCEL, QMessageBox::Cancel, L"Cancel"};
constexpr BoxButton kYes{IDYES, QMessageBox::Yes, L"Yes"};
constexpr BoxButton kNo{IDNO, QMessageBox::No, L"No"};

/// The last one is the answer of those who give none.
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

int AskAtPrompt(const wchar_t* text, const wchar_t* caption, UINT type) {
    const std::span<const BoxButton> buttons = ButtonsOf(type);
    if (buttons.size() == 1) {
        HostPort().Alert(text, caption);
        return IDOK;
    }
    HostPort().Print(std::wstring(L"\n") + caption + L": " + text + L"\n");
    std::wstring prompt = L"[";
    for (const BoxButton& button : buttons) {
        prompt += button.word;
        prompt += &button == &buttons.back() ? L"]: " : L"/";
    }
    for (int asked = 0; asked < kMostAsked; ++asked) {
        CString answer;
        if (HostPort().GetString(false, prompt, answer) != PromptEnd::Answered) {
            break;
        }
        for (const BoxButton& button : buttons) {
            if (answer.CompareNoCase(button.word) == 0 ||
                answer.CompareNoCase(CString(button.word).Left(1)) == 0) {
                return button.id;
            }
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
    AfxStartToolkit();
    // What is not over a modal dialog could not be answered before that has gone.
    QWidget* pOver = QApplication::activeModalWidget();
    if (!pOver) {
        pOver =
            pParent && pParent->Core() ? pParent->Core()->Outer() : QApplication::activeWindow();
    }
    // Guarded: the parent may go away with all that stands on it while the box waits.
    const QPointer<QMessageBox> box = new QMessageBox(pOver);
    box->setIcon(BoxIcon(type));
    box->setWindowTitle(ToQString(caption));
    box->setTextFormat(Qt::PlainText);
    box->setText(ToQString(text));
    const std::span<const BoxButton> buttons = ButtonsOf(type);
    for (const BoxButton& button : buttons) {
        box->addButton(button.button);
    }
    const std::size_t preset = (type & MB_DEFMASK) / MB_DEFBUTTON2;
    box->setDefaultButton(buttons[std::min(preset, buttons.size() - 1)].button);
    box->setEscapeButton(buttons.back().button);
    const int chosen = box->exec();
    delete box.data();
    for (const BoxButton& button : buttons) {
        if (button.button == chosen) {
            return button.id;
        }
    }
    return buttons.back().id;
}

int AfxMessageBox(const wchar_t* text, UINT type) {
    return ShowMessageBox(nullptr, text, kProductTitle, type);
}
