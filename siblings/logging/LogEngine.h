// The switch and the file of the developer's trace, and what the product knows of its
// versions.
#pragma once

#include <string>

#include "siblings/logging/Api.h"

namespace Orvane {

/// All texts are UTF-8. Main thread only.
///
/// Whether a trace is written, and where, comes from the section "Logging" of
/// Settings.ini in the folder "support": on=0 or 1, and file=PATH, which is relative to
/// that folder unless it is absolute. A trace file that the host was started with
/// switches the trace on and wins over the settings. Both are read once, at the first call.
class LOGGING_API CLogEngine {
public:
    /// Non-zero if a trace is to be written. Asked at every trace site.
    static int GetLoggingOnOff();
    static std::string GetLogFileFullPath();
    /// Sets both in place of what was read, for the rest of the process. Who has opened
    /// the trace file already keeps writing to the old one.
    static void SetLogging(int on, const std::string& fileFullPath);

    /// Version of the host program's file; empty if it carries none.
    static std::string GetAcadVersion();
    /// Version of the GIS core's file, which counts as that of the product.
    static std::string GetTessalyVersion();
    /// Name and release of the operating system.
    static std::string GetWindowsVersion();
    /// "1" or "0".
    static std::string GetIsTessaly64bit();
    /// "1" or "0".
    static std::string GetIsWindows64bit();
};

} // namespace Orvane
