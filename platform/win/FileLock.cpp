#include "platform/win/FileLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "platform/win/File.h"

namespace {

constexpr std::chrono::milliseconds kPause(10);

/// Open for all who share the folder, whoever was the first.
int OpenLockFile(const wchar_t* path) {
    constexpr mode_t kForAll = 0666;
    const int file = open(NativePath(path).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kForAll);
    struct stat info {};
    if (file >= 0 && fstat(file, &info) == 0 && info.st_uid == geteuid()) {
        fchmod(file, kForAll);
    }
    return file;
}

bool IsHeldByOthers(int file) {
    // Of the open file, not of the process: those of the process end when any of its parts
    // closes the file.
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return fcntl(file, F_OFD_SETLK, &whole) != 0 && (errno == EAGAIN || errno == EACCES);
}

} // namespace

std::optional<FileLock> FileLock::Take(const wchar_t* path, int milliseconds) {
    FileLock lock(OpenLockFile(path));
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    while (lock.m_nFile >= 0 && IsHeldByOthers(lock.m_nFile)) {
        if (std::chrono::steady_clock::now() >= end) {
            return std::nullopt;
        }
        std::this_thread::sleep_for(kPause);
    }
    return lock;
}

FileLock::~FileLock() {
    if (m_nFile >= 0) {
        close(m_nFile);
    }
}
