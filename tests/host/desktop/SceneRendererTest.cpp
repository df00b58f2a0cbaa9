#include "host/desktop/view/SceneRenderer.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "host/desktop/view/ViewPicture.h"
#include "tests/host/desktop/Pixels.h"
#include "tests/host/desktop/ViewDrawing.h"

using namespace Tessaly;

namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 300;
constexpr RenderSettings kSettings = {Background::Dark, kPaper, 1};
constexpr auto kNever = SceneRenderer::Clock::time_point::max();
constexpr Rgb kRed = 0xffff0000;
constexpr Rgb kGreen = 0xff00ff00;
constexpr Rgb kWhite = 0xffffffff;

/// One unit per pixel: position (x, y) is pixel (x, height - y).
ViewTransform At(double x, double y) {
    ViewTransform view;
    view.Resize(kWidth, kHeight);
    view.Fit({x, y, x + kWidth, y + kHeight}, 1, 1);
    return view;
}

struct Shown {
    AcDbDatabase database;
    DrawingScene scene;

    Pixels Draw(const ViewTransform& view, std::span<const Emphasis> emphasis = {}) {
        if (scene.Database() == nullptr) {
            scene.SetDatabase(&database);
        }
        scene.Update();
        Pixels pixels(kWidth, kHeight);
        SceneRenderer renderer;
        renderer.Start(scene, view, kSettings, DetailOf(scene, view), emphasis, pixels.Canvas());
        EXPECT_TRUE(renderer.Continue(kNever));
        return pixels;
    }
};

/// A grid of lines, too many for antialiasing.
void AddGrid(AcDbDatabase& database, double x, double y, AcDbObjectId layer = {}) {
    for (int row = 0; row < 30; ++row) {
        for (int column = 0; column < 400; ++column) {
            const double left = x + column;
            const double low = y + row * 10 + 5.5;
            AddLine(database, {{left, low}, {left + 1, low}}, layer);
        }
    }
}

} // namespace

TEST(SceneRenderer, DrawsEachKindInTheColourOfItsLayerOrItsOwn) {
    Shown shown;
    const AcDbObjectId red = AddLayer(shown.database, L"red", 1);
    AddLine(shown.database, {{10, 250.5}, {390, 250.5}}, red);
    AddLine(shown.database, {{10, 230.5}, {390, 230.5}}, red, 3);
    AddSquare(shown.database, 20, 20, 100, 40, red);
    AddSpot(shown.database, 200.5, 100.5, red);
    AddLine(shown.database, {{300, 20}, {300, 20}}, red);
    const Pixels pixels = shown.Draw(At(0, 0));
    for (int x = 12; x < 388; ++x) {
        ASSERT_FALSE(Pixels::AreDifferent(pixels.At(x, 49), kRed)) << x;
        ASSERT_FALSE(Pixels::AreDifferent(pixels.At(x, 69), kGreen)) << x;
        ASSERT_TRUE(pixels.IsPaper(x, 60));
    }
    EXPECT_FALSE(pixels.IsPaper(20, 230)) << "outline";
    EXPECT_FALSE(pixels.IsPaper(30, 270)) << "light fill";
    EXPECT_TRUE(Pixels::AreDifferent(pixels.At(30, 270), kRed));
    EXPECT_TRUE(pixels.IsPaper(70, 230)) << "hole";
    EXPECT_FALSE(Pixels::AreDifferent(pixels.At(200, 199), kRed)) << "node";
    EXPECT_TRUE(pixels.IsPaper(200, 205));
    EXPECT_FALSE(pixels.IsPaper(300, 280)) << "a line without length";
}

TEST(SceneRenderer, DrawsNothingOfLayersThatAreOff) {
    Shown shown;
    const AcDbObjectId hidden = AddLayer(shown.database, L"hidden", 1);
    AddMixture(shown.database, 200, 300, {});
    const Pixels before = shown.Draw(At(0, 0));
    AddGrid(shown.database, 0, 0, hidden);
    const AcDbObjectId lines[] = {AddLine(shown.database, {{0, 0}, {400, 300}}, hidden)};
    SwitchOff(shown.database, hidden);
    const Emphasis emphasis[] = {{lines[0], kWhite, 3}};
    EXPECT_EQ(shown.Draw(At(0, 0), emphasis).CountDifferent(before), 0);
    SwitchOff(shown.database, hidden, false);
    EXPECT_GT(shown.Draw(At(0, 0)).CountDifferent(before), 1000);
}

TEST(SceneRenderer, DrawsMassesOfLinesWithoutGaps) {
    Shown shown;
    AddGrid(shown.database, 0, 0);
    const Pixels pixels = shown.Draw(At(0, 0));
    EXPECT_FALSE(DetailOf(shown.scene, At(0, 0)).isFine);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 1; x < kWidth - 1; ++x) {
            const bool isLine = y % 10 == 4;
            ASSERT_EQ(pixels.At(x, y), isLine ? kWhite : kPaper) << x << ' ' << y;
        }
    }
}

TEST(SceneRenderer, ShowsMassesFromAfarAndWhatFillsThem) {
    Shown shown;
    AddGrid(shown.database, 0, 0);
    ViewTransform view = At(0, 0);
    view.ZoomAt({kWidth / 2.0, kHeight / 2.0}, 0.02); // the whole drawing is 8 by 6 pixels
    const Pixels pixels = shown.Draw(view);
    EXPECT_EQ(pixels.At(kWidth / 2, kHeight / 2), kWhite);
    EXPECT_GE(pixels.CountInked(), 7 * 5);
    EXPECT_LE(pixels.CountInked(), 10 * 8);
}

TEST(SceneRenderer, ShowsTheSamePictureWhereverTheDrawingLies) {
    for (const bool isMass : {false, true}) {
        Shown near;
        const auto add = [isMass](AcDbDatabase& database, double offset) {
            isMass ? AddGrid(database, offset, offset)
                   : AddMixture(database, 300, 300, {}, 1, offset);
        };
        add(near.database, 0);
        const Pixels expected = near.Draw(At(0, 0));
        ASSERT_GT(expected.CountInked(), 1000);
        // Powers of two, so that the places themselves lose little.
        for (const double far : {0x1p21, 0x1p24, -0x1p36}) {
            for (const bool hasLost : {false, true}) {
                Shown shown;
                add(shown.database, far);
                if (hasLost) {
                    AddSpot(shown.database, 1e15, -1e15);
                    AddSpot(shown.database, std::numeric_limits<double>::quiet_NaN(), 0);
                }
                const Pixels pixels = shown.Draw(At(far, far));
                EXPECT_LT(pixels.CountDifferent(expected), expected.CountInked() / 100)
                    << far << (isMass ? " mass" : "") << (hasLost ? " with lost ones" : "");
            }
        }
    }
}

TEST(SceneRenderer, DrawsLinesThatReachFarOutOfSight) {
    for (const bool isMass : {false, true}) {
        Shown shown;
        if (isMass) {
            AddGrid(shown.database, 0, 0);
        }
        AddLine(shown.database, {{-1e9, 150 - 1e9}, {1e9, 150 + 1e9}}, {}, 1);
        const Pixels pixels = shown.Draw(At(0, 0));
        for (int x = 1; x < 140; x += 5) {
            const bool isThere = pixels.At(x, kHeight - 150 - x) == kRed ||
                                 pixels.At(x, kHeight - 150 - x - 1) == kRed ||
                                 !pixels.IsPaper(x, kHeight - 150 - x - 1);
            EXPECT_TRUE(isThere) << x;
        }
    }
}

TEST(SceneRenderer, PutsEmphasisOverEverything) {
    Shown shown;
    const AcDbObjectId line = AddLine(shown.database, {{10, 100.5}, {390, 100.5}});
    AddLine(shown.database, {{200.5, 10}, {200.5, 290}});
    const AcDbObjectId spot = AddSpot(shown.database, 100.5, 200.5);
    const Emphasis emphasis[] = {{line, kRed, 5}, {spot, kGreen, 3}, {AcDbObjectId(999), kRed, 5}};
    const Pixels pixels = shown.Draw(At(0, 0), emphasis);
    for (const int y : {197, 199, 201}) {
        EXPECT_EQ(pixels.At(200, y), kRed) << y;
        EXPECT_EQ(pixels.At(50, y), kRed) << y;
    }
    EXPECT_EQ(pixels.At(100, 99), kGreen);
}

TEST(ViewPicture, IsTheSameMovedAsDrawnAnew) {
    for (const bool isMass : {false, true}) {
        AcDbDatabase database;
        AddMixture(database, 400, 600, {});
        if (isMass) {
            AddGrid(database, 0, 0);
        }
        DrawingScene scene;
        scene.SetDatabase(&database);
        scene.Update();
        ViewPicture picture;
        ViewTransform view = At(100, 100);
        ASSERT_TRUE(picture.Update(scene, view, kSettings, {}, kNever));
        const PixelPoint moves[] = {{7, 0}, {-30, 12}, {0, -100}, {399, 299}, {-399, 1}, {1000, 0}};
        for (const PixelPoint& move : moves) {
            view.Pan(move.x, move.y);
            ASSERT_TRUE(picture.Update(scene, view, kSettings, {}, kNever));
            Pixels pixels(kWidth, kHeight);
            SceneRenderer renderer;
            renderer.Start(scene, view, kSettings, picture.Detail(), {}, pixels.Canvas());
            renderer.Continue(kNever);
            int different = 0;
            for (int y = 0; y < kHeight; ++y) {
                for (int x = 0; x < kWidth; ++x) {
                    different += Pixels::AreDifferent(picture.Image().pixel(x, y), pixels.At(x, y));
                }
            }
            EXPECT_LT(different, 10) << move.x << ' ' << move.y << (isMass ? " mass" : "");
        }
    }
}

TEST(ViewPicture, IsDrawnPieceByPieceWhenItIsLate) {
    AcDbDatabase database;
    AddGrid(database, 0, 0);
    DrawingScene scene;
    scene.SetDatabase(&database);
    scene.Update();
    ViewPicture picture;
    const auto late = SceneRenderer::Clock::now();
    int calls = 1;
    while (!picture.Update(scene, At(0, 0), kSettings, {}, late)) {
        ASSERT_LT(++calls, 1000);
    }
    EXPECT_GT(calls, 2);
    EXPECT_EQ(picture.Image().pixel(200, 4), kWhite);
    EXPECT_EQ(picture.Image().pixel(398, 294), kWhite);
}
