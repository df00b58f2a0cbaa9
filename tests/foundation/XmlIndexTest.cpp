#include <gtest/gtest.h>

#include "workspacecore/foundation/XmlIndex.h"

namespace Orvane {
namespace {

TEST(XmlIndex, GrowsByHalfAndAtMostOneSegment) {
    const struct {
        int capacity;
        int grown;
    } cases[] = {
        {1, 2},           {8, 12},          {12, 18},         {50000, 75000},
        {65536, 98304},   {131072, 196608}, {200000, 300000}, {400000, 8 * 65536},
        {300000, 393216},
    };
    for (const auto& c : cases) {
        XmlIndex index;
        index.Reserve(c.capacity);
        ASSERT_EQ(index.Capacity(), c.capacity);
        index.Grow(c.capacity);
        EXPECT_EQ(index.Capacity(), c.grown) << c.capacity;
    }
}

TEST(XmlIndex, KeepsRecordsWhileItGrowsAndMovesNoFullSegment) {
    XmlIndex index;
    index.Reserve(8);
    const XmlNodePos* pFirstOfFull = nullptr;
    for (int i = 0; i < 300000; ++i) {
        if (i == index.Capacity()) {
            index.Grow(i);
        }
        index[i] = {.start = i,
                    .length = 0,
                    .tagLengths = 0,
                    .flags = 0,
                    .parent = 0,
                    .child = 0,
                    .next = 0,
                    .prev = -i};
        if (i == XmlIndex::kSegmentRecords) {
            pFirstOfFull = &index[0];
        }
    }
    EXPECT_EQ(&index[0], pFirstOfFull);
    XmlIndex copy;
    copy.CopyFrom(index, 300000);
    for (int i = 0; i < 300000; ++i) {
        ASSERT_EQ(index[i].start, i);
        ASSERT_EQ(copy[i].prev, -i);
    }
}

TEST(XmlIndex, CopiesHaveRoomForEightRecords) {
    XmlIndex index;
    index.Reserve(1);
    index[0] = {};
    XmlIndex copy;
    copy.CopyFrom(index, 1);
    EXPECT_EQ(copy.Capacity(), 8);
    XmlIndex fresh;
    XmlIndex freshCopy;
    freshCopy.CopyFrom(fresh, 1);
    EXPECT_EQ(freshCopy.Capacity(), 0);
}

} // namespace
} // namespace Orvane
