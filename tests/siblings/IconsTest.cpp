// The icons of the installation: all names that modules use exist and are visible.
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include "platform/mfc/IIconSource.h"
#include "platform/mfc/ImageList.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "tests/support/TestHost.h"

using namespace Orvane;

namespace {

/// All icon names that modules and plug-ins use.
constexpr const wchar_t* kNames[] = {
    // entities, topologies, systems
    L"IDI_NODE", L"IDI_SECTION", L"ORV_IDI_POLYGON_16X16", L"ORV_IDI_POLYGONNODE_16X16",
    L"ORV_IDI_UNKNOWNENTITY", L"ORV_LINETOPOLOGY", L"ORV_POLYGONTOPOLOGY", L"ORV_POINTTOPOLOGY",
    L"ORV_ASSEMBLYSCHEME", L"ORV_SYSTEM", L"ORV_SYSTEM_MANAGER",
    // items of the trees
    L"IDI_DISKDATA", L"IDI_NETDATA", L"ORV_IDI_TOOLBOX", L"IDI_PENCIL", L"IDI_DATA_EDIT",
    L"IDI_WINDOW_EDIT", L"ORV_ID_MANAGER", L"IDI_FLASH",
    // buttons of the panel
    L"IDI_SEL_OBJECT", L"IDI_DOCUMENT_NEW", L"IDI_DELETE", L"IDI_LIGHTON", L"IDI_LIGHTOFF",
    L"ORV_IDI_FINDTEXT", L"IDI_INFO", L"IDI_DEL_SELECTEDELEM", L"IDI_REFRESH",
    L"ORV_IDI_GEARSPREFERENCES", L"IDI_INDEX", L"ORV_IDI_WINDOW_INFO", L"ORV_IDI_HELP",
    L"ORV_IDI_GENERALSETTINGS",
    // dialogs
    L"IDI_DROP_QUERY", L"WARNING", L"ERROR", L"IDI_LSMAN_ZOOMTOSECT", L"IDI_LSMAN_ZOOMTOLONG",
    L"IDI_ZOOMIN", L"IDI_CHECKBOX_SELECTED", L"IDI_PAINTBRUSH", L"ORV_CAPTION_COLLAPSE",
    L"ORV_CAPTION_EXPAND", L"ORV_CAPTION_SETTINGS", L"ORV_CAPTION_HELP",
    // families of the plug-ins
    L"IDI_QUERY", L"IDI_THEME", L"IDI_LABEL", L"IDI_LONGITUDINAL", L"IDI_NETWORK",
    L"IDI_FIND_ENTITY", L"IDI_PROPERTIES"};

constexpr std::array<int, 3> kWhite{255, 255, 255};
constexpr std::array<int, 3> kDark{0x2b, 0x2b, 0x2b};

double Luminance(const std::array<double, 3>& color) {
    const auto linear = [](double value) {
        const double share = value / 255;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color[0]) + 0.7152 * linear(color[1]) + 0.0722 * linear(color[2]);
}

/// Contrast ratio of a pixel to a background: from 1 (invisible) to 21.
double Contrast(std::uint32_t pixel, const std::array<int, 3>& ground) {
    const double through = 1 - (pixel >> 24) / 255.0;
    std::array<double, 3> shown{};
    std::array<double, 3> behind{};
    for (unsigned i = 0; i < 3; ++i) {
        behind[i] = ground[i];
        shown[i] = (pixel >> (16 - 8 * i) & 0xFFU) + through * ground[i];
    }
    const auto [low, high] = std::minmax({Luminance(shown), Luminance(behind)});
    return (high + 0.05) / (low + 0.05);
}

/// Number of clearly visible pixels.
long Visible(const CImage& image, const std::array<int, 3>& ground) {
    return std::count_if(image.Pixels().begin(), image.Pixels().end(),
                         [&ground](std::uint32_t pixel) { return Contrast(pixel, ground) >= 2.5; });
}

class IconsTest : public testing::Test {
protected:
    CImage Picture(const wchar_t* name, CSize size = {16, 16}) {
        return ImageOfIcon(m_configuration.GetIcon(name), size);
    }

    TestHost m_host;
    CModuleConfiguration& m_configuration = *CModuleConfiguration::Instance();
};

TEST_F(IconsTest, EveryNameHasAPictureThatCanBeSeenOnLightAndDarkGround) {
    constexpr long kEnough = 10; // the smallest, a caption arrow, has a few more
    for (const wchar_t* name : kNames) {
        const CImage image = Picture(name);
        ASSERT_FALSE(image.IsNull()) << WideToUtf8(name);
        EXPECT_EQ(image.Size().cx, 16) << WideToUtf8(name);
        EXPECT_GE(Visible(image, kWhite), kEnough) << WideToUtf8(name) << " on white";
        EXPECT_GE(Visible(image, kDark), kEnough) << WideToUtf8(name) << " on dark";
    }
}

TEST_F(IconsTest, AllDrawingsOfTheFolderAreAskedForByName) {
    for (const auto& entry :
         std::filesystem::directory_iterator(TESSALY_STAGE_DIR "/share/icons")) {
        const std::wstring name = entry.path().stem().wstring();
        EXPECT_TRUE(std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames) ||
                    name == L"IDI_EMPTY_16" || name == L"TESSALY")
            << entry.path();
    }
}

TEST_F(IconsTest, TheEmptyIconIsThereAndShowsNothing) {
    const CImage image = Picture(L"IDI_EMPTY_16");
    EXPECT_EQ(image.Size(), CSize(16, 16));
    EXPECT_EQ(Visible(image, kWhite) + Visible(image, kDark), 0);
}

TEST_F(IconsTest, ALoadedIconHasItsSizeAndGoesWhenItIsDestroyed) {
    const HICON icon = m_configuration.LoadImageW(L"IDI_NODE", {48, 48});
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(ImageOfIcon(icon).Size(), CSize(48, 48));
    EXPECT_EQ(ImageOfIcon(icon, {24, 24}).Size(), CSize(24, 24)) << "another one is asked for";
    CImageList list;
    const int index = list.Add(icon);
    EXPECT_TRUE(DestroyIcon(icon));
    EXPECT_TRUE(ImageOfIcon(icon).IsNull());
    EXPECT_FALSE(DestroyIcon(icon)) << "a second time";
    EXPECT_EQ(list.GetImage(index).Size(), CSize(16, 16)) << "the list needs it no more";
}

TEST_F(IconsTest, ASharedIconCannotBeDestroyed) {
    EXPECT_FALSE(DestroyIcon(m_configuration.GetIcon(L"IDI_NODE")));
    EXPECT_FALSE(Picture(L"IDI_NODE").IsNull());
}

TEST_F(IconsTest, WhatNobodyKnowsHasNoPicture) {
    int foreign = 0;
    EXPECT_EQ(m_configuration.LoadImageW(L"IDI_NOBODY", {16, 16}), nullptr);
    EXPECT_EQ(m_configuration.LoadImageW(L"../icons/IDI_NODE", {16, 16}), nullptr);
    EXPECT_TRUE(ImageOfIcon(&foreign, {16, 16}).IsNull());
    EXPECT_FALSE(DestroyIcon(&foreign));
    EXPECT_TRUE(ImageOfIcon(nullptr).IsNull());
}

TEST_F(IconsTest, ADenseScreenGetsMorePixelsOfTheSameSize) {
    setenv("QT_SCALE_FACTOR", "2", 1); // read when the first icon initialises the toolkit
    const CImage image = Picture(L"IDI_NODE");
    unsetenv("QT_SCALE_FACTOR");
    if (image.Density() == 1) {
        GTEST_SKIP() << "the toolkit was there before";
    }
    EXPECT_EQ(image.Size(), CSize(16, 16));
    EXPECT_EQ(image.PixelSize(), CSize(32, 32));
}

TEST_F(IconsTest, TheGrayFormHasTheShapeWithoutTheColours) {
    const CImage image = Picture(L"IDI_NODE", {32, 32});
    const CImage gray = image.Gray();
    ASSERT_EQ(gray.PixelSize(), image.PixelSize());
    for (std::size_t i = 0; i < gray.Pixels().size(); ++i) {
        const std::uint32_t pixel = gray.Pixels()[i];
        ASSERT_EQ(pixel >> 24 == 0, image.Pixels()[i] >> 24 == 0) << i;
        ASSERT_LE(pixel & 0xFFU, pixel >> 24) << "colours are multiplied with alpha";
        ASSERT_EQ(pixel & 0xFFU, pixel >> 8 & 0xFFU);
        ASSERT_EQ(pixel & 0xFFU, pixel >> 16 & 0xFFU);
    }
    EXPECT_TRUE(CImage().Gray().IsNull());
}

} // namespace
