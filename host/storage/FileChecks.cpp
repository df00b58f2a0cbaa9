#include "host/storage/FileChecks.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "host/Texts.h"
#include "host/storage/ConflictTexts.h"
#include "host/storage/Journals.h"
#include "host/storage/SystemFile.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kHeaderSize = 100;
constexpr std::string_view kMagic{"SQLite format 3\0", 16};

bool IsNotEmpty(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && info.st_size > 0;
}

/// The first page's header, which is the same in all versions of the format.
struct Header {
    std::array<unsigned char, kHeaderSize> bytes{};
    bool isRead = false;

    explicit Header(const std::string& path) {
        const Descriptor file(path, O_RDONLY);
        isRead = file && pread(file.Number(), bytes.data(), bytes.size(), 0) ==
                             static_cast<ssize_t>(bytes.size());
    }
    std::uint32_t Big32(std::size_t at) const {
        return std::uint32_t{bytes[at]} << 24 | std::uint32_t{bytes[at + 1]} << 16 |
               std::uint32_t{bytes[at + 2]} << 8 | bytes[at + 3];
    }
    bool IsDatabase() const {
        return isRead && std::memcmp(bytes.data(), kMagic.data(), kMagic.size()) == 0;
    }
    /// What the file should be long; 0 where the header cannot be trusted to know.
    std::int64_t StatedSize() const {
        const std::uint32_t pageSize = std::uint32_t{bytes[16]} << 8 | bytes[17];
        const bool isValid = Big32(24) == Big32(92);
        return isValid ? std::int64_t{pageSize == 1 ? 65536 : pageSize} * Big32(28) : 0;
    }
};

} // namespace

std::string AbsolutePath(const wchar_t* path) {
    const std::string native = NativePath(path);
    std::error_code error;
    const fs::path absolute = fs::absolute(native, error);
    return error ? native : absolute.lexically_normal().string();
}

CString WhyNoDatabase(const std::string& path) {
    struct stat info {};
    if (stat(path.c_str(), &info) != 0) {
        return errno == ENOENT  ? Text(Msg::NoSuchFile)
               : errno == ELOOP ? LinkLoopReason()
                                : ErrnoText(errno);
    }
    if (!S_ISREG(info.st_mode)) {
        return S_ISDIR(info.st_mode) ? Text(Msg::IsFolder) : Text(Msg::NotRegularFile);
    }
    if (access(path.c_str(), R_OK) != 0) {
        return ErrnoText(errno);
    }
    const Header header(path);
    if (!header.IsDatabase()) {
        return info.st_size == 0 ? Text(Msg::IsEmpty) : Text(Msg::NotAGeoPackage);
    }
    // What another write has in its journal makes the size of the file itself meaningless.
    const bool isSettled = !IsNotEmpty(BehindLinks(path) + "-wal") && !HasHotJournal(path);
    if (isSettled && header.StatedSize() > info.st_size) {
        return Text(Msg::CutShort, static_cast<std::int64_t>(info.st_size), header.StatedSize());
    }
    return {};
}

CString WhyNotWritable(const std::string& path) {
    const auto isProtected = [](const std::string& checked) {
        return access(checked.c_str(), W_OK) != 0 && errno != ENOENT;
    };
    if (isProtected(path)) {
        return errno == ELOOP ? LinkLoopReason() : Text(Msg::WriteProtected);
    }
    // Every write keeps a journal beside the file.
    return isProtected(fs::path(BehindLinks(path)).parent_path().string())
               ? Text(Msg::FolderProtected)
               : CString();
}

std::uint32_t ChangeCounter(const std::string& path) {
    const Header header(path);
    return header.IsDatabase() ? header.Big32(24) : 0;
}

} // namespace Tessaly
