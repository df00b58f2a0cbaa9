#include "platform/mfc/Image.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QtMath>

#include "platform/mfc/IIconSource.h"
#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"

namespace {

IIconSource* g_pIconSource = nullptr;

/// Share of the opacity kept by the gray form of a picture.
constexpr double kGrayShare = 0.7;

} // namespace

CImage::CImage(int width, int height, std::span<const std::uint32_t> pixels, double density) {
    if (width <= 0 || height <= 0 || !(density > 0) ||
        pixels.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {
        return;
    }
    std::shared_ptr<std::uint32_t[]> copy(new std::uint32_t[pixels.size()]);
    std::copy(pixels.begin(), pixels.end(), copy.get());
    m_pPixels = std::move(copy);
    m_pixelSize = CSize(width, height);
    m_density = density;
}

CSize CImage::Size() const {
    return {static_cast<int>(std::lround(m_pixelSize.cx / m_density)),
            static_cast<int>(std::lround(m_pixelSize.cy / m_density))};
}

std::span<const std::uint32_t> CImage::Pixels() const {
    return {m_pPixels.get(),
            static_cast<std::size_t>(m_pixelSize.cx) * static_cast<std::size_t>(m_pixelSize.cy)};
}

CImage CImage::FromFile(const CString& path, CSize size, double density) {
    AfxStartToolkit();
    QImageReader reader(ToQString(path.View()));
    reader.setAutoTransform(true);
    const QSize own = reader.size();
    const bool sized = size.cx > 0 && size.cy > 0;
    if (!sized) {
        density = 1;
    } else if (!(density > 0)) {
        density = qApp->devicePixelRatio();
    }
    if (sized) {
        // Rendered at the requested size, vector images stay sharp.
        const QSize wanted(qCeil(size.cx * density), qCeil(size.cy * density));
        reader.setScaledSize(own.isValid() ? own.scaled(wanted, Qt::KeepAspectRatio) : wanted);
    }
    const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return {};
    }
    // Rows of 32-bit pixels have no padding.
    return {image.width(),
            image.height(),
            {reinterpret_cast<const std::uint32_t*>(image.constBits()),
             static_cast<std::size_t>(image.sizeInBytes()) / sizeof(std::uint32_t)},
            density};
}

CImage CImage::Gray() const {
    const auto paler = [](int value) { return static_cast<int>(std::lround(value * kGrayShare)); };
    std::vector<std::uint32_t> pixels(Pixels().begin(), Pixels().end());
    for (std::uint32_t& pixel : pixels) {
        const int gray = paler(qGray(pixel));
        pixel = qRgba(gray, gray, gray, paler(qAlpha(pixel)));
    }
    return {m_pixelSize.cx, m_pixelSize.cy, pixels, m_density};
}

QPixmap ToPixmap(const CImage& image) {
    if (image.IsNull()) {
        return {};
    }
    const QImage view(reinterpret_cast<const uchar*>(image.Pixels().data()), image.PixelSize().cx,
                      image.PixelSize().cy, QImage::Format_ARGB32_Premultiplied);
    QPixmap pixmap = QPixmap::fromImage(view.copy());
    pixmap.setDevicePixelRatio(image.Density());
    return pixmap;
}

QIcon ToRowIcon(const CImage& image) {
    const QPixmap picture = ToPixmap(image);
    QIcon icon(picture);
    if (!picture.isNull()) {
        constexpr int kPlate = 215;
        constexpr double kCorner = 2;
        QPixmap selected(picture.size());
        selected.setDevicePixelRatio(picture.devicePixelRatio());
        selected.fill(Qt::transparent);
        QPainter painter(&selected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 255, 255, kPlate));
        painter.drawRoundedRect(QRectF(QPointF(), picture.deviceIndependentSize()), kCorner,
                                kCorner);
        painter.drawPixmap(0, 0, picture);
        painter.end();
        icon.addPixmap(selected, QIcon::Selected, QIcon::Off);
        icon.addPixmap(selected, QIcon::Selected, QIcon::On);
    }
    return icon;
}

IIconSource* SetIconSource(IIconSource* pSource) {
    return std::exchange(g_pIconSource, pSource);
}

CImage ImageOfIcon(HICON icon, CSize size) {
    return icon && g_pIconSource ? g_pIconSource->GetImage(icon, size) : CImage();
}

bool DestroyIcon(HICON icon) {
    return icon && g_pIconSource && g_pIconSource->Destroy(icon);
}
