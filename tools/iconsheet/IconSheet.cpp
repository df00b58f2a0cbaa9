// Draws all icons of a folder on one sheet for visual inspection:
//   iconsheet FOLDER OUT.png [dark]
// Each icon at 16, 24 and 32 as on a standard screen, then as on one of double density.
#include <cstdio>
#include <string_view>

#include <QDir>
#include <QImage>
#include <QPainter>

#include "platform/mfc/Image.h"
#include "platform/mfc/WinApp.h"

namespace {

constexpr int kSizes[] = {16, 24, 32};
constexpr double kDensities[] = {1, 2};
constexpr int kGap = 8;
constexpr int kTallest = 64;
constexpr QSize kCell(16 + 24 + 32 + 32 + 48 + 64 + 8 * kGap, kTallest + 32);
constexpr int kColumns = 4;

void DrawIcon(QPainter& painter, const QString& path, QPoint at) {
    const CString file(path.toStdWString());
    for (const double density : kDensities) {
        for (const int size : kSizes) {
            const CImage image = CImage::FromFile(file, {size, size}, density);
            const QImage view(reinterpret_cast<const uchar*>(image.Pixels().data()),
                              image.PixelSize().cx, image.PixelSize().cy,
                              QImage::Format_ARGB32_Premultiplied);
            painter.drawImage(at.x(), at.y() + (kTallest - view.height()) / 2, view);
            at.rx() += static_cast<int>(size * density) + kGap;
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: iconsheet FOLDER OUT.png [dark]\n", stderr);
        return 2;
    }
    const bool dark = argc > 3 && std::string_view(argv[3]) == "dark";
    AfxStartToolkit();
    const QDir folder(QString::fromLocal8Bit(argv[1]), QStringLiteral("*.svg"));
    const QStringList names = folder.entryList();
    const int rows = (static_cast<int>(names.size()) + kColumns - 1) / kColumns;
    QImage sheet(kColumns * kCell.width(), rows * kCell.height(), QImage::Format_RGB32);
    sheet.fill(dark ? QColor(0x2b, 0x2b, 0x2b) : QColor(Qt::white));
    QPainter painter(&sheet);
    painter.setPen(dark ? Qt::lightGray : Qt::darkGray);
    QFont font = painter.font();
    font.setPixelSize(11);
    painter.setFont(font);
    for (int i = 0; i < names.size(); ++i) {
        const QPoint at(i % kColumns * kCell.width() + kGap, i / kColumns * kCell.height() + kGap);
        DrawIcon(painter, folder.filePath(names[i]), at);
        painter.drawText(at + QPoint(0, kTallest + 14), names[i].chopped(4));
    }
    painter.end();
    return !names.isEmpty() && sheet.save(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
}
