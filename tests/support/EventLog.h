// Records the calls of observers as one text.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "platform/arx/ApDocManager.h"
#include "platform/win/CodePage.h"
#include "platform/win/String.h"

/// Records events as "name argument argument;" in order. Observers may share a log. A function in
/// `on` is called after its event was recorded.
class EventLog {
public:
    template <class... Arguments>
    void Note(const std::string& event, const Arguments&... arguments) {
        m_text += event;
        ((m_text += " " + Text(arguments)), ...);
        m_text += ";";
        if (const auto hit = on.find(event); hit != on.end() && hit->second) {
            // Copied, as the function may remove itself.
            const std::function<void()> call = hit->second;
            call();
        }
    }
    std::string Take() { return std::exchange(m_text, {}); }

    std::map<std::string, std::function<void()>> on;

private:
    static std::string Text(const wchar_t* text) { return text ? WideToUtf8(text) : "null"; }
    static std::string Text(const CString& text) { return WideToUtf8(text.View()); }
    static std::string Text(const std::string& text) { return text; }
    static std::string Text(const AcApDocument* pDoc) {
        return pDoc ? Text(pDoc->fileName()) : "none";
    }
    template <class System>
    requires requires(const System& system) { system.GetSystemName(); }
    static std::string Text(const System* pSystem) {
        return pSystem ? Text(pSystem->GetSystemName()) : "none";
    }

    std::string m_text;
};
