// Spatial indexes of the current drawing.
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "siblings/giscoreadds/NodeIndex.h"
#include "siblings/giscoreadds/PolygonIndex.h"
#include "siblings/networkcore/TopologyStorage.h"
#include "tests/support/Rows.h"
#include "tests/support/TestDrawing.h"

using namespace Orvane;
using namespace Orvane::Selection;
using Topology::Point;

namespace {

class IndexTest : public TestDrawing {
protected:
    static CNodeIndex& Nodes() { return *CNodeIndex::Instance(); }
    static CPolygonIndex& Polygons() { return *CPolygonIndex::Instance(); }
    AcDbObjectId Node(System::CGisSystem& system, double x, double y) {
        return Storage().AddNode(system, {{}, {x, y}});
    }
    AcDbObjectId Polygon(System::CGisSystem& system, std::vector<Point> ring) {
        const AcDbMPolygon::Ring rings[] = {{std::move(ring)}};
        return Storage().AddPolygon(system, {{}, rings});
    }
};

using Ids = std::vector<AcDbObjectId>;

} // namespace

TEST_F(IndexTest, NodesAreFoundInABoxAndItsBorder) {
    System::CGisSystem& system = MakeSystem(L"1");
    const AcDbObjectId a = Node(system, 0, 0);
    const AcDbObjectId b = Node(system, 1, 1);
    Node(system, 1.001, 0);
    EXPECT_EQ(Nodes().GetNodesInBox({0, 0, 1, 1}), (Ids{a, b}));
    EXPECT_EQ(Nodes().GetNearestNode(0.9, 0.9, 10), b);
    EXPECT_EQ(Nodes().GetNearestNode(5, 5, 1), std::nullopt);
}

TEST_F(IndexTest, ANewNodeIsSeenWithoutATelling) {
    System::CGisSystem& system = MakeSystem(L"1");
    EXPECT_TRUE(Nodes().GetNodesInBox({0, 0, 1, 1}).empty());
    const AcDbObjectId a = Node(system, 0, 0);
    EXPECT_EQ(Nodes().GetNodesInBox({0, 0, 1, 1}), (Ids{a}));
    Nodes().Changed(1);
    Nodes().Changed(0);
    EXPECT_EQ(Nodes().GetNodesInBox({0, 0, 1, 1}), (Ids{a}));
    Storage().RemoveSystemEntities(system.GetSystemId());
    EXPECT_TRUE(Nodes().GetNodesInBox({0, 0, 1, 1}).empty());
}

TEST_F(IndexTest, PolygonsAreFoundByPoint) {
    System::CGisSystem& parcels = MakeSystem(L"1", TopologyPolygon, 0);
    // An L with its notch at the upper right, and a square in the notch.
    const AcDbObjectId l = Polygon(parcels, {{0, 0}, {4, 0}, {4, 2}, {2, 2}, {2, 4}, {0, 4}});
    const AcDbObjectId square = Polygon(parcels, {{2, 2}, {4, 2}, {4, 4}, {2, 4}});
    const Rows<const char*, double, double, Ids> cases = {
        {"inside", 1, 1, {l}},
        {"in the notch", 3, 3, {square}},
        {"common edge", 3, 2, {l, square}},
        {"common corner", 2, 2, {l, square}},
        {"outer edge", 0, 2, {l}},
        {"outside", 5, 1, {}},
        {"level with a corner", -1, 2, {}},
    };
    for (const auto& [what, x, y, expected] : cases) {
        EXPECT_EQ(Polygons().GetPolygonsAt(x, y), expected) << what;
    }
    EXPECT_EQ(Polygons().GetPolygonsInBox({2.5, 2.5, 3, 3}), (Ids{l, square})); // by bounding box
    const PolygonIndexEntry* const pEntry = Polygons().GetIndexEntry(square);
    ASSERT_NE(pEntry, nullptr);
    EXPECT_EQ(pEntry->systemId, parcels.GetSystemId());
    EXPECT_EQ(pEntry->box.minX, 2);
    EXPECT_EQ(Polygons().GetIndexEntry(AcDbObjectId(square.number() + 1)), nullptr);
    EXPECT_EQ(Polygons().GetPolygonIndex().size(), 2U);
}

TEST_F(IndexTest, TheNearestPolygonIsTheOneAPlainSearchFinds) {
    System::CGisSystem& parcels = MakeSystem(L"1", TopologyPolygon, 0);
    // Thin diagonal strips: their bounding boxes are a poor approximation.
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(0, 100);
    std::vector<std::pair<Point, AcDbObjectId>> strips;
    for (int i = 0; i < 300; ++i) {
        const Point at{place(random), place(random)};
        const AcDbObjectId id =
            Polygon(parcels,
                    {at, {at.x + 40, at.y + 40}, {at.x + 40, at.y + 40.001}, {at.x, at.y + 0.001}});
        strips.emplace_back(at, id);
    }
    const auto distance = [](const Point& strip, double x, double y) {
        const double t = std::clamp(((x - strip.x) + (y - strip.y)) / 2, 0.0, 40.0);
        return std::hypot(x - strip.x - t, y - strip.y - t);
    };
    for (int i = 0; i < 200; ++i) {
        const double x = place(random);
        const double y = place(random);
        double best = 1e9;
        double found = 1e9;
        const AcDbObjectId nearest = Polygons().GetNearestPolygon(x, y, 1000);
        for (const auto& [strip, id] : strips) {
            best = std::min(best, distance(strip, x, y));
            found = id == nearest ? distance(strip, x, y) : found;
        }
        EXPECT_NEAR(found, best, 0.002);
    }
    EXPECT_EQ(Polygons().GetNearestPolygon(-500, 0, 10), AcDbObjectId());
}

TEST_F(IndexTest, ADegeneratePolygonIsListedAndDoesNoHarm) {
    System::CGisSystem& parcels = MakeSystem(L"1", TopologyPolygon, 0);
    const AcDbObjectId none = Polygon(parcels, {});
    const AcDbObjectId dot = Polygon(parcels, {{1, 1}, {1, 1}, {1, 1}});
    EXPECT_EQ(Polygons().GetPolygonIndex().size(), 2U);
    EXPECT_NE(Polygons().GetIndexEntry(none), nullptr);
    EXPECT_EQ(Polygons().GetPolygonsAt(1, 1), (Ids{dot}));
    EXPECT_EQ(Polygons().GetNearestPolygon(0, 0, 10), dot);
}
