#include "plugins/network/NetworkCheck.h"

#include <gtest/gtest.h>

#include <cmath>

#include "plugins/network/InpReader.h"
#include "tests/plugins/network/NetworkSketch.h"

using namespace Orvane::Network;

namespace {

using Texts = std::vector<std::string>;

Texts FindingsOf(const NetworkSketch& sketch, FindingKind kind, const CheckOptions& options = {}) {
    Texts texts;
    for (const Finding& finding : CheckNetwork(sketch.Geometry(), options).findings) {
        if (finding.kind == kind) {
            texts.push_back(FindingText(finding, sketch));
        }
    }
    return texts;
}

} // namespace

TEST(NetworkCheck, SoundNetworkHasNoFindings) {
    NetworkSketch sketch{{0, 0}, {5, 0}, {5, 5}};
    sketch.Section(0, 1).Section(1, 2).Section(2, 0, {{0, 5}});
    EXPECT_TRUE(CheckNetwork(sketch.Geometry()).findings.empty());
}

TEST(NetworkCheck, IsolatedNodes) {
    NetworkSketch sketch{{0, 0}, {5, 0}, {9, 9}, {kNotStated, 0}};
    sketch.Section(0, 0).Section(1, kMissingNode);
    EXPECT_EQ(FindingsOf(sketch, FindingKind::IsolatedNode),
              (Texts{"N2: isolated node, no section starts or ends here",
                     "N3: isolated node, no section starts or ends here"}));
}

TEST(NetworkCheck, CoincidentNodesNameTheFirstOfTheirPlace) {
    const NetworkSketch sketch{{1, 2}, {0.0, 5}, {1, 2}, {1, 2.0000001}, {-0.0, 5}, {1, 2}};
    EXPECT_EQ(FindingsOf(sketch, FindingKind::CoincidentNode),
              (Texts{"N2: coincident node, at the same position as N0",
                     "N4: coincident node, at the same position as N1",
                     "N5: coincident node, at the same position as N0"}));
}

TEST(NetworkCheck, OneOfTwoCloseNodesIsAlwaysNamed) {
    constexpr double kTolerance = 3;
    for (std::uint64_t seed = 1; seed <= 50; ++seed) {
        Dice dice(seed);
        NetworkSketch sketch;
        for (int i = 0; i < 60; ++i) {
            sketch.nodes.push_back({dice.Throw(400) / 10.0 - 20, dice.Throw(400) / 10.0 - 20});
        }
        std::vector<bool> isNamed(sketch.nodes.size(), false);
        const auto distance = [&](std::size_t a, std::size_t b) {
            return std::hypot(sketch.nodes[a].x - sketch.nodes[b].x,
                              sketch.nodes[a].y - sketch.nodes[b].y);
        };
        CheckOptions options;
        options.coincidenceTolerance = kTolerance;
        for (const Finding& finding : CheckNetwork(sketch.Geometry(), options).findings) {
            if (finding.kind == FindingKind::CoincidentNode) {
                EXPECT_LE(distance(finding.entity, finding.other), kTolerance);
                isNamed[finding.entity] = true;
            }
        }
        for (std::size_t a = 0; a < isNamed.size(); ++a) {
            for (std::size_t b = 0; b < a; ++b) {
                EXPECT_TRUE(distance(a, b) > kTolerance || isNamed[a] || isNamed[b])
                    << "seed " << seed << ", nodes " << a << " and " << b;
            }
        }
    }
}

TEST(NetworkCheck, ManyNodesAtOnePlaceStayCheap) {
    NetworkSketch sketch;
    sketch.nodes.assign(300'000, Point{7, 7});
    for (const double tolerance : {0.0, 1.0}) {
        CheckOptions options;
        options.coincidenceTolerance = tolerance;
        EXPECT_EQ(CheckNetwork(sketch.Geometry(), options).Count(FindingKind::CoincidentNode),
                  299'999U);
    }
}

TEST(NetworkCheck, ZeroLengthSections) {
    NetworkSketch sketch{{1, 1}, {1, 1}, {5, 5}, {kNotStated, 1}};
    sketch
        .Section(0, 1)                      // between coincident nodes
        .Section(0, 0)                      // from a node to itself
        .Section(0, 1, {{1, 1}})            // an inner vertex at the same position
        .Section(0, 1, {{2, 2}})            // leaves and comes back
        .Section(0, 2)                      // not of zero length
        .Section(0, kMissingNode, {{1, 1}}) // unknown end
        .Section(0, 3);                     // likewise
    EXPECT_EQ(
        FindingsOf(sketch, FindingKind::ZeroLengthSection),
        (Texts{"S0: zero-length section", "S1: zero-length section", "S2: zero-length section"}));
}

TEST(NetworkCheck, MissingNodes) {
    NetworkSketch sketch{{1, 1}};
    sketch.Section(0, kMissingNode).Section(kMissingNode, 0);
    sketch.Section(kMissingNode, kMissingNode).Section(0, 0);
    EXPECT_EQ(FindingsOf(sketch, FindingKind::MissingNode),
              (Texts{"S0: refers to the missing node Y", "S1: refers to the missing node X",
                     "S2: refers to the missing nodes X and Y"}));
    const CheckResult result = CheckNetwork(sketch.Geometry());
    EXPECT_TRUE(IsPlace(result.findings[1].place));
    EXPECT_FALSE(IsPlace(result.findings[3].place)); // no position
}

TEST(NetworkCheck, ParallelSectionsNameTheFirstOfTheirNodes) {
    NetworkSketch sketch{{0, 0}, {5, 0}, {9, 0}};
    sketch.Section(0, 1).Section(1, 2).Section(1, 0, {{2, 2}}).Section(0, 2).Section(0, 1);
    sketch.Section(0, kMissingNode).Section(0, kMissingNode);
    EXPECT_EQ(FindingsOf(sketch, FindingKind::ParallelSection),
              (Texts{"S2: parallel section, connects the same nodes as S0",
                     "S4: parallel section, connects the same nodes as S0"}));
}

TEST(NetworkCheck, CrossingIsNamedWithItsPlace) {
    NetworkSketch sketch;
    sketch.Line({{1000, 2000}, {1010, 2010}}).Line({{1000, 2010}, {1010, 2000}});
    EXPECT_EQ(FindingsOf(sketch, FindingKind::Crossing),
              Texts{"S1: crosses S0 without a node at 1005, 2005"});
}

TEST(NetworkCheck, FindingsComeByKindAndEntity) {
    NetworkSketch sketch;
    sketch.Line({{0, 0}, {10, 10}}).Line({{0, 10}, {10, 0}}).Line({{0, 5}, {10, 5.5}});
    sketch.Section(0, 1, {{50, 0}}).Section(0, kMissingNode).Line({{20, 20}, {20, 20}});
    std::vector<std::pair<FindingKind, std::uint32_t>> order;
    for (const Finding& finding : CheckNetwork(sketch.Geometry()).findings) {
        order.emplace_back(finding.kind, finding.entity);
    }
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_EQ(order.size(), 7U); // coincident, zero, missing, parallel and three crossings
}

TEST(NetworkCheck, CountsGoOnBehindTheListing) {
    NetworkSketch sketch;
    sketch.nodes.resize(10);
    for (std::size_t i = 0; i < 10; ++i) {
        sketch.nodes[i].x = static_cast<double>(i);
    }
    CheckOptions options;
    options.mostListed = 3;
    const CheckResult result = CheckNetwork(sketch.Geometry(), options);
    EXPECT_EQ(result.findings.size(), 3U);
    EXPECT_EQ(result.Count(FindingKind::IsolatedNode), 10U);
}
