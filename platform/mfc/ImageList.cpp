#include "platform/mfc/ImageList.h"

#include "platform/mfc/IIconSource.h"

bool CImageList::Create(int cx, int cy, UINT, int initial, int) {
    m_size = CSize(cx, cy);
    m_images.clear();
    m_images.reserve(static_cast<std::size_t>(initial > 0 ? initial : 0));
    return true;
}

int CImageList::Add(HICON icon) {
    return Add(ImageOfIcon(icon, m_size));
}

int CImageList::AddGray(HICON icon) {
    return Add(ImageOfIcon(icon, m_size).Gray());
}

int CImageList::Add(const CImage& image) {
    m_images.push_back(image);
    return GetImageCount() - 1;
}

CImage CImageList::GetImage(int index) const {
    return index >= 0 && index < GetImageCount() ? m_images[static_cast<std::size_t>(index)]
                                                 : CImage();
}
