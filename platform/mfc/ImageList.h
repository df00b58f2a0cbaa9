// Pictures of one size, accessed by index.
#pragma once

#include <vector>

#include "platform/mfc/Image.h"

inline constexpr UINT ILC_MASK = 0x01;
inline constexpr UINT ILC_COLOR8 = 0x08;

/// Copies share the pictures but not the list. The colour flags are ignored.
class PLATFORM_API CImageList {
public:
    CImageList() = default;
    explicit CImageList(CSize size) : m_size(size) {}
    bool Create(int cx, int cy, UINT flags, int initial, int grow);

    /// Adds the picture of an icon, which may be destroyed afterwards. An unknown icon gives an
    /// empty picture.
    /// \return its index
    int Add(HICON icon);
    int Add(const CImage& image);
    /// Adds the gray form of an icon.
    int AddGray(HICON icon);
    int GetImageCount() const { return static_cast<int>(m_images.size()); }
    CSize ImageSize() const { return m_size; }
    CImage GetImage(int index) const; ///< empty for an invalid index

private:
    CSize m_size{16, 16};
    std::vector<CImage> m_images;
};
