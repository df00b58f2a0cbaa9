#include "platform/win/FolderLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>

#include "platform/win/File.h"

FolderLock::FolderLock(const wchar_t* file) {
    constexpr int kTries = 25;
    constexpr useconds_t kPause = 10'000; // microseconds
    const auto folder = std::filesystem::path(NativePath(file)).parent_path();
    m_nFolder = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int i = 0; m_nFolder >= 0 && !m_bHeld && i < kTries; ++i) {
        m_bHeld = flock(m_nFolder, LOCK_EX | LOCK_NB) == 0;
        if (!m_bHeld && errno != EWOULDBLOCK) {
            break;
        }
        if (!m_bHeld) {
            usleep(kPause);
        }
    }
}

FolderLock::~FolderLock() {
    if (m_nFolder >= 0) {
        close(m_nFolder);
    }
}
