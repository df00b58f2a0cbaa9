#include "host/storage/Processes.h"

#include <array>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <pwd.h>
#include <sstream>
#include <unistd.h>
#include <vector>

#include "host/storage/SystemFile.h"

namespace Tessaly {

namespace {

/// First line of a file of the operating system.
std::string LineOf(const std::string& path) {
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

std::string UserName() {
    constexpr std::size_t kRoom = 16384;
    std::vector<char> buffer(kRoom);
    passwd entry{};
    passwd* pFound = nullptr;
    if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &pFound) == 0 && pFound) {
        return pFound->pw_name;
    }
    return std::to_string(geteuid());
}

std::string HostName() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

} // namespace

ProcessInfo ThisProcess() {
    // A forked process is another one, so the number is never kept.
    return {UserName(), HostName(), ProgramOf(getpid()) + " (" + std::to_string(getpid()) + ")"};
}

std::string ProgramOf(pid_t process) {
    return LineOf("/proc/" + std::to_string(process) + "/comm");
}

std::string StartOf(pid_t process) {
    const std::string status = LineOf("/proc/" + std::to_string(process) + "/stat");
    // The name in brackets may contain anything; the start is the 20th value behind it.
    const std::size_t nameEnd = status.rfind(')');
    if (nameEnd == std::string::npos) {
        return {};
    }
    constexpr int kStartField = 20;
    std::istringstream fields(status.substr(nameEnd + 1));
    std::string start;
    for (int i = 0; i < kStartField; ++i) {
        fields >> start;
    }
    return LineOf("/proc/sys/kernel/random/boot_id") + "-" + start;
}

std::string UtcNow() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    std::array<char, 40> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts);
    return text.data();
}

pid_t LockHolder(const std::string& path) {
    // The bytes on which SQLite puts its locks, in every file.
    constexpr off_t kPendingByte = 0x40000000;
    constexpr off_t kLockBytes = 512;
    const Descriptor file(path, O_RDONLY);
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = kPendingByte;
    lock.l_len = kLockBytes;
    const bool isKnown =
        file && fcntl(file.Number(), F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    return isKnown && lock.l_pid > 0 ? lock.l_pid : 0;
}

} // namespace Tessaly
