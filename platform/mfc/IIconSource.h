// Provides the pictures of icon handles.
#pragma once

#include "platform/mfc/Image.h"

/// Implemented by the module that issues icon handles.
class PLATFORM_API IIconSource {
public:
    virtual ~IIconSource() = default;
    /// The picture of an icon in the given size, or in its own if the size is empty, sharp on every
    /// screen; empty for an unknown handle.
    virtual CImage GetImage(HICON icon, CSize size) = 0;
    /// Invalidates a handle owned by its holder. False for other handles.
    virtual bool Destroy(HICON) { return false; }
};

/// Sets the source and returns the previous one. Not owned; may be null.
PLATFORM_API IIconSource* SetIconSource(IIconSource* pSource);
/// The picture of an icon; empty for a null or unknown handle and without a source.
PLATFORM_API CImage ImageOfIcon(HICON icon, CSize size = {});
/// Destroys an icon that was loaded for its caller. False for other handles.
PLATFORM_API bool DestroyIcon(HICON icon);
