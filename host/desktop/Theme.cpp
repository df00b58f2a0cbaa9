#include "host/desktop/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace Tessaly {

namespace {

/// A palette role's colour in both themes.
struct ThemeColor {
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};
constexpr ThemeColor kColors[] = {
    {QPalette::Window, qRgb(241, 242, 244), qRgb(45, 47, 51)},
    {QPalette::WindowText, qRgb(28, 30, 33), qRgb(222, 224, 228)},
    {QPalette::Base, qRgb(255, 255, 255), qRgb(30, 31, 34)},
    {QPalette::AlternateBase, qRgb(247, 248, 250), qRgb(38, 40, 43)},
    {QPalette::ToolTipBase, qRgb(255, 255, 225), qRgb(60, 63, 68)},
    {QPalette::ToolTipText, qRgb(28, 30, 33), qRgb(222, 224, 228)},
    {QPalette::PlaceholderText, qRgb(130, 134, 140), qRgb(134, 138, 145)},
    {QPalette::Text, qRgb(28, 30, 33), qRgb(222, 224, 228)},
    {QPalette::Button, qRgb(233, 235, 238), qRgb(56, 58, 63)},
    {QPalette::ButtonText, qRgb(28, 30, 33), qRgb(222, 224, 228)},
    {QPalette::BrightText, qRgb(190, 30, 20), qRgb(255, 120, 110)},
    {QPalette::Link, qRgb(20, 90, 190), qRgb(110, 170, 255)},
    {QPalette::Light, qRgb(255, 255, 255), qRgb(84, 87, 94)},
    {QPalette::Midlight, qRgb(224, 227, 231), qRgb(66, 69, 75)},
    {QPalette::Mid, qRgb(186, 190, 196), qRgb(38, 40, 44)},
    {QPalette::Dark, qRgb(150, 154, 161), qRgb(26, 27, 30)},
    {QPalette::Shadow, qRgb(96, 100, 108), qRgb(12, 13, 14)},
    {QPalette::Highlight, qRgb(48, 120, 210), qRgb(53, 110, 190)},
    {QPalette::HighlightedText, qRgb(255, 255, 255), qRgb(255, 255, 255)},
};

QPalette MakePalette(bool isDark) {
    QPalette palette;
    for (const ThemeColor& color : kColors) {
        palette.setColor(color.role, QColor(isDark ? color.dark : color.light));
    }
    const QColor faded = palette.color(QPalette::PlaceholderText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faded);
    }
    return palette;
}

} // namespace

void ApplyTheme(const CString& theme, SystemTheme::Scheme system) {
    const bool isFixed = theme == L"dark" || theme == L"light";
    if (isFixed || system != SystemTheme::Scheme::Unknown) {
        const bool isDark = isFixed ? theme == L"dark" : system == SystemTheme::Scheme::Dark;
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QApplication::setPalette(MakePalette(isDark));
    } else {
        // An empty palette restores the system's.
        QApplication::setPalette(QPalette());
    }
}

bool IsDark() {
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::WindowText).lightness() >
           palette.color(QPalette::Window).lightness();
}

} // namespace Tessaly
