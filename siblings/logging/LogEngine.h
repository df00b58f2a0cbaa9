// Switch and path of the developer trace, and the product's version numbers.
#pragma once

#include <string>

#include "siblings/logging/Api.h"

namespace Orvane {

/// All texts are UTF-8. Main thread only.
///
/// The section "Logging" of Settings.ini in the folder "support" says whether and where a trace
/// is written: on=0 or 1, and file=PATH, relative to that folder unless absolute. A trace file
/// given to the host at start switches the trace on and overrides the settings. Both are read
/// once, on the first call.
class LOGGING_API CLogEngine {
public:
    /// Non-zero if the trace is on. Called at every trace site.
    static int GetLoggingOnOff();
    static std::string GetLogFileFullPath();
    /// Overrides both settings for the rest of the process. A trace file that is already open
    /// stays in use.
    static void SetLogging(int on, const std::string& fileFullPath);

    /// Version of the host program's file; empty if it has none.
    static std::string GetAcadVersion();
    /// Version of the GIS core's file, which is the version of the product.
    static std::string GetTessalyVersion();
    /// Name and release of the operating system.
    static std::string GetWindowsVersion();
    /// "1" or "0".
    static std::string GetIsTessaly64bit();
    /// "1" or "0".
    static std::string GetIsWindows64bit();
};

} // namespace Orvane
