#include "platform/mfc/CustomBitmapButton.h"

#include <QToolButton>

#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/FrameWidget.h"
#include "platform/win/Screens.h"

namespace {

constexpr const char* kNumber = "captionNumber";

FrameWidget* CaptionOf(HWND dialog) {
    const WindowCore* const pCore = WindowCore::Find(dialog);
    return pCore && (pCore->Style() & WS_CAPTION) == WS_CAPTION
               ? dynamic_cast<FrameWidget*>(pCore->Outer())
               : nullptr;
}

QToolButton* ButtonOf(HWND dialog, int number) {
    if (const FrameWidget* const pFrame = CaptionOf(dialog)) {
        for (QToolButton* const pButton :
             pFrame->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (const QVariant known = pButton->property(kNumber); known.isValid()) {
                if (known.toInt() == number) {
                    return pButton;
                }
            }
        }
    }
    return nullptr;
}

void TellClicked(HWND dialog, int number) {
    if (CWnd* const pDialog = CWnd::FromHandle(dialog)) {
        NMHDR header;
        header.hwndFrom = dialog;
        header.idFrom = static_cast<UINT>(number);
        header.code = NM_CLICK;
        pDialog->SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }
}

} // namespace

bool CCustomBitmapButton::Attach(CWnd* pDialog) {
    m_dialog = pDialog ? pDialog->GetSafeHwnd() : nullptr;
    return CaptionOf(m_dialog) != nullptr;
}

bool CCustomBitmapButton::AddButton(int number) {
    FrameWidget* const pFrame = CaptionOf(m_dialog);
    if (!pFrame || HasButton(number)) {
        return false;
    }
    QToolButton* const pButton = pFrame->AddCaptionButton();
    pButton->setProperty(kNumber, number);
    QObject::connect(pButton, &QToolButton::clicked, pButton,
                     [dialog = m_dialog, number] { TellClicked(dialog, number); });
    return true;
}

bool CCustomBitmapButton::HasButton(int number) const {
    return ButtonOf(m_dialog, number) != nullptr;
}

bool CCustomBitmapButton::SetBitmap(int number, const CImage& image) {
    QToolButton* const pButton = ButtonOf(m_dialog, number);
    if (pButton) {
        pButton->setIcon(ToPixmap(image));
        pButton->setIconSize(QSize(image.Size().cx, image.Size().cy));
    }
    return pButton != nullptr;
}

bool CCustomBitmapButton::SetTooltip(int number, const wchar_t* text) {
    QToolButton* const pButton = ButtonOf(m_dialog, number);
    if (pButton) {
        pButton->setToolTip(ToQString(text));
    }
    return pButton != nullptr;
}

int GetSystemMetrics(int index) {
    AfxStartToolkit();
    const CRect screen = Screens().Monitors().front().full;
    switch (index) {
    case SM_CXSCREEN:
        return screen.Width();
    case SM_CYSCREEN:
        return screen.Height();
    case SM_CXFIXEDFRAME:
        return FrameWidget::EdgeWidth();
    case SM_CYSIZE:
        return FrameWidget::CaptionHeight();
    default:
        return 0;
    }
}
