#include "host/storage/GdalErrors.h"

#include <cpl_conv.h>
#include <cpl_error.h>

#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

constexpr std::size_t kMostFailures = 8;

/// What SQLite and GDAL say, and what it means to a user. The first that fits counts.
struct Meaning {
    const char* part;
    const wchar_t* text;
};
constexpr Meaning kMeanings[] = {
    {"locked", L"another program has locked it"},
    {"SQLITE_BUSY", L"another program has locked it"},
    {"disk is full", L"the disk is full"},
    {"No space left", L"the disk is full"},
    {"readonly database", L"it is write-protected"},
    {"read-only", L"it is write-protected"},
    {"unable to open database file", L"it cannot be opened, or its folder cannot be written to"},
    {"malformed", L"it is damaged"},
    {"not a database", L"it is damaged, or no GeoPackage"},
    {"disk I/O error", L"reading or writing the disk failed"},
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
                return CString(meaning.text) + L" (" + CString(Utf8ToWide(failure)) + L")";
            }
        }
    }
    return m_failures.empty() ? CString(L"it is damaged, or of a kind that is not known")
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
    return CString(Utf8ToWide(nativePath)) + L": " + reason;
}

} // namespace Tessaly
