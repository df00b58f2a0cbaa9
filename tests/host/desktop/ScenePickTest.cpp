#include "host/desktop/view/ScenePick.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "host/desktop/view/PathMeasure.h"
#include "tests/host/desktop/ViewDrawing.h"

using namespace Tessaly;

namespace {

constexpr double kSize = 1000;

/// A drawing with a hidden layer, and its scene.
struct Picked {
    explicit Picked(std::size_t count, unsigned seed = 1) {
        hidden = AddLayer(database, L"hidden", 1);
        AddMixture(database, count, kSize, hidden, seed);
        SwitchOff(database, hidden);
        scene.SetDatabase(&database);
        scene.Update();
    }
    AcDbDatabase database;
    AcDbObjectId hidden;
    DrawingScene scene;
};

/// The expected result, by a linear search.
AcDbObjectId PlainNearest(const Picked& picked, const PlanePoint& place, double tolerance) {
    AcDbObjectId spot;
    AcDbObjectId line;
    AcDbObjectId area;
    double spotDistance = tolerance;
    double lineDistance = tolerance;
    EntityShape shape;
    picked.database.forEachEntity([&](const AcDbEntity& entity) {
        if (entity.layerId() == picked.hidden || !ReadShape(entity, shape)) {
            return;
        }
        const bool isSpot = shape.kind == ShapeKind::Point || shape.kind == ShapeKind::Text;
        double& nearest = isSpot ? spotDistance : lineDistance;
        const double distance = DistanceToPath(shape.places, place);
        if (distance <= nearest) {
            nearest = distance;
            (isSpot ? spot : line) = entity.objectId();
        }
        if (shape.kind == ShapeKind::Area && IsInsideRings(shape.places, place)) {
            area = entity.objectId();
        }
    });
    return !spot.isNull() ? spot : !line.isNull() ? line : area;
}

std::vector<AcDbObjectId> PlainInBox(const Picked& picked, const AcGeExtents2d& box, BoxPick mode) {
    std::vector<AcDbObjectId> ids;
    EntityShape shape;
    picked.database.forEachEntity([&](const AcDbEntity& entity) {
        if (entity.layerId() == picked.hidden || !ReadShape(entity, shape)) {
            return;
        }
        const bool isIn =
            mode == BoxPick::Whole
                ? IsPathInBox(shape.places, box)
                : PathMeetsBox(shape.places, box) ||
                      (shape.kind == ShapeKind::Area &&
                       IsInsideRings(shape.places, {(box.minX + box.maxX) / 2, box.minY}));
        if (isIn) {
            ids.push_back(entity.objectId());
        }
    });
    return ids;
}

} // namespace

TEST(PathMeasure, MeasuresDistances) {
    const std::vector<PlanePoint> line{{0, 0}, {10, 0}, kPenUp, {10, 10}};
    struct Case {
        PlanePoint place;
        double distance;
    };
    for (const Case& test : {Case{{5, 3}, 3}, Case{{-3, 4}, 5}, Case{{13, -4}, 5}, Case{{10, 9}, 1},
                             Case{{10, 6}, 4}, Case{{10, 0}, 0}}) {
        EXPECT_DOUBLE_EQ(DistanceToPath(line, test.place), test.distance)
            << test.place.x << ' ' << test.place.y;
    }
    EXPECT_EQ(DistanceToPath({}, {0, 0}), std::numeric_limits<double>::infinity());
}

TEST(PathMeasure, TellsWhatMeetsABox) {
    const AcGeExtents2d box{0, 0, 10, 10};
    struct Case {
        const char* what;
        std::vector<PlanePoint> path;
        bool meets;
        bool isIn;
    };
    const Case cases[] = {
        {"inside", {{1, 1}, {9, 9}}, true, true},
        {"on the border", {{0, 0}, {10, 0}}, true, true},
        {"through", {{-5, 5}, {15, 5}}, true, false},
        {"past a corner", {{-5, 8}, {8, 21}}, false, false},
        {"through a corner", {{-2, 9}, {2, 13}}, false, false},
        {"cut by a corner", {{-2, 7}, {3, 12}}, true, false},
        {"beside", {{11, 0}, {11, 10}}, false, false},
        {"around, with a gap", {{-1, 5}, kPenUp, {11, 5}}, false, false},
        {"nothing", {}, false, true},
    };
    for (const Case& test : cases) {
        EXPECT_EQ(PathMeetsBox(test.path, box), test.meets) << test.what;
        EXPECT_EQ(IsPathInBox(test.path, box), test.isIn) << test.what;
    }
}

TEST(ScenePick, FindsWhatAPlainSearchFinds) {
    const Picked picked(3000);
    std::mt19937 random(5);
    std::uniform_real_distribution<double> at(-kSize / 10, kSize * 1.1);
    int hits = 0;
    for (int i = 0; i < 3000; ++i) {
        const PlanePoint place{at(random), at(random)};
        const double tolerance = i % 3 == 0 ? 0.5 : i % 3 == 1 ? 5 : kSize;
        const AcDbObjectId expected = PlainNearest(picked, place, tolerance);
        ASSERT_EQ(PickNearest(picked.scene, place, tolerance), expected)
            << place.x << ' ' << place.y << ' ' << tolerance;
        hits += !expected.isNull();
    }
    EXPECT_GT(hits, 1500);
}

TEST(ScenePick, SelectsInBoxesWhatAPlainSearchSelects) {
    const Picked picked(3000, 9);
    std::mt19937 random(6);
    std::uniform_real_distribution<double> at(-kSize / 10, kSize * 1.1);
    std::uniform_real_distribution<double> size(0, kSize / 2);
    for (int i = 0; i < 300; ++i) {
        AcGeExtents2d box;
        const AcGePoint3d corner{at(random), at(random)};
        box.add(corner);
        box.add({corner.x + size(random), corner.y + size(random)});
        for (const BoxPick mode : {BoxPick::Whole, BoxPick::Any}) {
            ASSERT_EQ(PickInBox(picked.scene, box, mode), PlainInBox(picked, box, mode)) << i;
        }
    }
    EXPECT_TRUE(PickInBox(picked.scene, {}, BoxPick::Any).empty());
}

TEST(ScenePick, PrefersTheNodeAtTheEndOfALineAndTheLineOverItsArea) {
    AcDbDatabase database;
    const AcDbObjectId node = AddSpot(database, 0, 0);
    const AcDbObjectId line = AddLine(database, {{0, 0}, {100, 0}});
    const AcDbObjectId area = AddSquare(database, -50, -50, 200, 40);
    DrawingScene scene;
    scene.SetDatabase(&database);
    scene.Update();
    EXPECT_EQ(PickNearest(scene, {1, 0.1}, 5), node);
    EXPECT_EQ(PickNearest(scene, {20, 0.1}, 5), line);
    EXPECT_EQ(PickNearest(scene, {20, 10}, 5), area);
    EXPECT_EQ(PickNearest(scene, {50, 50}, 5), AcDbObjectId()) << "in the hole";
    EXPECT_EQ(PickNearest(scene, {std::numeric_limits<double>::quiet_NaN(), 0}, 5), AcDbObjectId());
}

TEST(ScenePick, KeepsItsDigitsFarFromTheRest) {
    AcDbDatabase database;
    AddMixture(database, 100, kSize, {});
    const double far = 1e9;
    const AcDbObjectId first = AddLine(database, {{far, far}, {far + 1, far}});
    const AcDbObjectId second = AddLine(database, {{far, far + 0.01}, {far + 1, far + 0.01}});
    DrawingScene scene;
    scene.SetDatabase(&database);
    scene.Update();
    EXPECT_EQ(PickNearest(scene, {far + 0.5, far + 0.002}, 0.005), first);
    EXPECT_EQ(PickNearest(scene, {far + 0.5, far + 0.009}, 0.005), second);
    EXPECT_EQ(PickInBox(scene, {far - 1, far + 0.005, far + 2, far + 1}, BoxPick::Any),
              std::vector{second});
}
