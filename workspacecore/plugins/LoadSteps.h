// Small rules of the load of the plug-ins.
#pragma once

#include <cstddef>

#include "platform/win/Types.h"

namespace Orvane::Workspace {

/// A library on a network share may be there at the second look.
inline constexpr int kLoadAttempts = 7;

/// Calls load() until it gives a library, at once and seven times at most.
template <class Load>
HINSTANCE LoadWithAttempts(Load load) {
    HINSTANCE library = nullptr;
    for (int i = 0; i < kLoadAttempts && !library; ++i) {
        library = load();
    }
    return library;
}

/// How far the load is when the record of an index, from 0, is taken up.
inline int LoadPercent(std::size_t index, std::size_t count) {
    return static_cast<int>(static_cast<double>(index + 1) * 100.0 / static_cast<double>(count));
}

} // namespace Orvane::Workspace
