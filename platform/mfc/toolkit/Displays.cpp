#include "platform/mfc/toolkit/Displays.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <future>
#include <memory>
#include <string_view>
#include <thread>

#include <QDir>
#include <QLibraryInfo>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

/// Timeout for a server that is there but does not answer, such as a stopped one.
constexpr std::chrono::milliseconds kPatience{2000};
constexpr std::string_view kInMemory = "offscreen";

/// Empty if the variable is not set.
std::string Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

/// Runs in a detached thread, as connecting may block forever; after a timeout it is abandoned.
bool XServerAnswers() {
    if (Variable("DISPLAY").empty()) {
        return false;
    }
    const auto answer = std::make_shared<std::promise<bool>>();
    std::future<bool> future = answer->get_future();
    std::thread([answer] {
        xcb_connection_t* const pConnection = xcb_connect(nullptr, nullptr);
        const bool answers = xcb_connection_has_error(pConnection) == 0;
        xcb_disconnect(pConnection);
        answer->set_value(answers);
    }).detach();
    return future.wait_for(kPatience) == std::future_status::ready && future.get();
}

bool HasWaylandPlugin() {
    const std::string named = Variable("QT_QPA_PLATFORM_PLUGIN_PATH");
    const QString folder = named.empty()
                               ? QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms"
                               : QString::fromStdString(named);
    return !QDir(folder).entryList({QStringLiteral("libqwayland*.so")}).isEmpty();
}

/// True if the server behind a socket answers a sync request, the most basic one that every
/// compositor understands.
bool AnswersSync(int socket) {
    constexpr std::uint32_t kSync[] = {1, 12U << 16, 2};
    if (write(socket, kSync, sizeof kSync) != static_cast<ssize_t>(sizeof kSync)) {
        return false;
    }
    pollfd wait{socket, POLLIN, 0};
    char first = 0;
    return poll(&wait, 1, static_cast<int>(kPatience.count())) == 1 && read(socket, &first, 1) == 1;
}

bool WaylandAnswers() {
    const std::string name = Variable("WAYLAND_DISPLAY");
    const std::string path =
        name.empty() || name.front() == '/' ? name : Variable("XDG_RUNTIME_DIR") + "/" + name;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path || !HasWaylandPlugin()) {
        return false;
    }
    std::memcpy(address.sun_path, path.c_str(), path.size());
    const int client = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const bool answers =
        client >= 0 &&
        connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
        AnswersSync(client);
    if (client >= 0) {
        close(client);
    }
    return answers;
}

bool CanBeOpened(std::string_view display) {
    if (display.starts_with("xcb")) {
        static const bool s_answers = XServerAnswers();
        return s_answers;
    }
    if (display.starts_with("wayland")) {
        static const bool s_answers = WaylandAnswers();
        return s_answers;
    }
    return true;
}

} // namespace

std::string VisibleDisplays() {
    // X11 comes first even under Wayland, whose clients can neither query nor set their position.
    const std::string named = Variable("QT_QPA_PLATFORM");
    std::string_view rest = named.empty() ? std::string_view("xcb;wayland") : named;
    std::string visible;
    while (!rest.empty()) {
        const std::string_view display = rest.substr(0, rest.find(';'));
        rest.remove_prefix(std::min(rest.size(), display.size() + 1));
        if (!display.empty() && CanBeOpened(display)) {
            visible += (visible.empty() ? "" : ";") + std::string(display);
        }
    }
    return visible;
}

std::string DisplaysToStartWith(bool desktop) {
    std::string named = Variable("QT_QPA_PLATFORM");
    if (named.starts_with(kInMemory) || named == "minimal") {
        return named;
    }
    const std::string visible = desktop ? VisibleDisplays() : "";
    // The toolkit ends the process if it can open no display.
    return (visible.empty() ? "" : visible + ";") + std::string(kInMemory);
}
