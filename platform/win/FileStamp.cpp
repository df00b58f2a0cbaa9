#include "platform/win/FileStamp.h"

#include <array>
#include <ctime>
#include <pwd.h>
#include <sys/stat.h>
#include <vector>

#include "platform/win/CodePage.h"
#include "platform/win/File.h"

namespace {

constexpr std::int64_t kNanoseconds = 1'000'000'000;

} // namespace

std::optional<FileStamp> FileStampOf(const wchar_t* path) {
    struct stat info {};
    if (stat(NativePath(path).c_str(), &info) != 0) {
        return std::nullopt;
    }
    return FileStamp{info.st_mtim.tv_sec * kNanoseconds + info.st_mtim.tv_nsec, info.st_size,
                     info.st_ino};
}

CString FileOwner(const wchar_t* path) {
    struct stat info {};
    if (stat(NativePath(path).c_str(), &info) != 0) {
        return {};
    }
    constexpr std::size_t kEnough = 16'384;
    std::vector<char> texts(kEnough);
    passwd entry{};
    passwd* pFound = nullptr;
    const bool isKnown =
        getpwuid_r(info.st_uid, &entry, texts.data(), texts.size(), &pFound) == 0 && pFound;
    return isKnown ? CString(Utf8ToWide(pFound->pw_name))
                   : CString(std::to_wstring(info.st_uid).c_str());
}

CString LocalTimeText(const FileStamp& stamp) {
    const auto seconds = static_cast<std::time_t>(stamp.time / kNanoseconds);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &parts);
    return CString(Utf8ToWide(text.data()));
}
