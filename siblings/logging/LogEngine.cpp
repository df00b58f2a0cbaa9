#include "siblings/logging/LogEngine.h"

#include <filesystem>
#include <sys/utsname.h>

#include "platform/arx/HostOptions.h"
#include "platform/win/CodePage.h"
#include "platform/win/File.h"
#include "platform/win/FileVersion.h"
#include "platform/win/IniFile.h"

namespace Orvane {

namespace {

constexpr int kNotRead = -1;
int s_nLogging = kNotRead;

/// Never destroyed: a trace may be written while the process ends.
std::string& LogFile() {
    static auto* const path = new std::string;
    return *path;
}

void ReadLoggingSettings() {
    const CString support = WithSeparator(GetHostOption(kHostOptionSupport));
    IniFile settings;
    settings.Load(support + L"Settings.ini"); // a missing file leaves the trace off
    const CString* const pOn = settings.Find(L"Logging", L"on");
    const CString* const pFile = settings.Find(L"Logging", L"file");
    const CString asked = GetHostOption(kHostOptionTrace);

    namespace fs = std::filesystem;
    const fs::path stated = asked.IsEmpty()
                                ? fs::path(NativePath(support)) /
                                      NativePath(pFile && !pFile->IsEmpty() ? *pFile : L"trace.log")
                                : fs::path(NativePath(asked));
    std::error_code unknown; // on failure the path is used as configured
    const fs::path absolute = fs::absolute(stated, unknown);
    LogFile() = (unknown ? stated : absolute).string();
    s_nLogging = !asked.IsEmpty() || (pOn && *pOn == L"1") ? 1 : 0;
}

std::string VersionOf(const wchar_t* fileName) {
    const CString install = WithSeparator(GetHostOption(kHostOptionInstall));
    return WideToUtf8(ReadFileVersionText(install + fileName).View());
}

utsname OperatingSystem() {
    utsname names{};
    uname(&names);
    return names;
}

} // namespace

int CLogEngine::GetLoggingOnOff() {
    if (s_nLogging == kNotRead) [[unlikely]] {
        ReadLoggingSettings();
    }
    return s_nLogging;
}

std::string CLogEngine::GetLogFileFullPath() {
    GetLoggingOnOff(); // reads the settings on first use
    return LogFile();
}

void CLogEngine::SetLogging(int on, const std::string& fileFullPath) {
    s_nLogging = on ? 1 : 0;
    LogFile() = fileFullPath;
}

std::string CLogEngine::GetAcadVersion() {
    return VersionOf(L"tessaly");
}

std::string CLogEngine::GetTessalyVersion() {
    return VersionOf(L"ORVZGisCore.arx");
}

std::string CLogEngine::GetWindowsVersion() {
    const utsname names = OperatingSystem();
    return std::string(names.sysname) + ' ' + names.release;
}

std::string CLogEngine::GetIsTessaly64bit() {
    return sizeof(void*) == 8 ? "1" : "0";
}

std::string CLogEngine::GetIsWindows64bit() {
    const std::string machine = OperatingSystem().machine;
    return machine.find("64") != std::string::npos || machine == "s390x" ? "1" : "0";
}

} // namespace Orvane
