#include "host/storage/SystemFile.h"

#include <array>
#include <cerrno>
#include <filesystem>
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

std::string BehindLinks(const std::string& path) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    return error ? path : real.string();
}

void RemoveWithJournals(const std::string& path) {
    for (const char* suffix : kCompanions) {
        unlink((path + suffix).c_str());
    }
}

} // namespace Tessaly
