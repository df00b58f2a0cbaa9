// Keeps other programs from writing into a drawing's file, and waits for those that do.
#pragma once

#include <cstdint>
#include <string>

#include "platform/arx/DbStorage.h"

struct sqlite3;

namespace Tessaly {

/// Held while it lives. As long as it is held, nothing of this process may open the file and
/// close it again: the operating system would drop the lock.
class WriteLock {
public:
    explicit WriteLock(std::string path) : m_path(std::move(path)) {}
    ~WriteLock();
    WriteLock(const WriteLock&) = delete;
    WriteLock& operator=(const WriteLock&) = delete;

    /// Waits for others at most a second, and asks `progress` whether to go on. Empty on
    /// success, else who has it locked. A file that is no database, or not there, is locked
    /// by nobody and needs no lock. What a writer that died left is taken back.
    CString Take(const AcDbProgress& progress = {});
    /// The same, and everything is in the file itself from then on: no log is beside it.
    CString TakeWithoutLog(const AcDbProgress& progress = {});
    /// Of the locked file; 0 without a lock.
    std::uint32_t ChangeCounter() const;

private:
    CString Begin(const AcDbProgress& progress, bool withoutLog);
    void Release();

    std::string m_path;
    sqlite3* m_pDatabase = nullptr;
};

} // namespace Tessaly
