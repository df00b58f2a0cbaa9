// What an icon handle of the configuration stands for.
#pragma once

#include "platform/win/Rect.h"
#include "platform/win/String.h"

namespace Orvane {

/// A picture known by name. A HICON of CModuleConfiguration points to one.
struct CIcon {
    CString m_strName;
    CString m_strPath; ///< a scalable picture (SVG)
    CSize m_size;      ///< it is shown at, unless another is asked for
};

} // namespace Orvane
