// Where the pictures behind icon handles come from.
#pragma once

#include "platform/mfc/Image.h"

/// Implemented by the module that gives out icon handles.
class PLATFORM_API IIconSource {
public:
    virtual ~IIconSource() = default;
    /// The picture of an icon at a size; empty for an unknown handle.
    virtual CImage GetImage(HICON icon, CSize size) = 0;
};

/// Makes a source the one in force and returns the one before. Not owned; null for none.
PLATFORM_API IIconSource* SetIconSource(IIconSource* pSource);
/// The picture of an icon; empty for a null handle, an unknown one, and without a source.
PLATFORM_API CImage ImageOfIcon(HICON icon, CSize size);
