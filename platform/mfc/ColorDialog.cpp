#include "platform/mfc/ColorDialog.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>

#include "platform/arx/ColorTable.h"
#include "platform/arx/EdPrompt.h"
#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/win/Number.h"
#include "platform/win/PlatformTexts.h"

namespace {

constexpr int kLastColor = 255;
constexpr int kColorsInRow = 16;
constexpr int kCellSize = 22; // pixels

/// All colours in a grid, in the order of their indices.
class ColorTable final : public QWidget {
public:
    explicit ColorTable(int chosen) : m_chosen(chosen) {
        const int rows = (kLastColor + kColorsInRow - 1) / kColorsInRow;
        setFixedSize(kColorsInRow * kCellSize, rows * kCellSize);
        setFocusPolicy(Qt::StrongFocus);
        setObjectName(QStringLiteral("Colours"));
        setAccessibleName(objectName());
    }
    int Chosen() const { return m_chosen; }
    std::function<void()> onChange;
    std::function<void()> onAccept;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (int color = 1; color <= kLastColor; ++color) {
            const QRect cell = CellOf(color);
            painter.fillRect(cell.adjusted(1, 1, -1, -1), ToQColor(acedGetRGB(color)));
            if (color == m_chosen) {
                painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
                painter.drawRect(cell.adjusted(1, 1, -1, -1));
            }
        }
    }
    void mousePressEvent(QMouseEvent* pEvent) override { Choose(ColorAt(pEvent->pos())); }
    void mouseDoubleClickEvent(QMouseEvent*) override { onAccept(); }
    void keyPressEvent(QKeyEvent* pEvent) override {
        switch (pEvent->key()) {
        case Qt::Key_Left:
            Choose(m_chosen - 1);
            break;
        case Qt::Key_Right:
            Choose(m_chosen + 1);
            break;
        case Qt::Key_Up:
            Choose(m_chosen - kColorsInRow);
            break;
        case Qt::Key_Down:
            Choose(m_chosen + kColorsInRow);
            break;
        default:
            QWidget::keyPressEvent(pEvent);
        }
    }

private:
    static QRect CellOf(int color) {
        const int place = color - 1;
        return {place % kColorsInRow * kCellSize, place / kColorsInRow * kCellSize, kCellSize,
                kCellSize};
    }
    static int ColorAt(const QPoint& point) {
        return point.y() / kCellSize * kColorsInRow + point.x() / kCellSize + 1;
    }
    void Choose(int color) {
        if (color >= 1 && color <= kLastColor) {
            m_chosen = color;
            update();
            onChange();
        }
    }

    int m_chosen;
};

bool IsColor(int color) {
    return color >= 1 && color <= kLastColor;
}

bool AskForColor(int& color) {
    const std::optional<CString> answer =
        acedAskText(MessageText(PlatformMsg::ColorNumber, kLastColor), FormatText(L"%d", color));
    if (!answer) {
        return false;
    }
    const int chosen = TextToInt(answer->View());
    if (!IsColor(chosen)) {
        acutPrintf(L"%s\n", MessageText(PlatformMsg::NotAColor, *answer));
        return false;
    }
    color = chosen;
    return true;
}

} // namespace

bool acedSetColorDialog(int& nColor, bool, int) {
    if (!AfxIsDesktopMode()) {
        return AskForColor(nColor);
    }
    AfxStartToolkit();
    const QPointer<QDialog> dialog = new QDialog(QApplication::activeWindow());
    dialog->setWindowTitle(ToQString(MessageText(PlatformMsg::Color).View()));
    auto* const pTable = new ColorTable(IsColor(nColor) ? nColor : 7);
    auto* const pNumber = new QLabel;
    auto* const pButtons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    pButtons->button(QDialogButtonBox::Ok)->setText(ToQString(MessageText(PlatformMsg::Ok).View()));
    pButtons->button(QDialogButtonBox::Cancel)
        ->setText(ToQString(MessageText(PlatformMsg::Cancel).View()));
    pTable->onChange = [pTable, pNumber] { pNumber->setText(QString::number(pTable->Chosen())); };
    pTable->onAccept = [pDialog = dialog.data()] { pDialog->accept(); };
    pTable->onChange();
    QObject::connect(pButtons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(pButtons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto* const pLayout = new QVBoxLayout(dialog);
    pLayout->addWidget(pTable);
    pLayout->addWidget(pNumber);
    pLayout->addWidget(pButtons);
    pLayout->setSizeConstraint(QLayout::SetFixedSize);
    const bool isChosen = dialog->exec() == QDialog::Accepted && dialog;
    if (isChosen) {
        nColor = pTable->Chosen();
    }
    delete dialog.data();
    return isChosen;
}
