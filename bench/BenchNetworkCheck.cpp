// Reading, statistics and check of generated towns of growing size. Prints the seconds of each
// step, the nanoseconds per n log n (constant if the step scales as intended), and the peak memory
// of the process so far.
#include <sys/resource.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/win/CodePage.h"
#include "plugins/network/InpReader.h"
#include "plugins/network/NetworkCheck.h"
#include "plugins/network/NetworkStatistics.h"

using namespace Orvane::Network;

namespace {

template <class Work>
auto Timed(double& seconds, Work&& work) {
    const auto begin = std::chrono::steady_clock::now();
    auto result = work();
    seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    return result;
}

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

bool MakeTown(std::size_t sections, const char* format, const std::string& file) {
    const std::string command = std::string(TESSALY_STAGE_DIR "/townmaker --seed 1 --sections ") +
                                std::to_string(sections) + " --format " + format +
                                " --faults 1000 '" + file + "'";
    // NOLINTNEXTLINE(bugprone-command-processor): the command is built here
    return std::system(command.c_str()) == 0;
}

void PrintRow(const char* what, double seconds, std::size_t sections) {
    const auto n = static_cast<double>(sections);
    std::printf("  %-10s %8.3f s  %8.2f ns/(n log n)\n", what, seconds,
                seconds * 1e9 / (n * std::log2(n)));
}

bool Measure(std::size_t sections, const char* format, const std::string& file) {
    if (!MakeTown(sections, format, file)) {
        return false;
    }
    double reading = 0;
    double counting = 0;
    double checking = 0;
    const InpResult read = Timed(reading, [&] { return ReadInpFile(Utf8ToWide(file).c_str()); });
    const NetworkGeometry geometry = GeometryOf(read.model);
    const auto statistics = Timed(counting, [&] { return ComputeStatistics(geometry); });
    const auto check = Timed(checking, [&] { return CheckNetwork(geometry); });
    std::printf("%s, %zu nodes, %zu sections, %zu findings, peak memory %.0f MB\n", format,
                statistics.nodeCount, statistics.sectionCount, check.findings.size(),
                PeakMegabytes());
    PrintRow("read", reading, sections);
    PrintRow("statistics", counting, sections);
    PrintRow("check", checking, sections);
    return read.ok;
}

} // namespace

int main() {
    const char* folder = std::getenv("TMPDIR");
    const std::string file = std::string(folder ? folder : "/tmp") + "/bench-network.inp";
    bool isGood = true;
    for (const std::size_t sections : {10'000U, 100'000U, 1'000'000U}) {
        for (const char* format : {"epanet", "swmm"}) {
            isGood = isGood && Measure(sections, format, file);
        }
    }
    std::remove(file.c_str());
    if (!isGood) {
        std::fputs("no town generated; build the program townmaker first\n", stderr);
    }
    return isGood ? 0 : 1;
}
