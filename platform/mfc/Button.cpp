#include "platform/mfc/Button.h"

#include <QPainter>
#include <QStyleOptionButton>

#include "platform/mfc/IIconSource.h"
#include "platform/mfc/toolkit/ButtonWidgets.h"
#include "platform/mfc/toolkit/ControlColors.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/DcImpl.h"

PushButtonWidget::PushButtonWidget(QWidget* pParent, UINT style)
    : ButtonBase(pParent, style), m_ownerDrawn((style & BS_TYPEMASK) == BS_OWNERDRAW) {
    // Enter is the dialog's; it knows which button is meant.
    setAutoDefault(false);
}

void PushButtonWidget::paintEvent(QPaintEvent* pEvent) {
    if (!m_ownerDrawn) {
        QPushButton::paintEvent(pEvent);
        return;
    }
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);
    CDC dc(DrawWith(painter));
    const HBRUSH face = AskControlColors(Core(), dc, CTLCOLOR_BTN);
    if (face && !face->IsHollow()) {
        painter.fillRect(rect().adjusted(3, 3, -3, -3), ToQColor(face->Color()));
    }
}

bool CButton::Create(const wchar_t* text, UINT style, const CRect& rect, CWnd* pParent, UINT id) {
    const bool created = CreateControl(enmControlKind::Button, style, rect, pParent, id);
    SetWindowText(text);
    return created;
}

void CButton::SetCheck(int check) {
    if (auto* const pButton = WidgetOf<QAbstractButton>(*this)) {
        pButton->setChecked(check != 0);
    }
}

int CButton::GetCheck() const {
    const auto* const pButton = WidgetOf<QAbstractButton>(*this);
    return pButton && pButton->isChecked() ? 1 : 0;
}

void CButton::SetIcon(HICON icon, CSize size) {
    SetImage(ImageOfIcon(icon, size));
}

void CButton::SetImage(const CImage& image) {
    if (auto* const pButton = WidgetOf<QAbstractButton>(*this)) {
        pButton->setIcon(ToPixmap(image));
        pButton->setIconSize(QSize(image.Size().cx, image.Size().cy));
    }
}

void CButton::SetTooltip(const wchar_t* text) {
    if (auto* const pButton = WidgetOf<QAbstractButton>(*this)) {
        pButton->setToolTip(ToQString(text));
    }
}

void CButton::Click() {
    if (auto* const pButton = WidgetOf<QAbstractButton>(*this)) {
        pButton->click();
    }
}
