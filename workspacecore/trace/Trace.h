// Developer trace: one text file for the whole process, controlled by CLogEngine.
//
// While logging is off a site costs one call of CLogEngine::GetLoggingOnOff; nothing of
// its arguments is evaluated (but the condition of a verification, which is handed back),
// so they must have no side effects. While it is on, every line is flushed. The file is UTF-8.
// Main thread only.
//
//     WS_TRACE_SCOPE();                    Entering now, Exiting when the scope ends
//     WS_TRACE_TEXT(L"DLL Loaded");        a line with a text or a number
//     WS_TRACE_VALUE("pDoc", pDoc);        a line "pDoc = '...'"
//     WS_TRACE_VERIFY(p != nullptr, "p")   gives the condition; a line only if it is false
//     WS_TRACE_FORMAT(L"Module = %s", s);  a line with a formatted text
#pragma once

#include <algorithm>
#include <array>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "platform/win/String.h"
#include "siblings/logging/LogEngine.h"
#include "workspacecore/Api.h"

namespace Orvane::Workspace {

/// The source location of a trace site.
struct CTraceLocation {
    const char* m_pszFile;
    int m_nLine;
    const char* m_pszFunction;
    int m_nLevel;
    bool m_bPrefixOnly = false;
    std::ostream* m_pStream = nullptr; ///< null: the trace file
};

/// Level of all our trace sites.
inline constexpr int kTraceLevel = 3;

namespace Trace {

/// Strips return type and arguments from a function signature.
constexpr std::string_view QualifiedName(std::string_view signature) {
    // Names in which a parenthesis, bracket or space is part of the name.
    constexpr std::string_view kOperator = "operator";
    constexpr std::string_view kUnnamed = "(anonymous";
    const std::size_t op = signature.find(kOperator);
    std::size_t open = op == std::string_view::npos ? 0 : op + kOperator.size();
    open += op != std::string_view::npos && signature.substr(open).starts_with("()") ? 2 : 0;
    while ((open = signature.find('(', open)) != std::string_view::npos &&
           signature.substr(open).starts_with(kUnnamed)) {
        ++open;
    }
    const std::string_view name = signature.substr(0, open);
    // Backwards over the qualified name to the space after the return type.
    int depth = 0;
    for (std::size_t i = std::min(op, name.size()); i > 0; --i) {
        const char c = name[i - 1];
        depth += c == '>' || c == ')' ? 1 : c == '<' || c == '(' ? -1 : 0;
        if (depth == 0 && (c == ' ' || c == '*' || c == '&')) {
            return name.substr(i);
        }
    }
    return name;
}

/// The qualified name of a function as a NUL-terminated string, from the compiler's signature.
template <std::size_t N>
consteval std::array<char, N> FunctionName(const char (&signature)[N]) {
    std::array<char, N> text{};
    const std::string_view name = QualifiedName(std::string_view(signature, N - 1));
    std::copy(name.begin(), name.end(), text.begin());
    return text;
}

/// The active level; sites above it are silent.
WORKSPACE_API int Level();
/// Writes one line. The caller has already compared the levels.
WORKSPACE_API void WriteLine(const CTraceLocation& site, std::string_view text);
/// Names of the open scopes, newest last. Maintained only while logging is on.
WORKSPACE_API const std::vector<std::string>& OpenScopes();

WORKSPACE_API std::string Narrow(const wchar_t* text);
WORKSPACE_API std::string Narrow(const CString& text);
WORKSPACE_API std::string Narrow(const void* pointer);
inline std::string Narrow(const char* text) {
    return text ? text : "Error: Bad pointer";
}
template <class T>
requires std::is_arithmetic_v<T> std::string Narrow(T number) {
    return std::to_string(number);
}

template <class T>
void Text(const CTraceLocation& site, const T& text) {
    if (site.m_nLevel <= Level()) {
        WriteLine(site, Narrow(text));
    }
}

template <class T>
void Value(const CTraceLocation& site, const char* name, const T& value) {
    if (site.m_nLevel <= Level()) {
        WriteLine(site, std::string(name) + " = '" + Narrow(value) + "'");
    }
}

WORKSPACE_API void Failed(const CTraceLocation& site, const char* name);

template <class... Args>
void Format(const CTraceLocation& site, std::wstring_view format, const Args&... args) {
    if (site.m_nLevel <= Level()) {
        WriteLine(site, Narrow(FormatText(format, args...).c_str()));
    }
}

/// Writes the Entering line, and the Exiting line when the scope ends, including by an exception.
class Scope {
public:
    explicit Scope(const CTraceLocation& site) : m_site(site) {
        if (site.m_bPrefixOnly) {
            PrintPrefix();
        }
        if (CLogEngine::GetLoggingOnOff()) {
            Enter();
        }
    }
    ~Scope() {
        if (CLogEngine::GetLoggingOnOff()) {
            Leave();
        }
    }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

private:
    WORKSPACE_API void PrintPrefix() const;
    WORKSPACE_API void Enter() const;
    WORKSPACE_API void Leave() const;

    CTraceLocation m_site;
};

} // namespace Trace
} // namespace Orvane::Workspace

#define WS_TRACE_SITE                                                                              \
    __extension__({                                                                                \
        static constexpr auto wsFunctionName =                                                     \
            ::Orvane::Workspace::Trace::FunctionName(__PRETTY_FUNCTION__);                         \
        ::Orvane::Workspace::CTraceLocation{__FILE_NAME__, __LINE__, wsFunctionName.data(),        \
                                            ::Orvane::Workspace::kTraceLevel};                     \
    })
#define WS_TRACE_WHEN_ON(call)                                                                     \
    do {                                                                                           \
        if (::Orvane::CLogEngine::GetLoggingOnOff()) {                                             \
            ::Orvane::Workspace::Trace::call;                                                      \
        }                                                                                          \
    } while (false)

#define WS_TRACE_SCOPE()                                                                           \
    const ::Orvane::Workspace::Trace::Scope wsTraceScope {                                         \
        WS_TRACE_SITE                                                                              \
    }
#define WS_TRACE_TEXT(text) WS_TRACE_WHEN_ON(Text(WS_TRACE_SITE, text))
#define WS_TRACE_VALUE(name, value) WS_TRACE_WHEN_ON(Value(WS_TRACE_SITE, name, value))
#define WS_TRACE_FORMAT(...) WS_TRACE_WHEN_ON(Format(WS_TRACE_SITE, __VA_ARGS__))
#define WS_TRACE_VERIFY(condition, name)                                                           \
    ((condition) ? true                                                                            \
                 : (::Orvane::CLogEngine::GetLoggingOnOff()                                        \
                        ? ::Orvane::Workspace::Trace::Failed(WS_TRACE_SITE, name)                  \
                        : void(),                                                                  \
                    false))
