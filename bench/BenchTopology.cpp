// Networks in a drawing, and spatial search compared with bare packing of the same boxes.
//   BenchTopology [COUNT]     COUNT nodes and as many sections; default: 1,000,000
#define BOOST_ALLOW_DEPRECATED_HEADERS
#include <boost/geometry/core/cs.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/geometry/strategies/strategies.hpp>
#include <chrono>
#include <fstream>
#include <functional>
#include <iostream>
#include <random>
#include <unistd.h>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbUndoScopes.h"
#include "platform/arx/HostOptions.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/giscoreadds/NodeIndex.h"
#include "siblings/networkcore/TopologyMultiStorage.h"

namespace {

using namespace Orvane;
using Clock = std::chrono::steady_clock;
namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;
using TreePoint = bg::model::point<double, 2, bg::cs::cartesian>;
using TreeBox = bg::model::box<TreePoint>;

double Seconds(const std::function<void()>& work) {
    const auto begin = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

double MegabytesInUse() {
    std::ifstream status("/proc/self/statm");
    double pages = 0;
    double resident = 0;
    status >> pages >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

void Report(const char* what, double value, const char* unit) {
    std::cout << what << ": " << value << " " << unit << "\n";
}

Topology::Point PlaceOf(int i) {
    return {i % 1000 * 10.0, i / 1000 * 10.0, 200 + i % 100 * 0.25};
}

void AddNetwork(System::CGisSystem& system, int count) {
    Topology::CTopologyStorage& storage =
        *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    const AcDbUndoGroup group(*system.GetDatabase(), L"import");
    std::vector<AcDbObjectId> nodes;
    for (int i = 0; i < count; ++i) {
        const Topology::AttributeData attributes[] = {{"ELEVATION", 200 + i * 0.001}};
        const std::string name = "J" + std::to_string(i);
        nodes.push_back(storage.AddNode(system, {name, PlaceOf(i), "Junction", attributes}));
    }
    for (int i = 0; i < count; ++i) {
        const Topology::AttributeData attributes[] = {{"DIAMETER", 100.5 + i % 7},
                                                      {"LENGTH", 10.0}};
        const std::string name = "P" + std::to_string(i);
        storage.AddSection(system, {name,
                                    {nodes[static_cast<std::size_t>(i)]},
                                    {nodes[static_cast<std::size_t>((i + 1) % count)]},
                                    {},
                                    "Pipe",
                                    attributes});
    }
}

void MeasureDrawing(int count) {
    const double before = MegabytesInUse();
    System::CGisSystem* const pSystem =
        System::CSystemManager::Instance()->CreateSystem(L"Town", TopologyLine, 1);
    Report("adding", Seconds([&] { AddNetwork(*pSystem, count); }), "s");
    Report("memory", (MegabytesInUse() - before) * 1e6 / (2.0 * count), "bytes per entity");
    Topology::CTopologyStorage& storage =
        *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    Report("first search by name",
           Seconds([&] { storage.FindNodeByName(pSystem->GetSystemId(), "J1"); }), "s");
    int loops = 0;
    Report("statistics",
           Seconds([&] { pSystem->GetStatisticValue_int(System::StatisticLoops, loops); }), "s");
    Report("rebuilding the lists after UNDO and REDO", Seconds([&] {
               pSystem->GetDatabase()->undo().undo();
               pSystem->GetDatabase()->undo().redo();
               std::cout << storage.GetNodeVector().size() << " nodes, ";
           }),
           "s");
}

void MeasureSearch(int count) {
    std::vector<Selection::BoxEntry> entries;
    std::vector<std::pair<TreeBox, std::uint32_t>> boxes;
    for (int i = 0; i < count; ++i) {
        const Topology::Point at = PlaceOf(i);
        entries.push_back({{at.x, at.y, at.x + 9, at.y + 9}, static_cast<std::uint32_t>(i)});
        boxes.emplace_back(TreeBox(TreePoint(at.x, at.y), TreePoint(at.x + 9, at.y + 9)), i);
    }
    double own = 1e9;
    double peer = 1e9;
    for (int run = 0; run < 5; ++run) {
        own = std::min(own, Seconds([&] { const Selection::CSpatialIndex index(entries); }));
        peer = std::min(
            peer, Seconds([&] {
                const bgi::rtree<std::pair<TreeBox, std::uint32_t>, bgi::linear<16>> tree(boxes);
            }));
    }
    Report("index of the same number of boxes", own, "s");
    Report("  compared with bare packing", own / peer, "times");

    Selection::CNodeIndex& nodes = *Selection::CNodeIndex::Instance();
    Report("node index", Seconds([&] { nodes.BuildSTRTree(1); }), "s");
    std::mt19937 random(3);
    std::uniform_real_distribution<double> x(0, 10000);
    std::uniform_real_distribution<double> y(0, count / 100.0);
    constexpr int kPicks = 100'000;
    std::size_t found = 0;
    const double picks = Seconds([&] {
        for (int i = 0; i < kPicks; ++i) {
            found += nodes.GetNearestNode(x(random), y(random), 5).has_value();
        }
    });
    Report("pick of the nearest node", picks / kPicks * 1e6, "microseconds");
    std::cout << "  " << found << " of " << kPicks << " successful\n";
}

} // namespace

int main(int argc, char** argv) {
    SetHostOption(kHostOptionInstall, L"" TESSALY_STAGE_DIR "/");
    SetHostOption(kHostOptionSupport, L"" TESSALY_STAGE_DIR "/share/support/");
    const int count = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    acDocManagerPtr()->newDocument();
    std::cout << count << " nodes and as many sections\n";
    MeasureDrawing(count);
    MeasureSearch(count);
    return 0;
}
