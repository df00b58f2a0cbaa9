// What an icon handle of the configuration stands for.
#pragma once

#include "platform/win/String.h"

namespace Orvane {

/// A picture known by name. A HICON of CModuleConfiguration::GetIcon points to one; who
/// draws it loads the file.
struct CIcon {
    CString m_strName;
    CString m_strPath; ///< a scalable picture (SVG)
};

} // namespace Orvane
