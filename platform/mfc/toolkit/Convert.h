// Conversion between values of the platform and of the toolkit. For sources only.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QString>

#include "platform/mfc/DC.h"

inline QString ToQString(std::wstring_view text) {
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}
inline CString ToCString(const QString& text) {
    return CString(text.toStdWString());
}
inline QRect ToQRect(const CRect& rect) {
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}
inline CRect ToCRect(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}
inline QPoint ToQPoint(POINT point) {
    return {point.x, point.y};
}
inline CPoint ToCPoint(const QPoint& point) {
    return {point.x(), point.y()};
}
inline QColor ToQColor(COLORREF color) {
    return QColor(static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8 & 0xFFU),
                  static_cast<int>(color >> 16 & 0xFFU));
}
inline COLORREF ToColorRef(const QColor& color) {
    return RGB(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
               static_cast<unsigned>(color.blue()));
}
QFont ToQFont(const LOGFONT& font);
LOGFONT ToLogFont(const QFont& font);
QPixmap ToPixmap(const CImage& image);
/// An icon for rows: in a selected row it is drawn on a light plate, since the toolkit would tint
/// it until it blends into the background.
QIcon ToRowIcon(const CImage& image);
