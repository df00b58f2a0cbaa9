#include "host/storage/SystemFile.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>

#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {
constexpr std::array<const char*, 4> kCompanions = {"", "-journal", "-wal", "-shm"};
} // namespace

CString ErrnoText(int number) {
    return number == ENOSPC || number == EFBIG
               ? CString(L"the disk is full")
               : CString(Utf8ToWide(std::strerror(number))); // NOLINT(concurrency-mt-unsafe)
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
