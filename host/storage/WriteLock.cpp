#include "host/storage/WriteLock.h"

#include <array>
#include <chrono>
#include <sqlite3.h>
#include <thread>
#include <utility>

#include "host/storage/ConflictTexts.h"
#include "host/storage/Processes.h"
#include "host/storage/SystemFile.h"

namespace Tessaly {

namespace {

using Clock = std::chrono::steady_clock;

/// A user waits as long as this for another program.
constexpr std::chrono::milliseconds kLongestWait{1000};
constexpr std::chrono::milliseconds kBetweenTries{20};

struct Waiting {
    const AcDbProgress& progress;
    Clock::time_point end = Clock::now() + kLongestWait;
    bool isStopped = false;
};

/// Called by SQLite as long as somebody else has the lock; 0 gives up.
int GoOnWaiting(void* pWaiting, int /*tries*/) {
    auto& waiting = *static_cast<Waiting*>(pWaiting);
    waiting.isStopped = waiting.progress && !waiting.progress(0);
    if (waiting.isStopped || Clock::now() >= waiting.end) {
        return 0;
    }
    std::this_thread::sleep_for(kBetweenTries);
    return 1;
}

bool IsBusy(int result) {
    const int primary = result & 0xFF;
    return primary == SQLITE_BUSY || primary == SQLITE_LOCKED;
}

int Run(sqlite3* pDatabase, const char* sql) {
    return sqlite3_exec(pDatabase, sql, nullptr, nullptr, nullptr);
}

} // namespace

WriteLock::~WriteLock() {
    Release();
}

void WriteLock::Release() {
    // Closing takes the transaction back.
    sqlite3_close(std::exchange(m_pDatabase, nullptr));
}

CString WriteLock::Take(const AcDbProgress& progress) {
    return Begin(progress, false);
}

CString WriteLock::TakeWithoutLog(const AcDbProgress& progress) {
    return Begin(progress, true);
}

CString WriteLock::Begin(const AcDbProgress& progress, bool withoutLog) {
    Release();
    const FileNumber number = FileNumberOf(m_path);
    Waiting waiting{progress};
    int result = sqlite3_open_v2(m_path.c_str(), &m_pDatabase, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_busy_handler(m_pDatabase, GoOnWaiting, &waiting);
    if (result == SQLITE_OK && withoutLog) {
        result = Run(m_pDatabase, "PRAGMA journal_mode = DELETE");
    }
    if (result == SQLITE_OK) {
        result = Run(m_pDatabase, "BEGIN IMMEDIATE");
    }
    sqlite3_busy_handler(m_pDatabase, nullptr, nullptr);
    if (result == SQLITE_OK && FileNumberOf(m_path) != number) {
        // Whoever held the lock has put another file in the place: this one has no name left.
        Release();
        return ReplacedMeanwhileReason();
    }
    if (result == SQLITE_OK) {
        return {};
    }
    Release();
    if (!IsBusy(result)) {
        return {};
    }
    if (waiting.isStopped) {
        return WaitStoppedReason();
    }
    const pid_t holder = LockHolder(m_path);
    return LockedReason(holder > 0 ? ProgramOf(holder) + " (" + std::to_string(holder) + ")" : "");
}

std::uint32_t WriteLock::ChangeCounter() const {
    constexpr int kCounterPlace = 24;
    std::array<unsigned char, 4> bytes{};
    sqlite3_file* pFile = nullptr;
    // Through SQLite's own handle: another one would drop the lock when it is closed.
    const bool isRead =
        m_pDatabase &&
        sqlite3_file_control(m_pDatabase, "main", SQLITE_FCNTL_FILE_POINTER, &pFile) == SQLITE_OK &&
        pFile && pFile->pMethods &&
        pFile->pMethods->xRead(pFile, bytes.data(), static_cast<int>(bytes.size()),
                               kCounterPlace) == SQLITE_OK;
    return isRead ? std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 |
                        std::uint32_t{bytes[2]} << 8 | bytes[3]
                  : 0;
}

} // namespace Tessaly
