#include "plugins/network/NetworkStatistics.h"

#include <gtest/gtest.h>

#include "tests/plugins/network/NetworkSketch.h"

using namespace Orvane::Network;

TEST(NetworkStatistics, EmptyNetworkHasNoExtents) {
    const NetworkStatistics statistics = ComputeStatistics({});
    EXPECT_EQ(statistics.componentCount, 0U);
    EXPECT_EQ(statistics.largestComponentNodes, 0U);
    EXPECT_FALSE(statistics.extents);
    EXPECT_FALSE(statistics.elevations);
}

TEST(NetworkStatistics, DrawnLengthFollowsTheInnerVertices) {
    NetworkSketch sketch{{0, 0}, {3, 4}};
    sketch.Section(0, 1).Section(0, 1, {{3, 0}}).Section(0, kMissingNode, {{0, 2}, {5, 2}});
    const NetworkStatistics statistics = ComputeStatistics(sketch.Geometry());
    EXPECT_DOUBLE_EQ(statistics.drawnLength, 5 + 7 + 7);
    EXPECT_EQ(statistics.innerVertexCount, 3U);
    EXPECT_EQ(statistics.extents->high.x, 5);
    EXPECT_EQ(statistics.extents->high.y, 4);
}

TEST(NetworkStatistics, StatedLengthsAndElevationsSkipWhatIsNotStated) {
    NetworkSketch sketch{{0, 0}, {1, 0}, {2, 0}};
    sketch.Section(0, 1).Section(1, 2).Section(0, 2);
    const std::vector<double> lengths = {10, kNotStated, 5.5};
    const std::vector<double> elevations = {kNotStated, 7, -3};
    NetworkGeometry geometry = sketch.Geometry();
    geometry.statedLengths = lengths;
    geometry.elevations = elevations;
    const NetworkStatistics statistics = ComputeStatistics(geometry);
    EXPECT_EQ(statistics.statedLength, 15.5);
    EXPECT_EQ(statistics.sectionsWithStatedLength, 2U);
    EXPECT_EQ(statistics.elevations->low, -3);
    EXPECT_EQ(statistics.elevations->high, 7);
}

TEST(NetworkStatistics, KindsAreCounted) {
    NetworkSketch sketch{{0, 0}, {1, 0}, {2, 0}};
    sketch.Section(0, 1);
    const std::vector<NodeKind> nodes = {NodeKind::Tank, NodeKind::Junction, NodeKind::Tank};
    const std::vector<SectionKind> sections = {SectionKind::Weir};
    NetworkGeometry geometry = sketch.Geometry();
    geometry.nodeKinds = nodes;
    geometry.sectionKinds = sections;
    const NetworkStatistics statistics = ComputeStatistics(geometry);
    EXPECT_EQ(statistics.nodesByKind[static_cast<std::size_t>(NodeKind::Tank)], 2U);
    EXPECT_EQ(statistics.nodesByKind[static_cast<std::size_t>(NodeKind::Junction)], 1U);
    EXPECT_EQ(statistics.sectionsByKind[static_cast<std::size_t>(SectionKind::Weir)], 1U);
}

TEST(NetworkStatistics, ComponentsHangTogetherOverSections) {
    NetworkSketch sketch{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}};
    sketch.Section(0, 1).Section(2, 1).Section(3, 4).Section(4, 3).Section(5, kMissingNode);
    sketch.Section(kMissingNode, kMissingNode);
    const NetworkStatistics statistics = ComputeStatistics(sketch.Geometry());
    EXPECT_EQ(statistics.componentCount, 3U);
    EXPECT_EQ(statistics.largestComponentNodes, 3U);
}

TEST(NetworkStatistics, PointsWithoutAPlaceTakeNoPart) {
    NetworkSketch sketch{{kNotStated, 0}, {1, 1}, {2, 1}};
    sketch.Section(0, 1).Section(1, 2);
    const NetworkStatistics statistics = ComputeStatistics(sketch.Geometry());
    EXPECT_EQ(statistics.drawnLength, 1);
    EXPECT_EQ(statistics.extents->low.x, 1);
}
