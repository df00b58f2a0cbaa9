#include "host/storage/UnfinishedFile.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <vector>

#include "host/Texts.h"
#include "host/storage/OpenGeoPackage.h"
#include "host/storage/Processes.h"
#include "host/storage/SystemFile.h"

namespace Tessaly {

namespace {

namespace fs = std::filesystem;

/// Longest part of the target's name in a temporary name: both have to fit a file system.
constexpr std::size_t kLongestStem = 100;

const std::string& PartSuffix() {
    static const std::string suffix = ".part" + std::string(kGeoPackageExtension);
    return suffix;
}

std::string PartPrefix(const fs::path& target) {
    return "." + target.filename().string().substr(0, kLongestStem) + ".";
}

/// Behind the target's name: a folder may be shared by machines that number processes alike.
std::string WriterPart(pid_t writer) {
    return ThisProcess().host + "." + std::to_string(writer);
}

/// Number of the process of this machine that writes, or wrote, a temporary file; 0 if it is
/// none of this machine's.
pid_t WriterOf(const std::string& name) {
    const std::size_t suffix = name.rfind(PartSuffix());
    const std::size_t number = suffix == name.npos ? name.npos : name.rfind('.', suffix - 1);
    if (number == name.npos || name.front() != '.') {
        return 0;
    }
    pid_t writer = 0;
    std::from_chars(name.data() + number + 1, name.data() + suffix, writer);
    return name.substr(0, suffix).ends_with("." + WriterPart(writer)) ? writer : 0;
}

CString SyncFile(const std::string& path, int flags) {
    const Descriptor file(path, flags);
    if (!file || fsync(file.Number()) != 0) {
        return ErrnoText(errno);
    }
    return {};
}

} // namespace

void ClearLeftovers(const std::string& path) {
    std::error_code error;
    std::vector<fs::path> leftovers;
    const fs::path folder = fs::path(BehindLinks(path)).parent_path();
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        const pid_t writer = name.find(PartSuffix()) == name.npos ? 0 : WriterOf(name);
        if (writer > 0 && writer != getpid() && kill(writer, 0) != 0 && errno == ESRCH) {
            leftovers.push_back(it->path());
        }
    }
    for (const fs::path& leftover : leftovers) {
        fs::remove(leftover, error);
    }
}

UnfinishedFile::UnfinishedFile(const std::string& target) : m_target(BehindLinks(target)) {
    const fs::path targetPath(m_target);
    ClearLeftovers(m_target);
    m_path =
        (targetPath.parent_path() / (PartPrefix(targetPath) + WriterPart(getpid()) + PartSuffix()))
            .string();
    // Of an earlier process of the same number.
    RemoveWithJournals(m_path);
}

UnfinishedFile::~UnfinishedFile() {
    RemoveWithJournals(m_path);
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
            return sent < 0 ? ErrnoText(errno) : Text(Msg::CutWhileCopied);
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
