// LoadModules with a hundred plug-ins of ten commands each, compared with bare loading, symbol
// look-up and hook calls of the same files.
//
// Each measurement runs in its own process, since a library is loaded only once, and the two kinds
// alternate; compares the medians.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "platform/arx/HostOptions.h"
#include "platform/arx/HostPort.h"
#include "platform/win/CodePage.h"
#include "workspacecore/core/WsManager.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kPlugins = 100;
constexpr int kTurns = 41;

class SilentPort final : public IHostPort {
public:
    void Print(std::wstring_view) override {}
    PromptEnd GetString(bool, std::wstring_view, CString&) override { return PromptEnd::Cancelled; }
    void Alert(std::wstring_view, std::wstring_view) override {}
    void Escape() override {}
};

std::string FileOf(int number) {
    return "BenchPlugin" + std::to_string(number) + ".arx";
}

void WriteRegistry(const std::filesystem::path& folder, int plugins) {
    std::ofstream file(folder / "ModuleRegistry.xml");
    file << "<moduleRegistry >";
    for (int i = 1; i <= plugins; ++i) {
        file << "<module on=\"1\" fileName=\"" << FileOf(i) << "\" ></module>";
    }
    file << "</moduleRegistry>";
}

double Seconds(Clock::time_point from) {
    return std::chrono::duration<double>(Clock::now() - from).count();
}

double LoadThroughManager() {
    // The first call creates the manager with an empty list; the plug-ins are added afterwards, so
    // that only their loading is measured.
    using namespace Orvane::Workspace;
    CWsManager::Instance();
    // Not destroyed: the libraries stay loaded until the process ends, as in the product.
    auto* const plugins = new CWsPluginManager;
    const auto from = Clock::now();
    plugins->LoadModules();
    return Seconds(from);
}

double LoadBare() {
    using namespace Orvane::Workspace;
    using Provider = IPluginInfo* (*)();
    using Hook = void (IPluginInfo::*)();
    constexpr Hook kHooks[] = {
        &IPluginInfo::PluginHook6,           &IPluginInfo::PluginHook1,
        &IPluginInfo::PluginHook2,           &IPluginInfo::PluginHook3,
        &IPluginInfo::PluginHook4,           &IPluginInfo::PluginHook5,
        &IPluginInfo::PluginHook7,           &IPluginInfo::RegisterInfoTooltips,
        &IPluginInfo::RegisterWsPanelDialog, &IPluginInfo::RegisterCatalogExtenders};
    CWsManager::Instance();
    const auto from = Clock::now();
    for (int i = 1; i <= kPlugins; ++i) {
        void* library = dlopen((BENCH_PLUGIN_DIR + FileOf(i)).c_str(), RTLD_NOW | RTLD_LOCAL);
        const auto provider = reinterpret_cast<Provider>(dlsym(library, "ORVPluginInfoProvider"));
        dlsym(library, "ORVPluginInfoRelease");
        for (const Hook hook : kHooks) {
            (provider()->*hook)();
        }
    }
    return Seconds(from);
}

/// Runs a measurement in a child process and returns its result.
template <class Measure>
double InChild(const std::filesystem::path& support, Measure measure) {
    int pipeEnds[2];
    if (pipe(pipeEnds) != 0) {
        return -1;
    }
    const pid_t child = fork();
    if (child == 0) {
        static SilentPort port;
        SetHostPort(&port);
        SetHostOption(kHostOptionSupport, Utf8ToWide((support / "").string()).c_str());
        SetHostOption(kHostOptionInstall, L"" BENCH_PLUGIN_DIR);
        const double seconds = measure();
        const auto written = write(pipeEnds[1], &seconds, sizeof seconds);
        _exit(written == sizeof seconds ? 0 : 1);
    }
    double seconds = -1;
    const auto got = read(pipeEnds[0], &seconds, sizeof seconds);
    waitpid(child, nullptr, 0);
    close(pipeEnds[0]);
    close(pipeEnds[1]);
    return got == sizeof seconds ? seconds : -1;
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

} // namespace

int main() {
    const auto support =
        std::filesystem::temp_directory_path() / ("tessaly-bench-" + std::to_string(getpid()));
    std::filesystem::create_directories(support);
    std::vector<double> bare;
    std::vector<double> managed;
    for (int turn = 0; turn < kTurns; ++turn) {
        bare.push_back(InChild(support, LoadBare));
        managed.push_back(InChild(support, [&] {
            Orvane::Workspace::CWsManager::Instance();
            WriteRegistry(support, kPlugins);
            const double seconds = LoadThroughManager();
            std::filesystem::remove(support / "ModuleRegistry.xml");
            return seconds;
        }));
    }
    std::filesystem::remove_all(support);
    std::printf("%d plug-ins of 10 commands: bare %.3f ms, LoadModules %.3f ms, ratio %.3f\n",
                kPlugins, Median(bare) * 1e3, Median(managed) * 1e3,
                Median(managed) / Median(bare));
    return 0;
}
