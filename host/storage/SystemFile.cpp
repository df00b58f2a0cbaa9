#include "host/storage/SystemFile.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "host/Texts.h"
#include "platform/win/ErrorText.h"

namespace Tessaly {

namespace {
constexpr std::array<const char*, 4> kCompanions = {"", "-journal", "-wal", "-shm"};
} // namespace

CString ErrnoText(int number) {
    return number == ENOSPC || number == EFBIG ? Text(Msg::DiskFull) : ErrorNumberText(number);
}

FileNumber FileNumberOf(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 ? FileNumber{info.st_dev, info.st_ino} : FileNumber();
}

std::string BehindLinks(const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    if (!error) {
        return real.string();
    }
    constexpr int kMostLinks = 40;
    fs::path place = path;
    for (int i = 0; i < kMostLinks; ++i) {
        const fs::path next = fs::read_symlink(place, error);
        if (error) {
            return place.string();
        }
        place = (place.parent_path() / next).lexically_normal();
    }
    return path;
}

void RemoveWithJournals(const std::string& path) {
    for (const char* suffix : kCompanions) {
        unlink((path + suffix).c_str());
    }
}

} // namespace Tessaly
