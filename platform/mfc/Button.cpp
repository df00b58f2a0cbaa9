#include "platform/mfc/Button.h"

#include <algorithm>

#include <QPainter>
#include <QStyleOptionButton>

#include "platform/mfc/IIconSource.h"
#include "platform/mfc/toolkit/ButtonWidgets.h"
#include "platform/mfc/toolkit/ControlColors.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/DcImpl.h"

PushButtonWidget::PushButtonWidget(QWidget* pParent, UINT style)
    : ButtonBase(pParent, style), m_ownerDrawn((style & BS_TYPEMASK) == BS_OWNERDRAW) {
    // The dialog handles Enter; it knows the default button.
    setAutoDefault(false);
}

void PushButtonWidget::paintEvent(QPaintEvent* pEvent) {
    if (!m_ownerDrawn && !m_flat && m_gap == 0) {
        QPushButton::paintEvent(pEvent);
        return;
    }
    QPainter painter(this);
    if (!m_ownerDrawn) {
        PaintWithGap(painter);
        return;
    }
    QStyleOptionButton option;
    initStyleOption(&option);
    style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);
    CDC dc(DrawWith(painter));
    const HBRUSH face = AskControlColors(Core(), dc, CTLCOLOR_BTN);
    if (face && !face->IsHollow()) {
        painter.fillRect(rect().adjusted(3, 3, -3, -3), ToQColor(face->Color()));
    }
}

void PushButtonWidget::PaintWithGap(QPainter& painter) const {
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool isRaised = isEnabled() && (underMouse() || isDown() || isChecked());
    if (!m_flat || isRaised) {
        style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);
    }
    const QRect inside = rect().adjusted(m_gap, m_gap, -m_gap, -m_gap);
    option.rect = inside;
    option.iconSize = option.iconSize.boundedTo(inside.size());
    style()->drawControl(QStyle::CE_PushButtonLabel, &option, &painter, this);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void PushButtonWidget::SetFlat(bool flat) {
    m_flat = flat;
    setAttribute(Qt::WA_Hover);
    update();
}

void PushButtonWidget::SetGap(int pixels) {
    m_gap = std::max(pixels, 0);
    update();
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

void CButton::SetFlat(bool flat) {
    if (auto* const pButton = WidgetOf<PushButtonWidget>(*this)) {
        pButton->SetFlat(flat);
    }
}

void CButton::SetGap(int pixels) {
    if (auto* const pButton = WidgetOf<PushButtonWidget>(*this)) {
        pButton->SetGap(pixels);
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
