#include "workspacecore/trace/Trace.h"

#include <cstdio>
#include <ctime>
#include <fstream>
#include <iostream>
#include <sstream>

#include "platform/win/CodePage.h"

namespace Orvane::Workspace::Trace {

namespace {

constexpr const char* kBadPointer = "Error: Bad pointer";

/// The output of the whole trace, chosen on first use for the rest of the process.
class Log {
public:
    static Log& Instance() {
        static Log log;
        return log;
    }
    std::ostream& Stream() { return s_bLogStreamOpen ? s_LogStream : std::cout; }

private:
    Log()
        : s_strLogFile(CLogEngine::GetLogFileFullPath()),
          s_LogStream(s_strLogFile, std::ios::out | std::ios::app),
          s_bLogStreamOpen(s_LogStream.is_open()) {}

    std::string s_strLogFile;
    std::ofstream s_LogStream;
    bool s_bLogStreamOpen;
};

std::vector<std::string>& Scopes() {
    static std::vector<std::string> s_vecTraceScopes;
    return s_vecTraceScopes;
}

/// Hours, minutes and seconds, each padded with a space.
std::string TimeOfDay() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    if (!localtime_r(&now, &parts)) {
        parts.tm_hour = parts.tm_min = parts.tm_sec = -1;
    }
    char text[40];
    std::snprintf(text, sizeof text, "%2d:%2d:%2d", parts.tm_hour, parts.tm_min, parts.tm_sec);
    return text;
}

std::string_view FileNameOfSite(std::string_view file) {
    return file.substr(file.rfind('\\') + 1);
}

std::string Padded(std::string_view text, std::size_t width) {
    std::string padded(text);
    padded.resize(std::max(width, text.size()), ' ');
    return padded;
}

std::string Prefix(const CTraceLocation& site) {
    constexpr std::size_t kFileWidth = 32;
    constexpr std::size_t kFunctionWidth = 16;
    char line[16];
    std::snprintf(line, sizeof line, "%5.5i", site.m_nLine);
    return "[" + TimeOfDay() + "] " + Padded(FileNameOfSite(site.m_pszFile), kFileWidth) + "(" +
           line + "): [" + Padded(site.m_pszFunction, kFunctionWidth) + "], ";
}

} // namespace

int Level() {
    static const int s_nTraceLevel = kTraceLevel;
    return s_nTraceLevel;
}

void WriteLine(const CTraceLocation& site, std::string_view text) {
    std::ostream& stream = site.m_pStream ? *site.m_pStream : Log::Instance().Stream();
    stream << Prefix(site);
    stream << text << std::endl;
}

const std::vector<std::string>& OpenScopes() {
    return Scopes();
}

std::string Narrow(const wchar_t* text) {
    return text ? WideToUtf8(text) : kBadPointer;
}

std::string Narrow(const CString& text) {
    return WideToUtf8(text.View());
}

std::string Narrow(const void* pointer) {
    std::ostringstream stream;
    stream << pointer;
    return stream.str();
}

void Failed(const CTraceLocation& site, const char* name) {
    if (site.m_nLevel <= Level()) {
        WriteLine(site, std::string("Failed verification:  '") + name + "'");
    }
}

void Scope::PrintPrefix() const {
    (m_site.m_pStream ? *m_site.m_pStream : Log::Instance().Stream()) << Prefix(m_site);
}

void Scope::Enter() const {
    if (m_site.m_nLevel <= Level()) {
        WriteLine(m_site, std::string("Entering function , ") + m_site.m_pszFunction);
    }
    Scopes().emplace_back(m_site.m_pszFunction);
}

void Scope::Leave() const {
    if (m_site.m_nLevel <= Level()) {
        WriteLine(m_site, std::string("Exiting function , ") + m_site.m_pszFunction);
    }
    if (!Scopes().empty()) {
        Scopes().pop_back();
    }
}

} // namespace Orvane::Workspace::Trace
