// Placement of dialogs, without windows.
#include <gtest/gtest.h>
#include <vector>

#include "tests/support/PrintRects.h"
#include "tests/support/Rows.h"
#include "workspacecore/dialogs/DialogPlaces.h"
#include "workspacecore/dialogs/DialogState.h"

namespace Orvane::Workspace {

void PrintTo(const ScreenInsets& i, std::ostream* pOut) {
    *pOut << "left " << i.left << " top " << i.top << " right " << i.right << " bottom "
          << i.bottom;
}

namespace {

constexpr CSize kScreen(1920, 1080);
constexpr CSize kReach(30, 30);

TEST(DialogPlaces, ATaskBarIsToldFromItsCorner) {
    const Rows<const char*, CRect, ScreenInsets> cases = {
        {"none", {}, {}},
        {"of no width", {0, 0, 0, 1080}, {}},
        {"along the bottom", {0, 1040, 1920, 1080}, {0, 0, 0, 40}},
        {"on the right", {1860, 0, 1920, 1080}, {0, 0, 60, 0}},
        {"on the right, beginning above the screen", {1860, -2, 1922, 1082}, {0, 0, 62, 0}},
        {"on the left", {0, 0, 62, 1080}, {62, 0, 0, 0}},
        {"along the top", {0, 0, 1920, 40}, {0, 40, 0, 0}},
        {"along the top, wider than the screen", {-2, -2, 1922, 40}, {0, 42, 0, 0}},
        {"along the top, one short of the right", {0, 0, 1919, 40}, {1919, 0, 0, 0}},
        {"away from the corner", {1860, 30, 1920, 1080}, {60, 0, 0, 0}},
        {"away from the corner by one", {1, 1, 101, 61}, {100, 0, 0, 0}},
    };
    for (const auto& [what, bar, expected] : cases) {
        EXPECT_EQ(InsetsOfTaskBar(bar, kScreen.cx), expected) << what;
    }
}

CPoint AtScreen(CPoint place, CSize size, const ScreenInsets& insets, CSize reach = kReach) {
    SnapStep step(place, size, reach);
    step.ToScreen(kScreen, insets);
    return step.Place();
}

TEST(DialogPlaces, EdgesOfTheScreenAttractUpToTheirBorder) {
    constexpr CSize size(400, 300);
    const ScreenInsets none;
    const ScreenInsets left{60, 0, 0, 0};
    const ScreenInsets top{0, 40, 0, 0};
    const ScreenInsets right{0, 0, 60, 0};
    const ScreenInsets bottom{0, 0, 0, 40};
    const Rows<const char*, ScreenInsets, CPoint, CPoint> cases = {
        {"left, inside", none, {30, 500}, {0, 500}},
        {"left, too far inside", none, {31, 500}, {31, 500}},
        {"left, outside", none, {-30, 500}, {0, 500}},
        {"left bar, inside", left, {90, 500}, {60, 500}},
        {"left bar, outside", left, {30, 500}, {60, 500}},
        {"top, inside", none, {500, 30}, {500, 0}},
        {"top, outside", none, {500, -30}, {500, 0}},
        {"top bar, inside", top, {500, 70}, {500, 40}},
        {"top bar, anywhere on it", top, {500, 5}, {500, 40}},
        {"top bar, outside", top, {500, -30}, {500, 40}},
        {"top bar, too far outside", top, {500, -31}, {500, -31}},
        {"right, inside", none, {1490, 500}, {1520, 500}},
        {"right, too far inside", none, {1489, 500}, {1489, 500}},
        {"right, outside", none, {1550, 500}, {1520, 500}},
        {"right bar, inside", right, {1430, 500}, {1460, 500}},
        {"right bar, the screen's edge is none", right, {1520, 500}, {1520, 500}},
        {"bottom, inside", none, {500, 750}, {500, 780}},
        {"bottom, too far inside", none, {500, 749}, {500, 749}},
        {"bottom, outside", none, {500, 810}, {500, 780}},
        {"bottom bar, inside", bottom, {500, 710}, {500, 740}},
        {"bottom bar, the screen's edge is none", bottom, {500, 780}, {500, 780}},
        {"a corner", bottom, {1501, 755}, {1520, 740}},
    };
    for (const auto& [what, insets, place, expected] : cases) {
        EXPECT_EQ(AtScreen(place, size, insets), expected) << what;
    }
}

TEST(DialogPlaces, TheReachIsOneAcrossAndOneDown) {
    EXPECT_EQ(AtScreen({20, 20}, {400, 300}, {}, {10, 25}), CPoint(20, 0));
    EXPECT_EQ(AtScreen({20, 20}, {400, 300}, {}, {25, 10}), CPoint(0, 20));
    EXPECT_EQ(AtScreen({0, 1}, {400, 300}, {}, {0, 0}), CPoint(0, 1)) << "no reach, no way";
    EXPECT_EQ(AtScreen({-5, 5}, {400, 300}, {}, {-1, -1}), CPoint(-5, 5)) << "less than none";
}

TEST(DialogPlaces, AnEdgeStartsFromWhatTheOneBeforeMade) {
    // Nearly as large as the screen: left and top apply first, then right and bottom.
    EXPECT_EQ(AtScreen({10, 10}, {1920, 1080}, {}), CPoint(0, 0));
    EXPECT_EQ(AtScreen({10, 10}, {1900, 1060}, {}), CPoint(20, 20));
    EXPECT_EQ(AtScreen({45, 45}, {1900, 1060}, {}), CPoint(20, 20));
    EXPECT_EQ(AtScreen({10, 10}, {1980, 1140}, {}), CPoint(0, 0)) << "larger than the screen";
}

CPoint AtDialogs(CPoint place, CSize size, const std::vector<CRect>& others, CSize reach = kReach) {
    SnapStep step(place, size, reach);
    for (const CRect& other : others) {
        step.ToDialog(other);
    }
    return step.Place();
}

TEST(DialogPlaces, FourPlacesAtAnotherDialog) {
    constexpr CSize size(200, 100);
    constexpr CRect other(600, 400, 900, 650);
    const Rows<const char*, CPoint, CPoint> cases = {
        {"above", {600, 300}, {600, 300}},
        {"above, borders", {570, 270}, {600, 300}},
        {"above, other borders", {630, 330}, {600, 300}},
        {"above, too far left", {569, 300}, {569, 300}},
        {"above, too high", {600, 269}, {600, 269}},
        {"below, borders", {570, 620}, {600, 650}},
        {"below, other borders", {630, 680}, {600, 650}},
        {"below, too high", {600, 619}, {600, 619}},
        {"to the left, borders", {370, 370}, {400, 400}},
        {"to the left, other borders", {430, 430}, {400, 400}},
        {"to the left, too far", {369, 400}, {369, 400}},
        {"to the right, borders", {870, 370}, {900, 400}},
        {"to the right, other borders", {930, 430}, {900, 400}},
        {"to the right, too low", {900, 431}, {900, 431}},
        {"bottom edges do not attract", {900, 550}, {900, 550}},
        {"right edges do not attract", {700, 650}, {700, 650}},
        {"on it", {600, 400}, {600, 400}},
    };
    for (const auto& [what, place, expected] : cases) {
        EXPECT_EQ(AtDialogs(place, size, {other}), expected) << what;
    }
    EXPECT_EQ(AtDialogs({605, 671}, size, {other}, {5, 21}), CPoint(600, 650));
    EXPECT_EQ(AtDialogs({606, 671}, size, {other}, {5, 21}), CPoint(606, 671));
    EXPECT_EQ(AtDialogs({605, 672}, size, {other}, {5, 21}), CPoint(605, 672));
}

TEST(DialogPlaces, ALowOneIsDrawnOnFromTopToBottomAndAside) {
    // Each check starts from the result of the previous one.
    constexpr CRect low(600, 400, 900, 420);
    EXPECT_EQ(AtDialogs({610, 395}, {200, 10}, {low}), CPoint(600, 420))
        << "above it first, and from there below";
    constexpr CRect narrow(600, 400, 620, 420);
    EXPECT_EQ(AtDialogs({610, 395}, {10, 10}, {narrow}), CPoint(620, 400)) << "from below beside";
}

TEST(DialogPlaces, ALaterDialogOverrulesAnEarlierOne) {
    constexpr CSize size(200, 100);
    constexpr CRect first(600, 400, 900, 650);
    constexpr CRect second(590, 770, 800, 900);
    EXPECT_EQ(AtDialogs({610, 660}, size, {first}), CPoint(600, 650));
    EXPECT_EQ(AtDialogs({610, 660}, size, {first, second}), CPoint(590, 670));
    EXPECT_EQ(AtDialogs({610, 660}, size, {second, first}), CPoint(600, 650));
    // The first one moves it into the reach of another that was too far away before.
    constexpr CRect third(575, 770, 800, 900);
    EXPECT_EQ(AtDialogs({610, 660}, size, {third}), CPoint(610, 660));
    EXPECT_EQ(AtDialogs({610, 660}, size, {first, third}), CPoint(575, 670));
}

CDialogState State(int left, int top, int width, int height) {
    CDialogState state;
    state.SetLeft(left);
    state.SetTop(top);
    state.SetWidth(width);
    state.SetHeight(height);
    return state;
}

TEST(DialogPlaces, WhichPlacesAreTakenAgain) {
    constexpr CSize monitor(1280, 1024);
    const Rows<const char*, CDialogState, bool> cases = {
        {"never placed", State(0, 0, 0, 0), false},
        {"in the corner", State(0, 0, 200, 100), true},
        {"a height alone", State(0, 0, 0, 1), true},
        {"left of the limit", State(1279, 0, 200, 100), true},
        {"at the limit across", State(1280, 0, 200, 100), false},
        {"above the limit", State(0, 1023, 200, 100), true},
        {"at the limit down", State(0, 1024, 200, 100), false},
        {"far to the left and above", State(-5000, -5000, 200, 100), true},
        {"a size below nothing", State(5, 5, -1, -1), true},
        {"far to the right", State(2147483647, 0, 1, 1), false},
    };
    for (const auto& [what, state, expected] : cases) {
        EXPECT_EQ(IsRestorable(state, enmDialogSizable, monitor), expected) << what;
    }
    std::vector<int> types;
    for (const int type : {0, 1, 2, 3, 4, 8, 12, 16, 32, 64}) {
        if (IsRestorable(State(5, 5, 5, 5), static_cast<enmDialogType>(type), monitor)) {
            types.push_back(type);
        }
    }
    EXPECT_EQ(types, (std::vector{1, 2, 4, 8}));
}

TEST(DialogPlaces, TheCascadeFillsColumnsFromTheRight) {
    DialogCascade cascade{0, 1920};
    const CSize size(400, 300);
    // Where there is no room for another column the last one is taken from the right again.
    for (const int column : {1520, 1120, 720, 320, 1520}) {
        for (const int row : {0, 301, 602}) {
            EXPECT_EQ(cascade.Next(size, kScreen, 1920), CPoint(column, row));
        }
    }
}

TEST(DialogPlaces, TheCascadeWithDialogsOfManySizes) {
    const Rows<const char*, DialogCascade, CSize, int, CPoint, int> cases = {
        {"just fits", {680, 1000}, {400, 300}, 1920, {1000, 680}, 981},
        {"one too high", {681, 1000}, {400, 300}, 1920, {600, 0}, 301},
        {"higher than the screen", {0, 1000}, {400, 1200}, 1920, {600, 0}, 1201},
        {"a column at the very left", {900, 400}, {400, 300}, 1920, {0, 0}, 301},
        {"a column beyond it", {900, 399}, {400, 300}, 1920, {1520, 0}, 301},
        {"measured by the monitor under the cursor", {900, 399}, {400, 300}, 1280, {880, 0}, 301},
        {"wider than the screen", {0, 0}, {2000, 300}, 1920, {-80, 0}, 301},
        {"wider than the screen, in a new column", {900, 0}, {2000, 300}, 1920, {-80, 0}, 301},
    };
    for (const auto& [what, before, size, monitor, place, top] : cases) {
        DialogCascade cascade = before;
        EXPECT_EQ(cascade.Next(size, kScreen, monitor), place) << what;
        EXPECT_EQ(cascade.top, top) << what;
        EXPECT_EQ(cascade.left, place.x) << what;
    }
}

TEST(DialogPlaces, RollingUpGoesByStepsToTheCaption) {
    EXPECT_EQ(CollapseHeights(200, 23), (std::vector{200, 155, 110, 65, 23}));
    EXPECT_EQ(CollapseHeights(203, 23), (std::vector{203, 158, 113, 68, 23}));
    EXPECT_EQ(CollapseHeights(24, 23), (std::vector{24, 23}));
    EXPECT_EQ(CollapseHeights(23, 23), (std::vector{23}));
    EXPECT_EQ(CollapseHeights(10, 23), (std::vector{23}));
}

TEST(DialogPlaces, RollingDownStartsWithTheTop) {
    EXPECT_EQ(ExpandHeights(23, 0, 200), (std::vector{23, 68, 113, 158, 200}));
    EXPECT_EQ(ExpandHeights(23, 100, 200), (std::vector{123, 168, 200}));
    EXPECT_EQ(ExpandHeights(23, 42, 200), (std::vector{65, 110, 155, 200}))
        << "a step at the height itself is the last one";
    EXPECT_EQ(ExpandHeights(23, 177, 200), (std::vector{200})) << "low on the screen, at once";
    EXPECT_EQ(ExpandHeights(23, 900, 200), (std::vector{200}));
    EXPECT_EQ(ExpandHeights(23, -100, 100), (std::vector{-77, -32, 13, 58, 100}))
        << "on a monitor above";
}

} // namespace
} // namespace Orvane::Workspace
