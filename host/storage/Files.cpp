#include "host/storage/Files.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "platform/win/CodePage.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPartSuffix = ".part.gpkg";
constexpr std::array<const char*, 4> kCompanions = {"", "-journal", "-wal", "-shm"};
constexpr std::size_t kHeaderSize = 100;
constexpr std::string_view kMagic{"SQLite format 3\0", 16};
/// Longest part of the target's name in a temporary name: both have to fit a file system.
constexpr std::size_t kLongestStem = 150;

class Descriptor {
public:
    Descriptor(const std::string& path, int flags, mode_t mode = 0)
        : m_number(open(path.c_str(), flags | O_CLOEXEC, mode)) {}
    ~Descriptor() {
        if (m_number >= 0) {
            close(m_number);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    explicit operator bool() const { return m_number >= 0; }
    int Number() const { return m_number; }

private:
    int m_number;
};

CString ErrnoText(int number) {
    return number == ENOSPC || number == EFBIG
               ? CString(L"the disk is full")
               : CString(Utf8ToWide(std::strerror(number))); // NOLINT(concurrency-mt-unsafe)
}

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

/// The file itself: that is what is replaced, and what journals lie beside.
std::string BehindLinks(const std::string& path) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return error ? path : real.string();
}

std::string PartPrefix(const fs::path& target) {
    return "." + target.filename().string().substr(0, kLongestStem) + ".";
}

/// Number of the process in the name of a temporary file; 0 if it is not one of the target.
pid_t WriterOf(const std::string& name, const std::string& prefix) {
    if (name.compare(0, prefix.size(), prefix) != 0) {
        return 0;
    }
    pid_t writer = 0;
    const char* pEnd = name.data() + name.size();
    const auto parsed = std::from_chars(name.data() + prefix.size(), pEnd, writer);
    const std::string_view rest(parsed.ptr, static_cast<std::size_t>(pEnd - parsed.ptr));
    return rest.compare(0, kPartSuffix.size(), kPartSuffix) == 0 ? writer : 0;
}

void RemoveWithCompanions(const std::string& path) {
    for (const char* suffix : kCompanions) {
        unlink((path + suffix).c_str());
    }
}

void ClearLeftovers(const fs::path& target) {
    const std::string prefix = PartPrefix(target);
    std::error_code error;
    std::vector<fs::path> leftovers;
    for (fs::directory_iterator it(target.parent_path(), error), end; !error && it != end;
         it.increment(error)) {
        const pid_t writer = WriterOf(it->path().filename().string(), prefix);
        if (writer > 0 && (writer == getpid() || (kill(writer, 0) != 0 && errno == ESRCH))) {
            leftovers.push_back(it->path());
        }
    }
    for (const fs::path& leftover : leftovers) {
        fs::remove(leftover, error);
    }
}

CString SyncFile(const std::string& path, int flags) {
    const Descriptor file(path, flags);
    if (!file || fsync(file.Number()) != 0) {
        return ErrnoText(errno);
    }
    return {};
}

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
        return errno == ENOENT ? CString(L"there is no such file") : ErrnoText(errno);
    }
    if (!S_ISREG(info.st_mode)) {
        return S_ISDIR(info.st_mode) ? L"it is a folder" : L"it is no ordinary file";
    }
    if (access(path.c_str(), R_OK) != 0) {
        return ErrnoText(errno);
    }
    const Header header(path);
    if (!header.IsDatabase()) {
        return info.st_size == 0 ? L"it is empty"
                                 : L"it is no GeoPackage (IMPORT reads other files)";
    }
    // What another write has in its journal makes the size of the file itself meaningless.
    const bool isSettled = !IsNotEmpty(BehindLinks(path) + "-wal") && !HasHotJournal(path);
    if (isSettled && header.StatedSize() > info.st_size) {
        CString reason;
        reason.Format(L"it is cut short: %d of %d bytes are there",
                      static_cast<std::int64_t>(info.st_size), header.StatedSize());
        return reason;
    }
    return {};
}

CString WhyNotWritable(const std::string& path) {
    const auto isProtected = [](const std::string& checked) {
        return access(checked.c_str(), W_OK) != 0 && errno != ENOENT;
    };
    if (isProtected(path)) {
        return L"it is write-protected";
    }
    // Every write keeps a journal beside the file.
    return isProtected(fs::path(BehindLinks(path)).parent_path().string())
               ? CString(L"its folder is write-protected")
               : CString();
}

bool HasHotJournal(const std::string& path) {
    // The first bytes come last, when all that is to be taken back is safe in it.
    const Descriptor journal(BehindLinks(path) + "-journal", O_RDONLY);
    char first = 0;
    return journal && read(journal.Number(), &first, 1) == 1 && first != 0;
}

bool HasJournal(const std::string& path) {
    std::error_code ignored;
    const std::string real = BehindLinks(path);
    return fs::exists(real + "-journal", ignored) || fs::exists(real + "-wal", ignored);
}

void RemoveColdJournal(const std::string& path) {
    if (!HasHotJournal(path)) {
        unlink((BehindLinks(path) + "-journal").c_str());
    }
}

bool RemoveOrphans(const std::string& path) {
    std::error_code ignored;
    const bool isOrphaned = !fs::exists(path, ignored);
    if (isOrphaned) {
        RemoveWithCompanions(path);
    }
    return isOrphaned;
}

std::uint32_t ChangeCounter(const std::string& path) {
    const Header header(path);
    return header.IsDatabase() ? header.Big32(24) : 0;
}

UnfinishedFile::UnfinishedFile(const std::string& target) : m_target(BehindLinks(target)) {
    const fs::path targetPath(m_target);
    ClearLeftovers(targetPath);
    m_path = (targetPath.parent_path() /
              (PartPrefix(targetPath) + std::to_string(getpid()) + std::string(kPartSuffix)))
                 .string();
}

UnfinishedFile::~UnfinishedFile() {
    RemoveWithCompanions(m_path);
}

CString UnfinishedFile::CopyFrom(const std::string& source) const {
    const Descriptor from(source, O_RDONLY);
    struct stat info {};
    if (!from || fstat(from.Number(), &info) != 0) {
        return ErrnoText(errno);
    }
    const Descriptor to(m_path, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (!to) {
        return ErrnoText(errno);
    }
    for (std::int64_t left = info.st_size; left > 0;) {
        const ssize_t sent =
            sendfile(to.Number(), from.Number(), nullptr, static_cast<std::size_t>(left));
        if (sent <= 0) {
            return sent < 0 ? ErrnoText(errno) : CString(L"it was cut while it was copied");
        }
        left -= sent;
    }
    return {};
}

CString UnfinishedFile::PutInPlace() {
    struct stat before {};
    if (stat(m_target.c_str(), &before) == 0) {
        chmod(m_path.c_str(), before.st_mode & 07777);
    }
    CString reason = SyncFile(m_path, O_RDWR);
    if (!reason.IsEmpty()) {
        return reason;
    }
    if (rename(m_path.c_str(), m_target.c_str()) != 0) {
        return ErrnoText(errno);
    }
    // The content is safe by now; a folder that cannot be synchronised takes nothing back.
    SyncFile(fs::path(m_target).parent_path().string(), O_RDONLY | O_DIRECTORY);
    return {};
}

} // namespace Tessaly
