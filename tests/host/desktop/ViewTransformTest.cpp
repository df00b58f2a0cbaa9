#include "host/desktop/view/ViewTransform.h"
#include "tests/support/Rows.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace Tessaly;

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

ViewTransform Window(int width, int height) {
    ViewTransform view;
    view.Resize(width, height);
    return view;
}

bool IsSound(const ViewTransform& view) {
    const PlanePoint center = view.Center();
    return IsShowable(center.x, center.y) && view.UnitsPerPixel() > 0 &&
           std::isfinite(view.UnitsPerPixel());
}

} // namespace

TEST(ViewTransform, FitsBoxes) {
    const Rows<const char*, AcGeExtents2d, double, double, PlanePoint> cases = {
        {"wide", {0, 0, 400, 100}, 1, 2, {200, 50}},
        {"high", {0, 0, 100, 400}, 1, 4, {50, 200}},
        {"with margin", {0, 0, 400, 100}, 1.05, 2.1, {200, 50}},
        {"without width", {7, 0, 7, 200}, 1, 2, {7, 100}},
        {"without height", {0, 7, 200, 7}, 1, 1, {100, 7}},
        {"one point", {5, 6, 5, 6}, 1, 0.1, {5, 6}},
        {"one point, wider", {5, 6, 5, 6}, 3, 0.3, {5, 6}},
        {"far away", {1e15, 1e15, 1e15 + 200, 1e15 + 100}, 1, 1, {1e15 + 100, 1e15 + 50}},
        {"the widest", {-1e18, -1e18, 1e18, 1e18}, 1, 2e16, {0, 0}},
        {"smaller than can be told apart", {0, 0, 1e-12, 1e-12}, 1, 1e-9, {5e-13, 5e-13}},
    };
    for (const auto& [what, box, factor, unitsPerPixel, center] : cases) {
        ViewTransform view = Window(200, 100);
        EXPECT_TRUE(view.Fit(box, factor, 10)) << what;
        EXPECT_NEAR(view.UnitsPerPixel(), unitsPerPixel, unitsPerPixel * 1e-9) << what;
        EXPECT_EQ(view.Center().x, center.x) << what;
        EXPECT_EQ(view.Center().y, center.y) << what;
    }
}

TEST(ViewTransform, StaysWhereABoxCannotBeShown) {
    const AcGeExtents2d boxes[] = {{},
                                   {kNan, 0, 1, 1},
                                   {0, 0, kNan, 1},
                                   {0, 0, kInf, 1},
                                   {-kInf, -kInf, kInf, kInf},
                                   {0, 0, 1e19, 1},
                                   {2, 0, 1, 1}};
    ViewTransform view = Window(200, 100);
    const ViewTransform before = view;
    for (const AcGeExtents2d& box : boxes) {
        EXPECT_FALSE(view.Fit(box, 1, 10)) << box.minX << ' ' << box.maxX;
        EXPECT_TRUE(view == before);
    }
    EXPECT_FALSE(view.Fit({0, 0, 1, 1}, 0, 10));
    EXPECT_FALSE(view.Fit({0, 0, 1, 1}, kNan, 10));
}

TEST(ViewTransform, KeepsWhatIsUnderTheCursor) {
    for (const double place : {0.0, 12.5, 2.6e6, -1e12}) {
        for (const double factor : {1.25, 0.8, 17.0, 1e-3}) {
            ViewTransform view = Window(1600, 1000);
            ASSERT_TRUE(view.Fit({place, place, place + 5e4, place + 3e4}, 1, 10));
            const PixelPoint cursor{317, 888};
            const PlanePoint fixed = view.ToDrawing(cursor);
            view.ZoomAt(cursor, factor);
            const PixelPoint after = view.ToPixel(fixed.x, fixed.y);
            EXPECT_NEAR(after.x, cursor.x, 0.01) << place << ' ' << factor;
            EXPECT_NEAR(after.y, cursor.y, 0.01) << place << ' ' << factor;
        }
    }
}

TEST(ViewTransform, TellsNeighbouringPixelsApartAtEveryDepth) {
    for (const double place : {0.0, 1.0, 5e6, 1e15, 1e18}) {
        ViewTransform view = Window(200, 100);
        view.Fit({place, place, place, place}, 1, 1);
        for (int i = 0; i < 400; ++i) {
            view.ZoomAt({150, 20}, 2);
        }
        const PlanePoint here = view.ToDrawing({100, 50});
        const PlanePoint beside = view.ToDrawing({101, 51});
        EXPECT_LT(here.x, beside.x) << place;
        EXPECT_GT(here.y, beside.y) << place;
    }
}

TEST(ViewTransform, SurvivesWhateverIsAskedOfIt) {
    const double odd[] = {0, 1, -1, 1e300, -1e300, 1e-300, kInf, -kInf, kNan, 1e18, 3.7};
    std::mt19937 random(3);
    const auto any = [&] { return odd[random() % std::size(odd)]; };
    ViewTransform view = Window(200, 100);
    for (int i = 0; i < 20000; ++i) {
        switch (random() % 4) {
        case 0:
            view.Pan(any(), any());
            break;
        case 1:
            view.ZoomAt({any(), any()}, any());
            break;
        case 2:
            view.Fit({any(), any(), any(), any()}, any(), any());
            break;
        default:
            view.Resize(static_cast<int>(random() % 3000) - 100, 50);
        }
        ASSERT_TRUE(IsSound(view)) << "step " << i;
    }
}
