#include "host/desktop/view/DrawingScene.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <random>

#include "tests/host/desktop/ViewDrawing.h"

using namespace Tessaly;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

struct Seen {
    ShapeKind kind;
    int colorIndex;
    bool isVisible;
    friend bool operator==(const Seen&, const Seen&) = default;
};
using SeenById = std::map<std::uint32_t, Seen>;

/// The expected content, from the database.
SeenById Expected(const AcDbDatabase& database) {
    SeenById seen;
    EntityShape shape;
    database.forEachEntity([&](const AcDbEntity& entity) {
        const auto* const pLayer =
            dynamic_cast<const AcDbLayerTableRecord*>(database.peek(entity.layerId()));
        if (ReadShape(entity, shape)) {
            const bool byLayer = entity.colorIndex() == kColorByLayer;
            seen[entity.objectId().number()] = {
                shape.kind, byLayer ? pLayer->colorIndex() : entity.colorIndex(), !pLayer->isOff()};
        }
    });
    return seen;
}

void ExpectPlaces(const DrawingScene& scene, AcDbObjectId id, std::span<const FloatPoint> places) {
    EntityShape shape;
    ASSERT_TRUE(scene.Shape(id, shape));
    ASSERT_EQ(places.size(), shape.places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        const FloatPoint exact = scene.Relative(shape.places[i]);
        EXPECT_TRUE(places[i].x == exact.x || (std::isnan(places[i].x) && std::isnan(exact.x)));
        EXPECT_TRUE(places[i].y == exact.y || (std::isnan(places[i].y) && std::isnan(exact.y)));
    }
}

/// The scene's content; also checks that each item is found by its id and inside its block.
SeenById Actual(const DrawingScene& scene) {
    SeenById seen;
    for (std::size_t kind = 0; kind < kShapeKinds; ++kind) {
        const ItemStore& items = scene.Items(static_cast<ShapeKind>(kind));
        for (std::uint32_t item = 0; item < items.Count(); ++item) {
            if (!items.IsAlive(item)) {
                continue;
            }
            const AcDbObjectId id(items.Id(item));
            const StyleLook look = scene.Looks()[items.Style(item)];
            EXPECT_TRUE(seen.try_emplace(id.number(), Seen{static_cast<ShapeKind>(kind),
                                                           look.colorIndex, look.isVisible})
                            .second)
                << "twice: " << id.number();
            const auto place = scene.Find(id);
            EXPECT_TRUE(place && place->item == item && place->kind == static_cast<ShapeKind>(kind))
                << id.number();
            EXPECT_TRUE(items.Block(item / ItemStore::kBlockSize).Holds(BoxOf(items.Places(item))));
            ExpectPlaces(scene, id, items.Places(item));
        }
    }
    return seen;
}

void ChangeSomething(AcDbDatabase& database, std::mt19937& random, AcDbObjectId layer) {
    std::vector<AcDbObjectId> ids;
    database.forEachEntity([&](const AcDbEntity& entity) { ids.push_back(entity.objectId()); });
    const AcDbObjectId id = ids.empty() ? AcDbObjectId() : ids[random() % ids.size()];
    AcDbEntity* pEntity = nullptr;
    switch (random() % 7) {
    case 0:
        AddMixture(database, random() % 40, 100, layer, static_cast<unsigned>(random()));
        return;
    case 1:
        SwitchOff(database, layer, random() % 2 == 0);
        return;
    case 2:
        AddLayer(database, L"colours", static_cast<int>(random() % 255) + 1);
        return;
    case 3:
        database.undo().undo();
        return;
    case 4:
        database.undo().redo();
        return;
    default:
        break;
    }
    if (acdbOpenObject(pEntity, id, AcDb::kForWrite, false, &database) != Acad::eOk) {
        return;
    }
    if (auto* const pLine = dynamic_cast<AcDbPolyline*>(pEntity)) {
        const Places places{{1, static_cast<double>(random() % 100)}, {kNan, 3}, {7, 8}};
        pLine->setVertices(places);
    }
    switch (random() % 4) {
    case 0:
        pEntity->erase();
        break;
    case 1:
        pEntity->setColorIndex(static_cast<int>(random() % 300));
        break;
    case 2:
        pEntity->setLayer(layer);
        break;
    default:
        pEntity->setAttribute(AcDbIntern("NAME"), "x");
    }
    pEntity->close();
}

} // namespace

TEST(DrawingScene, FollowsChangesUndoAndRedo) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        std::mt19937 random(seed);
        AcDbDatabase database;
        const AcDbObjectId layer = AddLayer(database, L"colours", 5);
        DrawingScene scene;
        scene.SetDatabase(&database);
        for (int i = 0; i < 200; ++i) {
            ChangeSomething(database, random, layer);
            if (random() % 3 == 0) {
                scene.Update();
                ASSERT_EQ(Actual(scene), Expected(database)) << "seed " << seed << " step " << i;
            }
        }
    }
}

TEST(DrawingScene, ArrangesItselfAnewAfterManyChanges) {
    AcDbDatabase database;
    DrawingScene scene;
    scene.SetDatabase(&database);
    scene.Update();
    AddMixture(database, 30000, 1000, {});
    scene.Update();
    EXPECT_EQ(Actual(scene), Expected(database));
    const ItemStore& lines = scene.Items(ShapeKind::Line);
    double area = 0;
    for (std::uint32_t block = 0; block < lines.BlockCount(); ++block) {
        const FloatBox& box = lines.Block(block);
        area += static_cast<double>(box.maxX - box.minX) * (box.maxY - box.minY);
    }
    // Blocks hold neighbours, so their total area is not much larger than the drawing.
    EXPECT_GT(lines.BlockCount(), 200U);
    EXPECT_LT(area, 20 * 1100.0 * 1100.0);

    database.undo().beginGroup(L"erase");
    std::vector<AcDbObjectId> ids;
    database.forEachEntity([&](const AcDbEntity& entity) { ids.push_back(entity.objectId()); });
    for (const AcDbObjectId id : ids) {
        EraseEntity(database, id);
    }
    database.undo().endGroup();
    scene.Update();
    EXPECT_EQ(scene.Items(ShapeKind::Line).Count(), 0U) << "frees the memory";
    EXPECT_TRUE(scene.Extents().isEmpty());
    database.undo().undo();
    scene.Update();
    EXPECT_EQ(Actual(scene), Expected(database));
}

TEST(DrawingScene, TellsOnceThatItIsStale) {
    AcDbDatabase database;
    DrawingScene scene;
    scene.SetDatabase(&database);
    scene.Update();
    int told = 0;
    scene.SetOnStale([&] { ++told; });
    AddMixture(database, 10, 100, {});
    EXPECT_EQ(told, 1);
    EXPECT_EQ(scene.Update(), SceneChange::Some);
    EXPECT_EQ(scene.Update(), SceneChange::None);
    database.dictionary(L"no matter of the view");
    EXPECT_EQ(told, 1);
}

TEST(DrawingScene, TakesAnotherDrawingAndNoneAtAll) {
    DrawingScene scene;
    EXPECT_EQ(scene.Update(), SceneChange::None);
    {
        AcDbDatabase database;
        AddMixture(database, 50, 100, {});
        scene.SetDatabase(&database);
        EXPECT_EQ(scene.Update(), SceneChange::Everything);
        database.beginLoading(10);
        scene.Update(); // a frame while reading
        auto point = std::make_unique<AcDbPoint>(AcGePoint3d{1, 2});
        database.load(AcDbObjectId(5), std::move(point));
        scene.Update();
        database.endLoading();
        EXPECT_EQ(scene.Update(), SceneChange::Everything);
        EXPECT_EQ(Actual(scene), Expected(database));

        AddMixture(database, 50, 100, {});
        scene.Update();
        database.beginLoading(4);
        database.cancelLoading(); // without any notification
        EXPECT_EQ(scene.Update(), SceneChange::Everything);
        EXPECT_TRUE(Actual(scene).empty());
        AddSpot(database, 1, 2);
        scene.Update();
    }
    EXPECT_EQ(scene.Database(), nullptr);
    EXPECT_EQ(scene.Update(), SceneChange::Everything);
    EXPECT_TRUE(scene.Extents().isEmpty());
    EXPECT_FALSE(scene.Find(AcDbObjectId(5)));
}

TEST(DrawingScene, PassesOverWhatHasNoPlace) {
    AcDbDatabase database;
    const double inf = std::numeric_limits<double>::infinity();
    const AcDbObjectId nowhere[] = {AddSpot(database, kNan, 1),
                                    AddSpot(database, 1, inf),
                                    AddSpot(database, 1e300, 1),
                                    AddLine(database, {}),
                                    AddLine(database, {{kNan, 1}, {1, -inf}}),
                                    AddSquare(database, kNan, 0, 10)};
    const AcDbObjectId broken = AddLine(database, {{1, 1}, {kNan, 2}, {3, 3}, {4, 4}});
    DrawingScene scene;
    scene.SetDatabase(&database);
    scene.Update();
    for (const AcDbObjectId id : nowhere) {
        EXPECT_FALSE(scene.Find(id)) << id.number();
    }
    EXPECT_EQ(scene.Items(ShapeKind::Line).Places(scene.Find(broken)->item).size(), 4U);
    const AcGeExtents2d extents = scene.Extents();
    EXPECT_EQ(extents.minX, 1);
    EXPECT_EQ(extents.maxX, 4);
}
