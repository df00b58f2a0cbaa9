#include "host/desktop/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace Tessaly {

namespace {

QPalette DarkPalette() {
    QPalette palette;
    const QColor window(45, 47, 51);
    const QColor base(30, 31, 34);
    const QColor text(222, 224, 228);
    const QColor faded(134, 138, 145);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, QColor(38, 40, 43));
    palette.setColor(QPalette::ToolTipBase, QColor(60, 63, 68));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faded);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(56, 58, 63));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, QColor(255, 120, 110));
    palette.setColor(QPalette::Link, QColor(110, 170, 255));
    palette.setColor(QPalette::Highlight, QColor(53, 110, 190));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faded);
    }
    return palette;
}

QPalette LightPalette() {
    QPalette palette;
    const QColor text(28, 30, 33);
    const QColor faded(130, 134, 140);
    palette.setColor(QPalette::Window, QColor(241, 242, 244));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(247, 248, 250));
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faded);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(233, 235, 238));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, QColor(190, 30, 20));
    palette.setColor(QPalette::Link, QColor(20, 90, 190));
    palette.setColor(QPalette::Highlight, QColor(48, 120, 210));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faded);
    }
    return palette;
}

} // namespace

void ApplyTheme(const CString& theme) {
    if (theme == L"dark" || theme == L"light") {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QApplication::setPalette(theme == L"dark" ? DarkPalette() : LightPalette());
    } else {
        // An empty palette is the one that the system asks for.
        QApplication::setPalette(QPalette());
    }
}

bool IsDark() {
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::WindowText).lightness() >
           palette.color(QPalette::Window).lightness();
}

} // namespace Tessaly
