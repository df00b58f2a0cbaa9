// Crossings in chosen cases, and compared with a slow search using fractions and angles.
#include "plugins/network/NetworkCrossings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <set>

#include "plugins/network/NetworkOrientation.h"
#include "tests/plugins/network/NetworkSketch.h"
#include "tests/support/Rows.h"

using namespace Orvane::Network;

namespace {

using Pairs = std::set<std::pair<std::uint32_t, std::uint32_t>>;
using Line = std::vector<Point>;

Pairs CrossingsOf(const NetworkSketch& sketch) {
    Pairs pairs;
    ForEachCrossing(sketch.Geometry(),
                    [&](std::uint32_t section, std::uint32_t earlier, const Point& place) {
                        EXPECT_TRUE(pairs.emplace(section, earlier).second) << section << " twice";
                        EXPECT_TRUE(IsPlace(place));
                    });
    return pairs;
}

bool DoCross(const Line& a, const Line& b) {
    return !CrossingsOf(NetworkSketch().Line(a).Line(b)).empty();
}

/// A point on a segment: its first point plus above / below of the way to its second.
struct Spot {
    std::size_t segment = 0;
    std::int64_t above = 0;
    std::int64_t below = 1;
};

struct Directions {
    Point before;
    Point behind;
};

/// The directions in which a line leaves a spot; none where it ends.
std::optional<Directions> DirectionsAt(const Line& line, const Spot& spot) {
    std::size_t before = spot.segment;
    std::size_t behind = spot.segment + 1;
    const auto towards = [&](std::size_t from, std::size_t to) {
        return Point{line[to].x - line[from].x, line[to].y - line[from].y};
    };
    if (spot.above != 0 && spot.above != spot.below) {
        return Directions{towards(behind, before), towards(before, behind)};
    }
    const std::size_t at = spot.above == 0 ? before : behind;
    if (at == 0 || at + 1 == line.size()) {
        return std::nullopt;
    }
    return Directions{towards(at, at - 1), towards(at, at + 1)};
}

/// Whether the four directions at a common spot alternate.
bool Alternate(const Directions& a, const Directions& b) {
    std::vector<std::pair<double, int>> ways;
    for (const auto& [way, owner] :
         {std::pair(a.before, 0), {a.behind, 0}, {b.before, 1}, {b.behind, 1}}) {
        ways.emplace_back(std::atan2(way.y, way.x), owner);
    }
    std::sort(ways.begin(), ways.end());
    for (std::size_t i = 0; i < 4; ++i) {
        const double next = i < 3 ? ways[i + 1].first : ways[0].first + 2 * M_PI;
        if (next - ways[i].first < 1e-9 || ways[i].second == ways[(i + 1) % 4].second) {
            return false;
        }
    }
    return true;
}

std::int64_t Cross(const Point& o, const Point& a, const Point& b) {
    return std::llround((a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x));
}

/// The one point shared by two segments with integer coordinates, as a fraction of each; nothing
/// for parallel segments, whose lines either never alternate or do so at a vertex shared with
/// another pair of segments.
std::optional<std::pair<Spot, Spot>> CommonSpot(const Line& a, std::size_t i, const Line& b,
                                                std::size_t j) {
    const std::int64_t ofB0 = Cross(a[i], a[i + 1], b[j]);
    const std::int64_t ofB1 = Cross(a[i], a[i + 1], b[j + 1]);
    const std::int64_t ofA0 = Cross(b[j], b[j + 1], a[i]);
    const std::int64_t ofA1 = Cross(b[j], b[j + 1], a[i + 1]);
    if (ofA0 == ofA1) {
        return std::nullopt;
    }
    const auto spot = [](std::size_t segment, std::int64_t first, std::int64_t second) {
        const std::int64_t sign = first - second < 0 ? -1 : 1;
        return Spot{segment, first * sign, (first - second) * sign};
    };
    const Spot onA = spot(i, ofA0, ofA1);
    const Spot onB = spot(j, ofB0, ofB1);
    const auto isInside = [](const Spot& s) { return 0 <= s.above && s.above <= s.below; };
    if (!isInside(onA) || !isInside(onB)) {
        return std::nullopt;
    }
    return std::pair(onA, onB);
}

/// Points where straight-through vertices meet belong only to parallel segments.
std::optional<std::pair<Spot, Spot>> CommonVertex(const Line& a, std::size_t i, const Line& b,
                                                  std::size_t j) {
    if (a[i] != b[j]) {
        return std::nullopt;
    }
    return std::pair(Spot{i, 0, 1}, Spot{j, 0, 1});
}

bool CrossSlowly(const Line& a, const Line& b) {
    for (std::size_t i = 0; i + 1 < a.size(); ++i) {
        for (std::size_t j = 0; j + 1 < b.size(); ++j) {
            for (const auto& spots : {CommonSpot(a, i, b, j), CommonVertex(a, i, b, j)}) {
                const auto onA = spots ? DirectionsAt(a, spots->first) : std::nullopt;
                const auto onB = spots ? DirectionsAt(b, spots->second) : std::nullopt;
                if (onA && onB && Alternate(*onA, *onB)) {
                    return true;
                }
            }
        }
    }
    return false;
}

Line LineOf(const NetworkSketch& sketch, std::size_t section) {
    Line line;
    ForEachLinePoint(sketch.Geometry(), section, [&](const Point& point) {
        if (line.empty() || line.back() != point) {
            line.push_back(point);
        }
    });
    return line;
}

Pairs SlowCrossingsOf(const NetworkSketch& sketch) {
    std::vector<Line> lines;
    for (std::size_t i = 0; i < sketch.starts.size(); ++i) {
        lines.push_back(LineOf(sketch, i));
    }
    Pairs pairs;
    for (std::uint32_t i = 0; i < lines.size(); ++i) {
        for (std::uint32_t j = 0; j < i; ++j) {
            if (CrossSlowly(lines[i], lines[j])) {
                pairs.emplace(i, j);
            }
        }
    }
    return pairs;
}

Point PlaceOf(Dice& dice, int limit) {
    const int x = dice.Throw(limit);
    return {static_cast<double>(x), static_cast<double>(dice.Throw(limit))};
}

/// Sections between random nodes; on a small board most points coincide.
NetworkSketch RandomNetwork(Dice& dice, int nodeCount, int sectionCount, int board) {
    NetworkSketch sketch;
    for (int i = 0; i < nodeCount; ++i) {
        sketch.nodes.push_back(PlaceOf(dice, board));
    }
    for (int i = 0; i < sectionCount; ++i) {
        Line inner(static_cast<std::size_t>(dice.Throw(4)));
        std::generate(inner.begin(), inner.end(), [&] { return PlaceOf(dice, board); });
        const int start = dice.Throw(10) == 0 ? kMissingNode : dice.Throw(nodeCount);
        sketch.Section(start, dice.Throw(nodeCount), inner);
    }
    return sketch;
}

} // namespace

TEST(NetworkCrossings, Cases) {
    const Rows<const char*, Line, Line, bool> cases = {
        {"in the middle of segments", {{0, 0}, {4, 4}}, {{0, 4}, {4, 0}}, true},
        {"apart", {{0, 0}, {4, 4}}, {{0, 4}, {1, 2}}, false},
        {"one ends on the other", {{0, 0}, {4, 0}}, {{2, 0}, {2, 3}}, false},
        {"both end at one place", {{0, 0}, {4, 0}}, {{4, 0}, {4, 3}}, false},
        {"through a vertex of one", {{0, 0}, {2, 2}, {4, 0}}, {{2, 0}, {2, 4}}, true},
        {"along a vertex of one", {{0, 0}, {2, 2}, {4, 0}}, {{0, 2}, {4, 2}}, false},
        {"through vertices of both", {{0, 0}, {2, 2}, {4, 4}}, {{0, 4}, {2, 2}, {4, 0}}, true},
        {"vertices of both touch", {{0, 0}, {2, 2}, {4, 0}}, {{0, 4}, {2, 2}, {4, 4}}, false},
        {"one corner inside the other", {{0, 0}, {2, 2}, {0, 4}}, {{0, 1}, {2, 2}, {0, 3}}, false},
        {"upon each other", {{0, 0}, {4, 0}}, {{1, 0}, {3, 0}}, false},
        {"equal lines", {{0, 0}, {2, 1}, {4, 0}}, {{0, 0}, {2, 1}, {4, 0}}, false},
        {"upon each other for a stretch, then to the other side",
         {{0, 0}, {6, 0}},
         {{0, 2}, {2, 0}, {4, 0}, {6, -2}},
         false},
        {"sharing a stretch and crossing elsewhere",
         {{0, 0}, {9, 0}},
         {{0, 0}, {2, 0}, {3, 1}, {5, -1}},
         true},
        {"meeting a line that turns back", {{0, 0}, {2, 0}, {0, 0}}, {{2, -1}, {2, 1}}, false},
        {"sharing an end and crossing later", {{0, 0}, {4, 0}}, {{0, 0}, {1, 2}, {3, -2}}, true},
        {"repeated points", {{0, 0}, {2, 2}, {2, 2}, {4, 4}}, {{0, 4}, {2, 2}, {4, 0}}, true},
        {"a point", {{2, 2}, {2, 2}}, {{0, 4}, {4, 0}}, false},
    };
    for (const auto& [what, a, b, cross] : cases) {
        EXPECT_EQ(DoCross(a, b), cross) << what;
        EXPECT_EQ(DoCross(b, a), cross) << what << ", exchanged";
    }
}

TEST(NetworkCrossings, PairsAreCountedOnce) {
    NetworkSketch sketch;
    sketch.Line({{0, 0}, {9, 0}}).Line({{0, 1}, {1, -1}, {2, 1}, {3, -1}, {4, 1}});
    EXPECT_EQ(CrossingsOf(sketch), (Pairs{{1, 0}}));
}

TEST(NetworkCrossings, SectionsDoNotCrossThemselves) {
    EXPECT_TRUE(CrossingsOf(NetworkSketch().Line({{0, 0}, {4, 4}, {4, 0}, {0, 4}})).empty());
}

TEST(NetworkCrossings, MissingNodesShortenALine) {
    NetworkSketch sketch{{0, 0}, {4, 4}};
    sketch.Section(0, 1).Section(kMissingNode, kMissingNode, {{0, 4}, {4, 0}});
    sketch.Section(kMissingNode, kMissingNode, {{0, 4}}).Section(kMissingNode, 0);
    EXPECT_EQ(CrossingsOf(sketch), (Pairs{{1, 0}}));
}

TEST(NetworkCrossings, AgreeWithASlowSearchWherePointsFallTogether) {
    for (std::uint64_t seed = 1; seed <= 3000; ++seed) {
        Dice dice(seed);
        const NetworkSketch sketch = RandomNetwork(dice, 6, 6, 3 + dice.Throw(5));
        ASSERT_EQ(CrossingsOf(sketch), SlowCrossingsOf(sketch)) << "seed " << seed;
    }
}

TEST(NetworkCrossings, AgreeWithASlowSearchAmongShortAndLongSections) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        Dice dice(seed);
        NetworkSketch sketch;
        for (int i = 0; i < 300; ++i) {
            const Point from = PlaceOf(dice, 1000);
            const int reach = i % 20 == 0 ? 1000 : 60;
            const Point way = PlaceOf(dice, reach);
            sketch.Line({from, {from.x + way.x - reach / 2, from.y + way.y - reach / 2}});
        }
        const Pairs pairs = CrossingsOf(sketch);
        EXPECT_GT(pairs.size(), 10U);
        ASSERT_EQ(pairs, SlowCrossingsOf(sketch)) << "seed " << seed;
    }
}

TEST(NetworkOrientation, IsExactForPointsAlmostOnALine) {
    __extension__ typedef __int128 Wide;
    Dice dice(5);
    const auto big = [&] { return (std::int64_t{1} << 50) + dice.Throw(1 << 30); };
    int zeros = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::int64_t ax = big();
        const std::int64_t ay = big();
        const std::int64_t dx = dice.Throw(1 << 20) + 1;
        const std::int64_t dy = dice.Throw(1 << 20) + 1;
        const std::int64_t bx = ax + 2 * dx;
        const std::int64_t by = ay + 2 * dy;
        const std::int64_t cx = ax + dx + dice.Throw(2);
        const std::int64_t cy = ay + dy;
        const Wide exact = Wide(bx - ax) * (cy - ay) - Wide(by - ay) * (cx - ax);
        const auto point = [](std::int64_t x, std::int64_t y) {
            return Point{static_cast<double>(x), static_cast<double>(y)};
        };
        const int sign = exact > 0 ? 1 : (exact < 0 ? -1 : 0);
        ASSERT_EQ(Orientation(point(ax, ay), point(bx, by), point(cx, cy)), sign);
        zeros += sign == 0;
    }
    EXPECT_GT(zeros, 5000);
}
