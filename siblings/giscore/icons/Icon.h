// The object behind an icon handle.
#pragma once

#include "platform/win/Rect.h"
#include "platform/win/String.h"

namespace Orvane {

/// A named icon. An HICON returned by CModuleConfiguration points to one.
struct CIcon {
    CString m_strName;
    CString m_strPath; ///< SVG file
    CSize m_size;      ///< default display size
};

} // namespace Orvane
