#include "plugins/network/NetworkSnap.h"
#include "tests/support/Rows.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace Orvane::Network {
namespace {

using Ends = std::vector<std::array<std::uint32_t, 2>>;

TEST(NetworkSnap, EndsMeetWithinTheTolerance) {
    const AcGePoint3d given[] = {{0, 0}, {100, 0}};
    const Rows<const char*, std::vector<LineEnds>, double, Ends> cases = {
        {"at given nodes", {{{{0, 0}, {100, 0}}}}, 0, {{0, 1}}},
        {"zeros are the same", {{{{-0.0, 0}, {100, -0.0}}}}, 0, {{0, 1}}},
        {"just beside, without a tolerance", {{{{1e-9, 0}, {100, 0}}}}, 0, {{2, 1}}},
        {"at the tolerance", {{{{0.5, 0}, {100, -0.5}}}}, 0.5, {{0, 1}}},
        {"just farther", {{{{0.5000001, 0}, {100, 0}}}}, 0.5, {{2, 1}}},
        {"across the border of a cell", {{{{-0.01, -0.01}, {99.99, 0.01}}}}, 0.5, {{0, 1}}},
        {"with each other", {{{{5, 5}, {6, 6}}}, {{{6.1, 6}, {5, 5.1}}}}, 0.2, {{2, 3}, {3, 2}}},
        {"the nearest, not the first",
         {{{{5, 5}, {5.3, 5}}}, {{{5.2, 5}, {0, 0}}}},
         0.2,
         {{2, 3}, {3, 0}}},
        {"a short line falls together", {{{{5, 5}, {5.1, 5}}}}, 0.2, {{2, 2}}},
        {"where cells would meet",
         {{{{900931.3839999, 5}, {7, 7}}}, {{{900931.384, 5}, {0, 0}}}},
         1e-3,
         {{2, 3}, {2, 0}}},
        {"far from the origin",
         {{{{4e6, 5e6}, {4e6 + 1, 5e6}}}, {{{4e6 + 1, 5e6 + 1e-4}, {0, 0}}}},
         1e-3,
         {{2, 3}, {3, 0}}},
    };
    for (const auto& [what, lines, tolerance, expected] : cases) {
        EXPECT_EQ(SnapEnds(given, lines, tolerance).ends, expected) << what;
    }
    EXPECT_TRUE(SnapEnds({}, {}, 1).ends.empty());
}

TEST(NetworkSnap, ANewNodeHasTheFirstHeightThatIsKnown) {
    const AcGePoint3d given[] = {{0, 0}};
    const LineEnds lines[] = {{{{0, 0, 7}, {1, 1}}}, {{{1, 1, 3}, {1, 1, 4}}}};
    const SnapResult result = SnapEnds(given, lines, 0.1);
    ASSERT_EQ(result.newNodes.size(), 1U);
    EXPECT_EQ(result.newNodes[0].z, 3);
}

TEST(NetworkSnap, FindsWhatAPlainSearchFinds) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> place(-3, 3);
    const double tolerance = 0.2;
    std::vector<LineEnds> lines(400);
    for (LineEnds& line : lines) {
        line = {{{place(random), place(random)}, {place(random), place(random)}}};
    }
    std::vector<AcGePoint3d> nodes;
    Ends expected;
    for (const LineEnds& line : lines) {
        auto& ends = expected.emplace_back();
        for (const std::size_t i : {0, 1}) {
            std::size_t best = nodes.size();
            double distance = tolerance;
            for (std::size_t n = 0; n < nodes.size(); ++n) {
                const double to = std::hypot(nodes[n].x - line[i].x, nodes[n].y - line[i].y);
                if (to < distance || (to == distance && best == nodes.size())) {
                    best = n;
                    distance = to;
                }
            }
            if (best == nodes.size()) {
                nodes.push_back(line[i]);
            }
            ends[i] = static_cast<std::uint32_t>(best);
        }
    }
    const SnapResult result = SnapEnds({}, lines, tolerance);
    EXPECT_EQ(result.ends, expected);
    EXPECT_EQ(result.newNodes.size(), nodes.size());
}

TEST(NetworkSnap, TheUsualToleranceFollowsTheSize) {
    const auto usual = [](double size) {
        const AcGePoint3d nodes[] = {{10, 10}, {10 + size, 10}};
        return UsualTolerance(nodes, {});
    };
    EXPECT_DOUBLE_EQ(usual(5000), 1e-3);
    EXPECT_DOUBLE_EQ(usual(0.05), 1e-8);
    EXPECT_EQ(usual(0), 0);
    EXPECT_EQ(UsualTolerance({}, {}), 0);
}

} // namespace
} // namespace Orvane::Network
