#include "platform/mfc/Image.h"

#include <algorithm>
#include <utility>

#include <QImage>
#include <QImageReader>

#include "platform/mfc/IIconSource.h"
#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"

namespace {

IIconSource* g_pIconSource = nullptr;

} // namespace

CImage::CImage(int width, int height, std::span<const std::uint32_t> pixels) {
    if (width <= 0 || height <= 0 ||
        pixels.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {
        return;
    }
    std::shared_ptr<std::uint32_t[]> copy(new std::uint32_t[pixels.size()]);
    std::copy(pixels.begin(), pixels.end(), copy.get());
    m_pPixels = std::move(copy);
    m_size = CSize(width, height);
}

std::span<const std::uint32_t> CImage::Pixels() const {
    return {m_pPixels.get(),
            static_cast<std::size_t>(m_size.cx) * static_cast<std::size_t>(m_size.cy)};
}

CImage CImage::FromFile(const CString& path, CSize size) {
    AfxStartToolkit();
    QImageReader reader(ToQString(path.View()));
    reader.setAutoTransform(true);
    const QSize own = reader.size();
    if (size.cx > 0 && size.cy > 0) {
        // Read at the size wanted, a drawing stays sharp.
        const QSize wanted(size.cx, size.cy);
        reader.setScaledSize(own.isValid() ? own.scaled(wanted, Qt::KeepAspectRatio) : wanted);
    }
    const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return {};
    }
    // Lines of 32-bit pixels have no gaps.
    return {image.width(),
            image.height(),
            {reinterpret_cast<const std::uint32_t*>(image.constBits()),
             static_cast<std::size_t>(image.sizeInBytes()) / sizeof(std::uint32_t)}};
}

QPixmap ToPixmap(const CImage& image) {
    if (image.IsNull()) {
        return {};
    }
    const QImage view(reinterpret_cast<const uchar*>(image.Pixels().data()), image.Size().cx,
                      image.Size().cy, QImage::Format_ARGB32_Premultiplied);
    return QPixmap::fromImage(view.copy());
}

IIconSource* SetIconSource(IIconSource* pSource) {
    return std::exchange(g_pIconSource, pSource);
}

CImage ImageOfIcon(HICON icon, CSize size) {
    return icon && g_pIconSource ? g_pIconSource->GetImage(icon, size) : CImage();
}
