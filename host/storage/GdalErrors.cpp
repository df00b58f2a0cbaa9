#include "host/storage/GdalErrors.h"

#include <cpl_conv.h>
#include <cpl_error.h>

#include "host/Texts.h"
#include "platform/win/CodePage.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

constexpr std::size_t kMostFailures = 8;

/// What SQLite and GDAL say, and what it means to a user. The first that fits counts.
struct Meaning {
    const char* part;
    Msg text;
};
constexpr Meaning kMeanings[] = {
    {"locked", Msg::IsLocked},
    {"SQLITE_BUSY", Msg::IsLocked},
    {"disk is full", Msg::DiskFull},
    {"No space left", Msg::DiskFull},
    {"readonly database", Msg::WriteProtected},
    {"read-only", Msg::WriteProtected},
    {"unable to open database file", Msg::CannotOpenOrWrite},
    {"malformed", Msg::IsDamaged},
    {"replaced while it was opened", Msg::ReplacedMeanwhile},
    {"not a database", Msg::DamagedOrOther},
    {"disk I/O error", Msg::DiskFailed},
    {"not recognized as", Msg::DamagedOrUnknown},
};

void CPL_STDCALL Catch(CPLErr errorClass, CPLErrorNum, const char* message) {
    static_cast<GdalErrors*>(CPLGetErrorHandlerUserData())->Note(errorClass, message);
}

} // namespace

GdalErrors::GdalErrors() {
    CPLPushErrorHandlerEx(Catch, this);
    CPLErrorReset();
}

GdalErrors::~GdalErrors() {
    CPLPopErrorHandler();
}

void GdalErrors::Clear() {
    m_failures.clear();
    CPLErrorReset();
}

void GdalErrors::Note(int errorClass, const char* message) {
    if (errorClass >= CE_Failure && m_failures.size() < kMostFailures) {
        m_failures.emplace_back(message);
    }
}

CString GdalErrors::Reason() const {
    for (const Meaning& meaning : kMeanings) {
        for (const std::string& failure : m_failures) {
            if (failure.find(meaning.part) != std::string::npos) {
                return Text(meaning.text);
            }
        }
    }
    return m_failures.empty() ? Text(Msg::DamagedOrUnknown)
                              : CString(Utf8ToWide(m_failures.front()));
}

CString GdalErrors::Reason(const std::string& nativePath) const {
    return FileReason(nativePath, Reason());
}

GdalSetting::GdalSetting(const char* name, const char* value) : m_name(name) {
    const char* before = CPLGetThreadLocalConfigOption(name, nullptr);
    m_wasSet = before != nullptr;
    m_before = before ? before : "";
    CPLSetThreadLocalConfigOption(name, value);
}

GdalSetting::~GdalSetting() {
    CPLSetThreadLocalConfigOption(m_name.c_str(), m_wasSet ? m_before.c_str() : nullptr);
}

CString FileReason(const std::string& nativePath, const CString& reason) {
    return WidePath(nativePath) + L": " + reason;
}

} // namespace Tessaly
