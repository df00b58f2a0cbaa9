#include "siblings/giscoreadds/SpatialIndex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

using namespace Orvane::Selection;

namespace {

using Ids = std::multiset<std::uint32_t>;

Ids Query(const CSpatialIndex& index, const Box& box) {
    Ids ids;
    index.Query(box, [&](std::uint32_t id) { ids.insert(id); });
    return ids;
}

bool Meet(const Box& a, const Box& b) {
    return a.minX <= b.maxX && b.minX <= a.maxX && a.minY <= b.maxY && b.minY <= a.maxY;
}

std::vector<BoxEntry> ManyBoxes(std::uint32_t count) {
    std::vector<BoxEntry> entries;
    std::uint32_t state = 1;
    const auto next = [&state](std::uint32_t limit) {
        state = state * 1664525 + 1013904223;
        return static_cast<double>((state >> 8) % limit);
    };
    for (std::uint32_t id = 0; id < count; ++id) {
        const double x = next(1000);
        const double y = next(1000);
        entries.push_back({{x, y, x + next(30), y + next(30)}, id});
    }
    return entries;
}

} // namespace

TEST(SpatialIndex, EmptyIndexFindsNothing) {
    const CSpatialIndex index;
    EXPECT_EQ(index.Size(), 0U);
    EXPECT_EQ(Query(index, {-1, -1, 1, 1}), Ids{});
    EXPECT_FALSE(index.Nearest(0, 0, 100));
}

TEST(SpatialIndex, BordersBelongToABox) {
    const std::vector<BoxEntry> entries = {{{0, 0, 1, 1}, 7}, {{1, 1, 1, 1}, 8}, {{2, 0, 3, 1}, 7}};
    const CSpatialIndex index(entries);
    EXPECT_EQ(Query(index, {1, 1, 2, 2}), (Ids{7, 7, 8}));
    EXPECT_EQ(Query(index, {1.5, 0, 1.9, 1}), Ids{});
}

TEST(SpatialIndex, FindsWhatAScanFinds) {
    const std::vector<BoxEntry> entries = ManyBoxes(5000);
    const CSpatialIndex index(entries);
    for (const BoxEntry& query : ManyBoxes(200)) {
        Ids expected;
        for (const BoxEntry& entry : entries) {
            if (Meet(entry.box, query.box)) {
                expected.insert(entry.id);
            }
        }
        EXPECT_EQ(Query(index, query.box), expected);
    }
}

TEST(SpatialIndex, NearestComeInOrderAndWithinTheDistance) {
    const std::vector<BoxEntry> entries = {
        {{10, 0, 12, 2}, 1}, {{3, 4, 3, 4}, 2}, {{-1, -1, 1, 1}, 3}, {{50, 0, 50, 0}, 4}};
    const CSpatialIndex index(entries);
    const auto hits = index.Nearest(0, 0, 20, 10);
    ASSERT_EQ(hits.size(), 3U);
    EXPECT_EQ(hits[0].id, 3U); // the point is inside it
    EXPECT_EQ(hits[0].distance, 0);
    EXPECT_EQ(hits[1].id, 2U);
    EXPECT_DOUBLE_EQ(hits[1].distance, 5);
    EXPECT_EQ(hits[2].id, 1U);
    EXPECT_EQ(index.Nearest(0, 0, 20, 2).size(), 2U);
    EXPECT_EQ(index.Nearest(49, 0, 1)->id, 4U);
    EXPECT_FALSE(index.Nearest(49, 0, 0.5));
}

TEST(SpatialIndex, EntriesThatAreNoBoxesAreLeftOut) {
    const double nan = std::nan("");
    const double infinite = std::numeric_limits<double>::infinity();
    const std::vector<BoxEntry> entries = {
        {{nan, 0, 1, 1}, 1}, {{0, 0, infinite, 1}, 2}, {{2, 0, 1, 1}, 3}, {{0, 0, 1, 1}, 4}};
    const CSpatialIndex index(entries);
    EXPECT_EQ(index.Size(), 1U);
    EXPECT_EQ(Query(index, {0, 0, 5, 5}), Ids{4});
    EXPECT_EQ(Query(index, {nan, 0, 5, 5}), Ids{});
    EXPECT_FALSE(index.Nearest(nan, 0, 1));
}
