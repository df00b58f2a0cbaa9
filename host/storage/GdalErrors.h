// What GDAL says while it works, kept from standard error and turned into reasons.
#pragma once

#include <string>
#include <vector>

#include "platform/win/String.h"

namespace Tessaly {

/// While it lives, everything that GDAL says on this thread comes here. Lives on the stack:
/// the last one made is the first to go.
class GdalErrors {
public:
    GdalErrors();
    ~GdalErrors();
    GdalErrors(const GdalErrors&) = delete;
    GdalErrors& operator=(const GdalErrors&) = delete;

    bool HasFailed() const { return !m_failures.empty(); }
    /// Forgets what was said so far.
    void Clear();
    /// Why it failed, for a user: never empty, since some broken files are refused by GDAL
    /// without a word.
    CString Reason() const;
    /// The same with the file's name in front.
    CString Reason(const std::string& nativePath) const;

    /// Called by GDAL.
    void Note(int errorClass, const char* message);

private:
    std::vector<std::string> m_failures; ///< the first few: later ones follow from them
};

/// A setting of GDAL that holds for this thread while it lives.
class GdalSetting {
public:
    GdalSetting(const char* name, const char* value);
    ~GdalSetting();
    GdalSetting(const GdalSetting&) = delete;
    GdalSetting& operator=(const GdalSetting&) = delete;

private:
    std::string m_name;
    std::string m_before;
    bool m_wasSet;
};

/// The path as users write it, with a colon and the reason.
CString FileReason(const std::string& nativePath, const CString& reason);

} // namespace Tessaly
