// Exit statuses of the program.
#pragma once

namespace Tessaly {

inline constexpr int kExitDone = 0;
inline constexpr int kExitCommandFailed = 1;
inline constexpr int kExitBadUsage = 2;

} // namespace Tessaly
