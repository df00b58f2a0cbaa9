// Who runs this program, and who the other programs on this machine are.
#pragma once

#include <string>
#include <sys/types.h>

namespace Tessaly {

struct ProcessInfo {
    std::string user;
    std::string host;
    std::string program; ///< as "tessaly (4711)"
};
ProcessInfo ThisProcess();

/// Name of a running program; empty if there is no such process.
std::string ProgramOf(pid_t process);
/// Tells a process from a later one of the same number: when the machine and the process
/// were started. Empty if there is no such process.
std::string StartOf(pid_t process);

/// As "2026-01-31 14:05:09".
std::string UtcNow();

/// Process that holds a lock on the file that keeps writers out; 0 if none on this machine
/// does. Not to be called while this process holds one of its own.
pid_t LockHolder(const std::string& path);

} // namespace Tessaly
