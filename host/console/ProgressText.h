// When and how to show the progress of a long operation.
#pragma once

#include <chrono>
#include <optional>

#include "platform/win/String.h"

namespace Tessaly {

/// Shorter operations show no progress.
inline constexpr std::chrono::milliseconds kQuietTime{500};

class ProgressText {
public:
    /// \param percentStep percentages are rounded down to a multiple of this
    explicit ProgressText(int percentStep) : m_nStep(percentStep) {}

    /// The text to show now; nothing if it has not changed.
    std::optional<CString> Next(std::wstring_view what, int percent,
                                std::chrono::milliseconds sinceBegin);

private:
    int m_nStep;
    CString m_strShown;
};

} // namespace Tessaly
