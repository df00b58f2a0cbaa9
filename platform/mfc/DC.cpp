#include "platform/mfc/DC.h"

#include <utility>

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>

#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/DcImpl.h"
#include "platform/mfc/toolkit/WindowCore.h"

namespace {

int AlignmentOf(UINT flags) {
    int alignment =
        flags & DT_CENTER ? Qt::AlignHCenter : (flags & DT_RIGHT ? Qt::AlignRight : Qt::AlignLeft);
    alignment |= flags & DT_VCENTER ? Qt::AlignVCenter : Qt::AlignTop;
    alignment |= flags & DT_WORDBREAK ? Qt::TextWordWrap : Qt::TextSingleLine;
    return flags & DT_NOPREFIX ? alignment : alignment | Qt::TextShowMnemonic;
}

QPalette::ColorRole RoleOf(int index) {
    switch (index) {
    case COLOR_WINDOW:
        return QPalette::Base;
    case COLOR_WINDOWTEXT:
        return QPalette::Text;
    case COLOR_HIGHLIGHT:
        return QPalette::Highlight;
    case COLOR_HIGHLIGHTTEXT:
        return QPalette::HighlightedText;
    default:
        return QPalette::Button;
    }
}

QWidget* PaintedWidget(CWnd* pWnd) {
    return pWnd && pWnd->Core() ? pWnd->Core()->Client() : nullptr;
}

} // namespace

COLORREF GetSysColor(int index) {
    AfxStartToolkit();
    return ToColorRef(QApplication::palette().color(RoleOf(index)));
}

QFont ToQFont(const LOGFONT& font) {
    QFont result = QApplication::font();
    if (!font.lfFaceName.IsEmpty()) {
        result.setFamily(ToQString(font.lfFaceName.View()));
    }
    if (font.lfHeight != 0) {
        result.setPixelSize(font.lfHeight < 0 ? -font.lfHeight : font.lfHeight);
    }
    result.setWeight(static_cast<QFont::Weight>(font.lfWeight));
    result.setItalic(font.lfItalic);
    result.setUnderline(font.lfUnderline);
    result.setStrikeOut(font.lfStrikeOut);
    return result;
}

LOGFONT ToLogFont(const QFont& font) {
    LOGFONT result;
    result.lfHeight = -QFontInfo(font).pixelSize();
    result.lfWeight = font.weight();
    result.lfItalic = font.italic();
    result.lfUnderline = font.underline();
    result.lfStrikeOut = font.strikeOut();
    result.lfFaceName = ToCString(font.family());
    return result;
}

CDC::Impl::Impl(QPainter& on)
    : painter(on), firstFont(ToLogFont(on.font())), textColor(ToColorRef(on.pen().color())),
      backColor(GetSysColor(COLOR_WINDOW)) {}

CDC::Impl::Impl(QWidget* pWidget)
    : owned(std::in_place), painter(*owned), firstFont(ToLogFont(QApplication::font())),
      textColor(GetSysColor(COLOR_WINDOWTEXT)), backColor(GetSysColor(COLOR_WINDOW)) {
    if (pWidget && owned->begin(pWidget)) {
        firstFont = CFont(ToLogFont(painter.font()));
    }
}

std::unique_ptr<CDC::Impl> DrawWith(QPainter& painter) {
    return std::make_unique<CDC::Impl>(painter);
}

CDC::CDC(std::unique_ptr<Impl> pImpl) : m_pImpl(std::move(pImpl)) {}

CDC::~CDC() = default;

CPaintDC::CPaintDC(CWnd* pWnd) : CDC(std::make_unique<Impl>(PaintedWidget(pWnd))) {}

COLORREF CDC::SetTextColor(COLORREF color) {
    return std::exchange(m_pImpl->textColor, color);
}

COLORREF CDC::GetTextColor() const {
    return m_pImpl->textColor;
}

COLORREF CDC::SetBkColor(COLORREF color) {
    return std::exchange(m_pImpl->backColor, color);
}

COLORREF CDC::GetBkColor() const {
    return m_pImpl->backColor;
}

int CDC::SetBkMode(int mode) {
    return std::exchange(m_pImpl->backMode, mode);
}

int CDC::GetBkMode() const {
    return m_pImpl->backMode;
}

const CFont* CDC::SelectObject(const CFont* pFont) {
    const CFont* const pNow = pFont ? pFont : &m_pImpl->firstFont;
    m_pImpl->painter.setFont(ToQFont(pNow->Get()));
    return std::exchange(m_pImpl->pFont, pNow);
}

const CPen* CDC::SelectObject(const CPen* pPen) {
    return std::exchange(m_pImpl->pPen, pPen ? pPen : &m_pImpl->firstPen);
}

const CBrush* CDC::SelectObject(const CBrush* pBrush) {
    return std::exchange(m_pImpl->pBrush, pBrush ? pBrush : &m_pImpl->firstBrush);
}

const CFont* CDC::GetCurrentFont() const {
    return m_pImpl->pFont;
}

void CDC::DrawText(const wchar_t* text, const CRect& rect, UINT flags) {
    QPainter& painter = m_pImpl->painter;
    QString shown = ToQString(text);
    if (flags & DT_END_ELLIPSIS) {
        shown = painter.fontMetrics().elidedText(shown, Qt::ElideRight, rect.Width());
    }
    const int alignment = AlignmentOf(flags);
    const QRect place = ToQRect(rect);
    if (m_pImpl->backMode == OPAQUE) {
        painter.fillRect(painter.boundingRect(place, alignment, shown),
                         ToQColor(m_pImpl->backColor));
    }
    painter.setPen(ToQColor(m_pImpl->textColor));
    painter.drawText(place, alignment, shown);
}

void CDC::TextOut(int x, int y, const wchar_t* text) {
    const CSize size = GetTextExtent(text);
    DrawText(text, CRect(CPoint(x, y), size), DT_NOPREFIX);
}

CSize CDC::GetTextExtent(const wchar_t* text) const {
    const QFontMetrics metrics(ToQFont(m_pImpl->pFont->Get()));
    return {metrics.horizontalAdvance(ToQString(text)), metrics.height()};
}

void CDC::FillSolidRect(const CRect& rect, COLORREF color) {
    m_pImpl->painter.fillRect(ToQRect(rect), ToQColor(color));
}

void CDC::FillRect(const CRect& rect, const CBrush* pBrush) {
    if (pBrush && !pBrush->IsHollow()) {
        FillSolidRect(rect, pBrush->Color());
    }
}

void CDC::Rectangle(const CRect& rect) {
    QPainter& painter = m_pImpl->painter;
    QPen pen(ToQColor(m_pImpl->pPen->Color()), m_pImpl->pPen->Width());
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(m_pImpl->pBrush->IsHollow() ? QBrush(Qt::NoBrush)
                                                 : QBrush(ToQColor(m_pImpl->pBrush->Color())));
    painter.drawRect(ToQRect(rect).adjusted(0, 0, -1, -1));
}

void CDC::DrawImage(int x, int y, const CImage& image) {
    m_pImpl->painter.drawPixmap(x, y, ToPixmap(image));
}
