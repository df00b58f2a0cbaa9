// Colours that a module gives the command line.
#include <QPlainTextEdit>

#include "platform/arx/EdPrompt.h"
#include "tests/host/desktop/FrameFixture.h"

namespace Tessaly {
namespace {

using CommandColorsTest = FrameTest;

TEST_F(CommandColorsTest, AreSeenAtOnceAndGoBackToThoseOfTheTheme) {
    QWidget* const pInput = m_pInput;
    QWidget* const pText = m_pFrame->Pane().findChild<QPlainTextEdit*>();
    m_pFrame->Pane().Append(QStringLiteral("text"));
    m_pFrame->resize(900, 700);
    QApplication::processEvents();
    const auto ground = [](QWidget& widget) {
        return widget.grab().toImage().pixelColor(widget.width() - 5, widget.height() / 2).rgb();
    };
    const QRgb groundBefore = ground(*pText);
    const QPalette paletteBefore = pText->palette();

    AcColorSettings before;
    ASSERT_TRUE(acedGetCurrentColors(&before));
    AcColorSettings look = before;
    look.m_colors[5] = 0x102030;
    look.m_colors[24] = 0xA0B0C0;
    look.m_colors[25] = 0x405060;
    look.m_colors[26] = 0xD0E0F0;
    acedSetCurrentColors(&look);
    EXPECT_EQ(ground(*pText), 0xFF102030);
    EXPECT_EQ(ground(*pInput), 0xFF405060);
    EXPECT_EQ(pText->palette().color(QPalette::Text).rgb(), 0xFFA0B0C0);
    EXPECT_EQ(pInput->palette().color(QPalette::Text).rgb(), 0xFFD0E0F0);

    acedSetCurrentColors(&before);
    EXPECT_EQ(ground(*pText), groundBefore);
    EXPECT_EQ(pText->palette(), paletteBefore);
}

} // namespace
} // namespace Tessaly
