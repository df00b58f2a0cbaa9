// Rules for loading plug-ins.
#pragma once

#include <cstddef>

#include "platform/win/Types.h"

namespace Orvane::Workspace {

/// A library on a network share may only be found on a later attempt.
inline constexpr int kLoadAttempts = 7;

/// Calls load() until it returns a library, at most seven times without a delay.
template <class Load>
HINSTANCE LoadWithAttempts(Load load) {
    HINSTANCE library = nullptr;
    for (int i = 0; i < kLoadAttempts && !library; ++i) {
        library = load();
    }
    return library;
}

/// Progress of the load when the record at this index (from 0) is next.
inline int LoadPercent(std::size_t index, std::size_t count) {
    return static_cast<int>(static_cast<double>(index + 1) * 100.0 / static_cast<double>(count));
}

} // namespace Orvane::Workspace
