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
#include "host/storage/SystemFile.h"

namespace Tessaly {

namespace {

namespace fs = std::filesystem;

/// Longest part of the target's name in a temporary name: both have to fit a file system.
constexpr std::size_t kLongestStem = 150;

const std::string& PartSuffix() {
    static const std::string suffix = ".part" + std::string(kGeoPackageExtension);
    return suffix;
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
    return rest.starts_with(PartSuffix()) ? writer : 0;
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

UnfinishedFile::UnfinishedFile(const std::string& target) : m_target(BehindLinks(target)) {
    const fs::path targetPath(m_target);
    ClearLeftovers(targetPath);
    m_path = (targetPath.parent_path() /
              (PartPrefix(targetPath) + std::to_string(getpid()) + PartSuffix()))
                 .string();
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
