// Where the pictures behind icon handles come from.
#pragma once

#include "platform/mfc/Image.h"

/// Implemented by the module that gives out icon handles.
class PLATFORM_API IIconSource {
public:
    virtual ~IIconSource() = default;
    /// The picture of an icon at a size, or at the icon's own for no size, sharp on every
    /// screen there is; empty for an unknown handle.
    virtual CImage GetImage(HICON icon, CSize size) = 0;
    /// Makes a handle unknown that its holder owns. False for others.
    virtual bool Destroy(HICON) { return false; }
};

/// Makes a source the one in force and returns the one before. Not owned; null for none.
PLATFORM_API IIconSource* SetIconSource(IIconSource* pSource);
/// The picture of an icon; empty for a null handle, an unknown one, and without a source.
PLATFORM_API CImage ImageOfIcon(HICON icon, CSize size = {});
/// Gives back an icon that was loaded for its caller. False for a handle that nobody owns.
PLATFORM_API bool DestroyIcon(HICON icon);
