#include "platform/mfc/Static.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include "platform/mfc/IIconSource.h"
#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/ControlColors.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/DcImpl.h"
#include "platform/mfc/toolkit/StaticWidget.h"

namespace {

/// "&" marks the mnemonic; "&&" is a literal "&".
std::wstring WithoutMnemonics(const QString& text) {
    std::wstring result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != QLatin1Char('&') || (++i < text.size())) {
            result += static_cast<wchar_t>(text[i].unicode());
        }
    }
    return result;
}

} // namespace

StaticWidget::StaticWidget(QWidget* pParent, UINT style) : Hooked(pParent), m_style(style) {
    setAttribute(Qt::WA_TransparentForMouseEvents, !(style & SS_NOTIFY));
}

void StaticWidget::SetCaption(const QString& text) {
    m_text = text;
    update();
}

void StaticWidget::AppendLines(std::vector<std::wstring>& lines) const {
    if (!m_text.isEmpty() && m_picture.isNull()) {
        lines.push_back(WithoutMnemonics(m_text));
    }
}

void StaticWidget::SetPicture(const QPixmap& picture, bool fit) {
    m_picture = picture;
    m_fit = fit;
    update();
}

void StaticWidget::SetTextColor(const QColor& color) {
    m_textColor = color;
    update();
}

void StaticWidget::SetBackColor(const QColor& color) {
    m_backColor = color;
    update();
}

void StaticWidget::SetAddress(const CString& address) {
    m_address = address;
    setAttribute(Qt::WA_TransparentForMouseEvents, !TakesClicks());
    setCursor(address.IsEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    QFont underlined = font();
    underlined.setUnderline(!address.IsEmpty());
    setFont(underlined);
}

bool StaticWidget::TakesClicks() const {
    return (m_style & SS_NOTIFY) || !m_address.IsEmpty();
}

void StaticWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    switch (m_style & SS_TYPEMASK) {
    case SS_ETCHEDVERT:
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(0, 0, 0, height() - 1);
        return;
    case SS_WHITERECT:
        painter.fillRect(rect(), Qt::white);
        break;
    default:
        break;
    }
    if (m_picture.isNull()) {
        PaintText(painter);
    } else {
        PaintPicture(painter);
    }
}

void StaticWidget::PaintText(QPainter& painter) {
    CDC dc(DrawWith(painter));
    const QColor usual =
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    dc.SetTextColor(ToColorRef(m_textColor.value_or(usual)));
    dc.SetBkMode(TRANSPARENT);
    const HBRUSH brush = AskControlColors(Core(), dc, CTLCOLOR_STATIC);
    if (brush && !brush->IsHollow()) {
        painter.fillRect(rect(), ToQColor(brush->Color()));
    } else if (!brush && m_backColor) {
        painter.fillRect(rect(), *m_backColor);
    }
    UINT flags = DT_WORDBREAK;
    if ((m_style & SS_TYPEMASK) == SS_CENTER) {
        flags |= DT_CENTER;
    } else if ((m_style & SS_TYPEMASK) == SS_RIGHT) {
        flags |= DT_RIGHT;
    }
    // A line that is a pixel or two too high is better than half a line.
    const int lineHeight = fontMetrics().height();
    if (height() < 2 * lineHeight) {
        flags = (flags & ~DT_WORDBREAK) | DT_VCENTER;
    }
    dc.DrawText(ToCString(m_text), ToCRect(rect()), flags);
}

void StaticWidget::PaintPicture(QPainter& painter) const {
    QSize size = m_picture.deviceIndependentSize().toSize();
    if (m_fit) {
        size.scale(this->size(), Qt::KeepAspectRatio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
    }
    painter.drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, rect()),
                       m_picture);
}

void StaticWidget::mousePressEvent(QMouseEvent* pEvent) {
    pEvent->setAccepted(TakesClicks());
}

void StaticWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
    if (pEvent->button() != Qt::LeftButton || !rect().contains(pEvent->position().toPoint())) {
        return;
    }
    if (!m_address.IsEmpty()) {
        AfxOpenAddress(m_address);
    } else if (WindowCore* const pCore = Core(); pCore && (m_style & SS_NOTIFY)) {
        pCore->Command(STN_CLICKED);
    }
}

StaticWidget* CStatic::Widget() const {
    return WidgetOf<StaticWidget>(*this);
}

bool CStatic::Create(const wchar_t* text, UINT style, const CRect& rect, CWnd* pParent, UINT id) {
    const bool created = CreateControl(enmControlKind::Static, style, rect, pParent, id);
    SetWindowText(text);
    return created;
}

void CStatic::SetIcon(HICON icon, CSize size) {
    SetBitmap(ImageOfIcon(icon, size));
}

void CStatic::SetBitmap(const CImage& image) {
    if (StaticWidget* const pWidget = Widget()) {
        pWidget->SetPicture(ToPixmap(image), false);
    }
}

void CXColorStatic::SetTextColor(COLORREF color) {
    if (StaticWidget* const pWidget = Widget()) {
        pWidget->SetTextColor(ToQColor(color));
    }
}

void CXColorStatic::SetBkColor(COLORREF color) {
    if (StaticWidget* const pWidget = Widget()) {
        pWidget->SetBackColor(ToQColor(color));
    }
}

void CXColorStatic::SetBold(bool bold) {
    if (StaticWidget* const pWidget = Widget()) {
        QFont font = pWidget->font();
        font.setBold(bold);
        pWidget->setFont(font);
        pWidget->update();
    }
}

void CXHyperLink::SetURL(const wchar_t* address) {
    if (StaticWidget* const pWidget = Widget()) {
        pWidget->SetAddress(address);
    }
}

CString CXHyperLink::GetURL() const {
    const StaticWidget* const pWidget = Widget();
    return pWidget ? pWidget->Address() : CString();
}

bool CXHyperLink::Open() const {
    const CString address = GetURL();
    return !address.IsEmpty() && AfxOpenAddress(address);
}

void CPictureBox::SetPicture(const CImage& image) {
    if (StaticWidget* const pWidget = Widget()) {
        pWidget->SetPicture(ToPixmap(image), true);
    }
}
