#include "platform/win/FileStamp.h"

#include <sys/stat.h>

#include "platform/win/File.h"

std::optional<FileStamp> FileStampOf(const wchar_t* path) {
    struct stat info {};
    if (stat(NativePath(path).c_str(), &info) != 0) {
        return std::nullopt;
    }
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    return FileStamp{info.st_mtim.tv_sec * kNanoseconds + info.st_mtim.tv_nsec, info.st_size,
                     info.st_ino};
}
