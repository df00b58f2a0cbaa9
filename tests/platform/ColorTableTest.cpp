#include "platform/arx/ColorTable.h"
#include "tests/support/Rows.h"

#include <gtest/gtest.h>
#include <set>

using namespace Tessaly;

TEST(AciColors, FollowTheTable) {
    const Rows<int, Rgb> cases = {
        {1, 0xffff0000},   {2, 0xffffff00},   {3, 0xff00ff00},   {4, 0xff00ffff},
        {5, 0xff0000ff},   {6, 0xffff00ff},   {8, 0xff808080},   {9, 0xffc0c0c0},
        {10, 0xffff0000},  {11, 0xffff7f7f},  {12, 0xffa50000},  {13, 0xffa55252},
        {14, 0xff7f0000},  {16, 0xff4c0000},  {18, 0xff260000},  {19, 0xff261313},
        {20, 0xffff3f00},  {30, 0xffff7f00},  {40, 0xffffbf00},  {50, 0xffffff00},
        {90, 0xff00ff00},  {130, 0xff00ffff}, {150, 0xff007fff}, {170, 0xff0000ff},
        {210, 0xffff00ff}, {240, 0xffff003f}, {250, 0xff333333}, {255, 0xffffffff},
    };
    for (const auto& [index, color] : cases) {
        EXPECT_EQ(AciColor(index, Background::Dark), color) << index;
        EXPECT_EQ(AciColor(index, Background::Light), color) << index;
        const COLORREF window = acedGetRGB(index);
        EXPECT_EQ(window & 0xFF, color >> 16 & 0xFF);
        EXPECT_EQ(window >> 16, color & 0xFF);
    }
}

TEST(AciColors, ContrastWithTheBackgroundWithoutAnIndex) {
    for (const int index : {7, 0, -1, 256, 100000}) {
        EXPECT_EQ(AciColor(index, Background::Dark), 0xffffffff) << index;
        EXPECT_EQ(AciColor(index, Background::Light), 0xff000000) << index;
    }
}

TEST(AciColors, AreOpaqueAndMostlyDifferent) {
    std::set<Rgb> colors;
    for (int index = 1; index <= 255; ++index) {
        colors.insert(AciColor(index, Background::Dark));
        EXPECT_EQ(AciColor(index, Background::Dark) >> 24U, 0xffU) << index;
    }
    // The table has a few duplicates: six hues, white (twice) and one grey.
    EXPECT_GT(colors.size(), 240U);
}

TEST(AciColors, Mix) {
    EXPECT_EQ(MixColors(0xff000000, 0xffffffff, 0), 0xff000000);
    EXPECT_EQ(MixColors(0xff000000, 0xffffffff, 255), 0xffffffff);
    EXPECT_EQ(MixColors(0xffff0000, 0xff0000ff, 51), 0xffcc0033);
}
