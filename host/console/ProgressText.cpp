#include "host/console/ProgressText.h"

namespace Tessaly {

namespace {

/// Longer texts would wrap on most terminals, and a wrapped line cannot be cleared.
constexpr std::size_t kLongestWhat = 60;
constexpr std::wstring_view kDots = L"...";

} // namespace

std::optional<CString> ProgressText::Next(std::wstring_view what, int percent,
                                          std::chrono::milliseconds sinceBegin) {
    if (sinceBegin < kQuietTime) {
        return std::nullopt;
    }
    CString text(what);
    if (what.size() > kLongestWhat) {
        text = CString(what.substr(0, kLongestWhat - kDots.size()));
        text += kDots;
    }
    text.AppendFormat(L": %d %%", percent - percent % m_nStep);
    if (text == m_strShown) {
        return std::nullopt;
    }
    m_strShown = text;
    return text;
}

} // namespace Tessaly
