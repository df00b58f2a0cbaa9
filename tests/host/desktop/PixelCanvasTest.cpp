#include "host/desktop/view/PixelCanvas.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "tests/host/desktop/Pixels.h"

using namespace Tessaly;

namespace {

constexpr Rgb kInk = 0xff80ff00;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr int kSide = 60;
constexpr PixelRect kClip = {10, 15, 50, 40};

double DistanceToLine(double x, double y, const PixelPoint& from, const PixelPoint& to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double t = ((x - from.x) * dx + (y - from.y) * dy) / (dx * dx + dy * dy);
    const double on = std::min(1.0, std::max(0.0, t));
    return std::hypot(from.x + dx * on - x, from.y + dy * on - y);
}

} // namespace

TEST(PixelCanvas, DrawsLinesWhereTheyAreAndOnlyInTheClip) {
    std::mt19937 random(2);
    std::uniform_real_distribution<double> at(-40, 100);
    for (int i = 0; i < 2000; ++i) {
        const PixelPoint from{at(random), at(random)};
        const PixelPoint to{at(random), at(random)};
        for (const bool isSmooth : {false, true}) {
            Pixels pixels(kSide, kSide);
            PixelCanvas canvas = pixels.Canvas(kClip);
            if (isSmooth) {
                canvas.SmoothLine(from, to, 1.5, kInk);
            } else {
                canvas.HairLine(static_cast<float>(from.x), static_cast<float>(from.y),
                                static_cast<float>(to.x), static_cast<float>(to.y), kInk);
            }
            for (int y = 0; y < kSide; ++y) {
                for (int x = 0; x < kSide; ++x) {
                    const bool isInClip =
                        x >= kClip.left && x < kClip.right && y >= kClip.top && y < kClip.bottom;
                    const double distance = DistanceToLine(x + 0.5, y + 0.5, from, to);
                    ASSERT_TRUE(pixels.IsPaper(x, y) || (isInClip && distance < 2))
                        << i << " at " << x << ' ' << y;
                    ASSERT_FALSE(pixels.IsPaper(x, y) && isInClip && distance < 0.3)
                        << i << " gap at " << x << ' ' << y;
                }
            }
        }
    }
}

TEST(PixelCanvas, SurvivesPlacesFromAnywhere) {
    const double odd[] = {
        0, 20, -1e9, 1e27, -1e27, kNan, std::numeric_limits<double>::infinity(), 15.5, 39.999999};
    std::mt19937 random(4);
    const auto any = [&] { return odd[random() % std::size(odd)]; };
    Pixels pixels(kSide, kSide);
    PixelCanvas canvas = pixels.Canvas(kClip);
    for (int i = 0; i < 20000; ++i) {
        const PixelPoint path[] = {{any(), any()}, {any(), any()}, {any(), any()}, {any(), any()}};
        canvas.HairLine(static_cast<float>(path[0].x), static_cast<float>(path[0].y),
                        static_cast<float>(path[1].x), static_cast<float>(path[1].y), kInk);
        canvas.SmoothPath(path, 3, kInk);
        canvas.HairPath(path, kInk);
        canvas.FillArea(path, kInk, 40);
        canvas.Disc(path[0].x, path[0].y, 5, kInk);
        canvas.Square(path[0].x, path[0].y, 5, kInk);
        canvas.Dot(static_cast<float>(path[0].x), static_cast<float>(path[0].y), kInk);
    }
    for (int i = 0; i < kSide; ++i) {
        EXPECT_TRUE(pixels.IsPaper(i, kClip.top - 1) && pixels.IsPaper(i, kClip.bottom) &&
                    pixels.IsPaper(kClip.left - 1, i) && pixels.IsPaper(kClip.right, i));
    }
    PixelCanvas nothing = pixels.Canvas({5, 5, 5, 5});
    nothing.HairLine(0, 0, 60, 60, kInk);
    nothing.SmoothLine({0, 0}, {60, 60}, 2, kInk);
}
