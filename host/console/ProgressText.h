// When the user is told how far long work is, and how.
#pragma once

#include <chrono>
#include <optional>

#include "platform/win/String.h"

namespace Tessaly {

/// Work that is quickly done shows nothing.
inline constexpr std::chrono::milliseconds kQuietTime{500};

class ProgressText {
public:
    /// \param percentStep numbers between these are left out
    explicit ProgressText(int percentStep) : m_nStep(percentStep) {}

    /// The text to show now; nothing if the one shown last still holds.
    std::optional<CString> Next(std::wstring_view what, int percent,
                                std::chrono::milliseconds sinceBegin);

private:
    int m_nStep;
    CString m_strShown;
};

} // namespace Tessaly
