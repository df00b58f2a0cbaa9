#include "host/storage/OpenMarks.h"

#include <charconv>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

#include "host/storage/Processes.h"
#include "host/storage/SystemFile.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

/// How often marks are touched, for programs on other machines.
constexpr auto kBeat = 30s;
/// A mark of another machine that was not touched for so long belongs to a dead program.
constexpr auto kLongestSilence = 3min;
constexpr auto kForgotten = 24h;
constexpr std::size_t kLongestStem = 100;
constexpr std::string_view kSuffix = ".open";

std::string Prefix(const fs::path& drawing) {
    return "." + drawing.filename().string().substr(0, kLongestStem) + ".";
}

fs::path OwnMark(const std::string& drawing) {
    const fs::path real = BehindLinks(drawing);
    return real.parent_path() / (Prefix(real) + ThisProcess().host + "." +
                                 std::to_string(getpid()) + std::string(kSuffix));
}

struct Mark {
    std::string user;
    std::string host;
    std::string program;
    std::string time;
    std::string start; ///< see StartOf
    pid_t process = 0;
};

Mark ReadMark(const fs::path& path) {
    Mark mark;
    std::ifstream file(path);
    for (std::string* pPart : {&mark.user, &mark.host, &mark.program, &mark.time, &mark.start}) {
        std::getline(file, *pPart);
    }
    const std::string name = path.stem().string();
    const char* const pDigits = name.data() + name.rfind('.') + 1;
    std::from_chars(pDigits, name.data() + name.size(), mark.process);
    return mark;
}

enum class Owner { Lives, IsSilent, IsDead };

Owner OwnerOf(const fs::path& path, const Mark& mark) {
    if (mark.host == ThisProcess().host) {
        const bool isHere = !mark.start.empty() && StartOf(mark.process) == mark.start;
        return isHere ? Owner::Lives : Owner::IsDead;
    }
    std::error_code error;
    const auto written = fs::last_write_time(path, error);
    const auto age = fs::file_time_type::clock::now() - written;
    return error || age > kForgotten ? Owner::IsDead
           : age > kLongestSilence   ? Owner::IsSilent
                                     : Owner::Lives;
}

CString Wide(const std::string& text) {
    return Utf8ToWide(text);
}

} // namespace

OpenMarks::~OpenMarks() {
    m_keeper.request_stop();
    for (const auto& [key, mark] : m_marks) {
        unlink(mark.c_str());
    }
}

void OpenMarks::Set(const AcDbDatabase& database, const std::string& path) {
    Remove(database);
    const std::string mark = OwnMark(path).string();
    const ProcessInfo process = ThisProcess();
    std::ofstream file(mark, std::ios::trunc);
    file << process.user << "\n"
         << process.host << "\n"
         << process.program << "\n"
         << UtcNow() << "\n"
         << StartOf(getpid()) << "\n";
    file.close();
    if (!file) {
        return;
    }
    const std::lock_guard lock(m_mutex);
    m_marks[&database] = mark;
    if (!m_keeper.joinable()) {
        m_keeper = std::jthread([this](const std::stop_token& stop) { KeepYoung(stop); });
    }
}

void OpenMarks::Remove(const AcDbDatabase& database) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_marks.find(&database);
    if (found != m_marks.end()) {
        unlink(found->second.c_str());
        m_marks.erase(found);
    }
}

void OpenMarks::KeepYoung(const std::stop_token& stop) {
    std::unique_lock lock(m_mutex);
    while (!m_wake.wait_for(lock, stop, kBeat, [&stop] { return stop.stop_requested(); })) {
        for (const auto& [key, mark] : m_marks) {
            utimensat(AT_FDCWD, mark.c_str(), nullptr, 0);
        }
    }
}

std::vector<AcDbOpenMark> OpenMarks::Others(const std::string& path) {
    const fs::path real = BehindLinks(path);
    const std::string prefix = Prefix(real);
    const fs::path own = OwnMark(path);
    std::vector<AcDbOpenMark> others;
    std::vector<fs::path> dead;
    std::error_code error;
    for (fs::directory_iterator it(real.parent_path(), error), end; !error && it != end;
         it.increment(error)) {
        const std::string name = it->path().filename().string();
        if (!name.starts_with(prefix) || !name.ends_with(kSuffix) || it->path() == own) {
            continue;
        }
        const Mark mark = ReadMark(it->path());
        const Owner owner = OwnerOf(it->path(), mark);
        if (owner == Owner::Lives) {
            others.push_back(
                {Wide(mark.user), Wide(mark.host), Wide(mark.program), Wide(mark.time)});
        } else if (owner == Owner::IsDead) {
            dead.push_back(it->path());
        }
    }
    for (const fs::path& mark : dead) {
        fs::remove(mark, error);
    }
    return others;
}

} // namespace Tessaly
