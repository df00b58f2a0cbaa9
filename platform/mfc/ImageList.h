// Pictures of one size, known by their index.
#pragma once

#include <vector>

#include "platform/mfc/Image.h"

inline constexpr UINT ILC_MASK = 0x01;
inline constexpr UINT ILC_COLOR8 = 0x08;

/// Copies share the pictures but not the list. The colour flags change nothing.
class PLATFORM_API CImageList {
public:
    CImageList() = default;
    explicit CImageList(CSize size) : m_size(size) {}
    bool Create(int cx, int cy, UINT flags, int initial, int grow);

    /// Takes the picture of an icon, so that the icon may go afterwards. An unknown icon
    /// gives an empty picture.
    /// \return its index
    int Add(HICON icon);
    int Add(const CImage& image);
    /// The gray form of an icon.
    int AddGray(HICON icon);
    int GetImageCount() const { return static_cast<int>(m_images.size()); }
    CSize ImageSize() const { return m_size; }
    CImage GetImage(int index) const; ///< empty for no index

private:
    CSize m_size{16, 16};
    std::vector<CImage> m_images;
};
