#include "platform/arx/DbDatabase.h"

#include <functional>

#include <gtest/gtest.h>

#include "tests/platform/DbDrawing.h"

namespace {

using Ids = std::vector<AcDbObjectId>;

Ids Unsaved(const AcDbDatabase& database) {
    return Ids(database.unsavedObjects().begin(), database.unsavedObjects().end());
}

Ids EntitiesOf(const AcDbDatabase& database, AcDbObjectId block) {
    const auto ids = dynamic_cast<const AcDbBlockTableRecord&>(*database.peek(block)).entityIds();
    return Ids(ids.begin(), ids.end());
}

/// Records its calls, as "+3 ~3 -3 ^3 *": appended, modified, erased, restored, replaced.
class Witness : public AcDbDatabaseReactor {
public:
    void objectAppended(const AcDbDatabase*, const AcDbObject* pObject) override {
        Note('+', pObject);
    }
    void objectModified(const AcDbDatabase*, const AcDbObject* pObject) override {
        Note('~', pObject);
    }
    void objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool bErased) override {
        Note(bErased ? '-' : '^', pObject);
    }
    void databaseReplaced(const AcDbDatabase*) override { m_heard += "* "; }
    std::string Take() { return std::exchange(m_heard, {}); }

    std::function<void()> onEvent;

private:
    void Note(char what, const AcDbObject* pObject) {
        m_heard += what + std::to_string(pObject->objectId().number()) + ' ';
        if (onEvent) {
            onEvent();
        }
    }
    std::string m_heard;
};

} // namespace

TEST(Database, StartsWithLayerZeroAndTheModelSpace) {
    const AcDbDatabase database;
    EXPECT_EQ(database.layers(), Ids{database.findLayer(L"0")});
    EXPECT_EQ(database.blocks(), Ids{database.findBlock(L"*MODEL_space")});
    EXPECT_EQ(database.modelSpace(), database.findBlock(kModelSpace));
    EXPECT_TRUE(database.dictionaries().empty());
    EXPECT_FALSE(database.isModified());
}

TEST(Database, FindsLayersAndBlocksIgnoringCaseButNotDictionaries) {
    AcDbDatabase database;
    const AcDbObjectId layer = database.layer(L"Straße Ä");
    EXPECT_EQ(database.layer(L"STRAßE ä"), layer);
    EXPECT_EQ(database.findLayer(L"straße Ä"), layer);
    EXPECT_EQ(dynamic_cast<const AcDbLayerTableRecord&>(*database.peek(layer)).getName(),
              L"Straße Ä");
    EXPECT_EQ(database.block(L"Valve"), database.block(L"VALVE"));
    EXPECT_NE(database.dictionary(L"Records"), database.dictionary(L"records"));
    EXPECT_TRUE(database.findLayer(L"none").isNull());
    EXPECT_TRUE(database.findBlock(L"none").isNull());
    EXPECT_TRUE(database.findDictionary(L"RECORDS").isNull());
}

TEST(Database, ARestoredDictionaryIsEmpty) {
    AcDbDatabase database;
    const AcDbObjectId id = database.dictionary(L"d");
    SetRecord(database, id, L"r", L"text");
    Erase(database, id);
    database.dictionary(L"d");
    EXPECT_TRUE(dynamic_cast<const AcDbDictionary&>(*database.peek(id)).records().empty());
    EXPECT_TRUE(database.undo().undo());
    EXPECT_TRUE(database.undo().undo()); // the erasure
    EXPECT_EQ(PartsOf(database)[std::to_string(id.number()) + " record r"], "text");
}

TEST(Database, RefusesUnknownLayersAndBlocks) {
    AcDbDatabase database;
    const AcDbObjectId gone = database.layer(L"gone");
    const AcDbObjectId goneBlock = database.block(L"gone");
    const AcDbObjectId point = AddPoint(database, 1);
    Erase(database, gone);
    Erase(database, goneBlock);
    const std::uint32_t next = database.nextId();
    for (const AcDbObjectId bad : {gone, point, AcDbObjectId(999), database.modelSpace()}) {
        EXPECT_THROW(AddPoint(database, 1, bad), std::logic_error);
    }
    for (const AcDbObjectId bad : {goneBlock, point, AcDbObjectId(999)}) {
        EXPECT_THROW(database.appendEntity(std::make_unique<AcDbPoint>(), bad), std::logic_error);
    }
    EXPECT_THROW(database.appendEntity(nullptr), std::logic_error);
    Change<AcDbPoint>(database, point, [&](AcDbPoint& entity) {
        EXPECT_THROW(entity.setLayer(gone), std::logic_error);
    });
    EXPECT_EQ(database.nextId(), next);
    EXPECT_EQ(EntitiesOf(database, database.modelSpace()), Ids{point});
}

TEST(Database, RefusesToEraseWhatOthersDependOn) {
    AcDbDatabase database;
    const AcDbObjectId layer = database.layer(L"Sewer");
    const AcDbObjectId block = database.block(L"Valve");
    auto entity = std::make_unique<AcDbPoint>();
    entity->setLayer(layer);
    const AcDbObjectId point = database.appendEntity(std::move(entity), block);
    for (const AcDbObjectId id : {layer, block, database.findLayer(L"0"), database.modelSpace()}) {
        EXPECT_EQ(Erase(database, id), Acad::eInvalidInput) << id.number();
        EXPECT_FALSE(database.peek(id)->isErased());
    }
    EXPECT_EQ(Erase(database, point), Acad::eOk);
    EXPECT_EQ(Erase(database, layer), Acad::eOk);
    EXPECT_EQ(Erase(database, block), Acad::eOk);
    EXPECT_EQ(Erase(database, point, false), Acad::eInvalidInput); // its layer or block is erased
    Erase(database, layer, false);
    EXPECT_EQ(Erase(database, point, false), Acad::eInvalidInput);
    Erase(database, block, false);
    EXPECT_EQ(Erase(database, point, false), Acad::eOk);
}

TEST(Database, DoesNotVisitEntitiesAddedMeanwhile) {
    AcDbDatabase database;
    AddPoint(database, 1);
    AddPoint(database, 2);
    int visited = 0;
    database.forEachEntity([&](const AcDbEntity& entity) {
        ++visited;
        for (int i = 0; i < 100; ++i) {
            AddPoint(database, entity.extents().minX);
        }
    });
    EXPECT_EQ(visited, 2);
    EXPECT_EQ(database.entityCount(), 202U);
}

TEST(UnsavedObjects, AreListedOnceInTheOrderOfTheirFirstChange) {
    AcDbDatabase database;
    const AcDbObjectId a = AddPoint(database, 1);
    const AcDbObjectId b = AddPoint(database, 2);
    EXPECT_EQ(Unsaved(database), (Ids{a, b}));
    database.markSaved();
    EXPECT_FALSE(database.isModified());

    Change<AcDbObject>(database, b, [](AcDbObject&) {}); // opened but not changed
    EXPECT_FALSE(database.isModified());
    MovePoint(database, b, 3);
    SetAttribute(database, a, "a", 1);
    Erase(database, b);
    EXPECT_EQ(Unsaved(database), (Ids{b, a}));
    EXPECT_FALSE(database.isHeaderUnsaved());
    database.markSaved();
    database.undo().undo();
    EXPECT_EQ(Unsaved(database), Ids{b});
}

TEST(UnsavedObjects, DoNotIncludeTheHeader) {
    AcDbDatabase database;
    database.setCoordinateSystem(L"");
    EXPECT_FALSE(database.isModified());
    database.setCoordinateSystem(L"EPSG:25833");
    EXPECT_TRUE(database.isHeaderUnsaved());
    EXPECT_TRUE(database.isModified());
    EXPECT_TRUE(Unsaved(database).empty());
    database.markSaved();
    EXPECT_TRUE(database.undo().undo());
    EXPECT_EQ(database.coordinateSystem(), L"");
    EXPECT_TRUE(database.isHeaderUnsaved());
}

TEST(Loading, KeepsIdsAndLeavesNothingUnsavedOrUndoable) {
    AcDbDatabase database;
    AddPoint(database, 100);
    Witness witness;
    database.addReactor(&witness);
    database.beginLoading(20);
    auto late = std::make_unique<AcDbPoint>(AcGePoint3d{9, 0, 0});
    late->setLayer(AcDbObjectId(7));
    database.load(AcDbObjectId(19), std::move(late), AcDbObjectId(5));
    database.load(AcDbObjectId(12), std::make_unique<AcDbPoint>(AcGePoint3d{8, 0, 0}),
                  AcDbObjectId(5));
    database.load(AcDbObjectId(5), std::make_unique<AcDbBlockTableRecord>(kModelSpace));
    database.load(AcDbObjectId(6), std::make_unique<AcDbLayerTableRecord>(L"0"));
    database.load(AcDbObjectId(7), std::make_unique<AcDbLayerTableRecord>(L"Sewer"));
    database.setCoordinateSystem(L"wkt");
    Change<AcDbLayerTableRecord>(database, AcDbObjectId(7),
                                 [](AcDbLayerTableRecord& layer) { layer.setColorIndex(4); });
    const AcDbObjectId foreign = database.layer(L"foreign table");
    auto plain = std::make_unique<AcDbPoint>(AcGePoint3d{7, 0, 0});
    plain->setLayer(foreign);
    const AcDbObjectId added = database.appendEntity(std::move(plain));
    EXPECT_FALSE(database.undo().undo());
    database.endLoading();

    EXPECT_EQ(witness.Take(), "* ");
    EXPECT_FALSE(database.isModified());
    EXPECT_EQ(database.undo().undoName(), nullptr);
    EXPECT_EQ(database.modelSpace(), AcDbObjectId(5));
    EXPECT_EQ(database.findLayer(L"0"), AcDbObjectId(6));
    EXPECT_EQ(foreign, AcDbObjectId(20));
    EXPECT_EQ(EntitiesOf(database, AcDbObjectId(5)),
              (Ids{AcDbObjectId(12), AcDbObjectId(19), added}));
    EXPECT_EQ(dynamic_cast<const AcDbEntity&>(*database.peek(AcDbObjectId(19))).layer(), L"Sewer");
    EXPECT_EQ(dynamic_cast<const AcDbEntity&>(*database.peek(added)).layer(), L"foreign table");
    EXPECT_EQ(database.entityCount(), 3U);
    EXPECT_EQ(AddPoint(database, 1), AcDbObjectId(22));
}

TEST(TakingContent, MovesIdsAndUnsavedStatesAndNotifiesOnce) {
    AcDbDatabase other;
    const AcDbObjectId saved = AddPoint(other, 1);
    AddPoint(other, 2);
    other.markSaved();
    const AcDbObjectId added = AddPoint(other, 3);
    AcDbDatabase database;
    AddPoint(database, 100);
    Witness witness;
    database.addReactor(&witness);
    AcDbPoint* pOpen = nullptr;
    ASSERT_EQ(acdbOpenObject(pOpen, saved, AcDb::kForRead, false, &other), Acad::eOk);
    EXPECT_THROW(database.takeContent(other), std::logic_error);
    pOpen->close();
    EXPECT_EQ(witness.Take(), "");
    database.takeContent(other);
    EXPECT_EQ(witness.Take(), "* ");
    EXPECT_EQ(Unsaved(database), Ids{added});
    EXPECT_EQ(database.undo().undoName(), nullptr);
    EXPECT_EQ(database.peek(saved)->database(), &database);
    EXPECT_EQ(other.entityCount(), 0U);
    EXPECT_NE(AddPoint(other, 4), AcDbObjectId()) << "it is empty but usable";
}

TEST(TakingContent, AnEntityIsRestoredOnlyWithAnUnusedNumber) {
    AcDbDatabase database;
    database.beginLoading(20);
    database.load(AcDbObjectId(9), std::make_unique<AcDbPoint>());
    database.endLoading();
    const auto restore = [&database](std::uint32_t number) {
        auto point = std::make_unique<AcDbPoint>(AcGePoint3d{1, 0, 0});
        point->setLayer(database.findLayer(L"0"));
        database.restoreEntity(AcDbObjectId(number), std::move(point), database.modelSpace());
    };
    EXPECT_THROW(restore(9), std::logic_error) << "in use";
    EXPECT_THROW(restore(database.nextId()), std::logic_error) << "never assigned";
    EXPECT_THROW(restore(0), std::logic_error);
    restore(5);
    EXPECT_EQ(Unsaved(database), Ids{AcDbObjectId(5)});
    EXPECT_EQ(EntitiesOf(database, database.modelSpace()), (Ids{AcDbObjectId(5), AcDbObjectId(9)}));
}

TEST(Loading, PutsStrayEntitiesOnLayerZeroInTheModelSpace) {
    AcDbDatabase database;
    const AcDbObjectId strays[] = {{}, AcDbObjectId(99), AcDbObjectId(3)}; // 3 is an entity
    database.beginLoading(10);
    std::uint32_t id = 3;
    for (const AcDbObjectId stray : strays) {
        auto point = std::make_unique<AcDbPoint>();
        point->setLayer(stray);
        database.load(AcDbObjectId(id++), std::move(point), stray);
    }
    database.endLoading();
    EXPECT_EQ(EntitiesOf(database, database.modelSpace()).size(), std::size(strays));
    database.forEachEntity([&](const AcDbEntity& entity) {
        EXPECT_EQ(entity.layerId(), database.findLayer(L"0"));
        EXPECT_EQ(entity.blockId(), database.modelSpace());
    });
    EXPECT_GE(database.findLayer(L"0").number(), 10U); // created with an unused number
}

TEST(Loading, RefusesInvalidIdsAndDuplicates) {
    AcDbDatabase database;
    EXPECT_THROW(database.load(AcDbObjectId(3), std::make_unique<AcDbPoint>()), std::logic_error);
    database.beginLoading(5);
    database.load(AcDbObjectId(1), std::make_unique<AcDbLayerTableRecord>(L"Sewer"));
    const auto refused = [&](std::uint32_t id, std::unique_ptr<AcDbObject> pObject) {
        EXPECT_THROW(database.load(AcDbObjectId(id), std::move(pObject)), std::logic_error) << id;
    };
    refused(0, std::make_unique<AcDbPoint>());
    refused(5, std::make_unique<AcDbPoint>());
    refused(4294967295U, std::make_unique<AcDbPoint>());
    refused(1, std::make_unique<AcDbPoint>());
    refused(2, nullptr);
    refused(2, std::make_unique<AcDbLayerTableRecord>(L"SEWER"));
    database.endLoading();
    EXPECT_EQ(database.entityCount(), 0U);
    EXPECT_EQ(database.layers().size(), 2U);
}

TEST(Loading, RequiresAllObjectsToBeClosed) {
    AcDbDatabase database;
    AcDbObject* pPoint = nullptr;
    acdbOpenAcDbObject(pPoint, AddPoint(database, 1), AcDb::kForRead, false, &database);
    EXPECT_THROW(database.beginLoading(1), std::logic_error);
    EXPECT_EQ(database.entityCount(), 1U);
    pPoint->close();
    EXPECT_NO_THROW(database.beginLoading(1));
}

TEST(DatabaseReactors, AreNotifiedWhenAnObjectIsClosed) {
    AcDbDatabase database;
    Witness witness;
    database.addReactor(&witness);
    database.addReactor(&witness); // counts once
    database.addReactor(nullptr);
    const AcDbObjectId id = AddPoint(database, 1);
    EXPECT_EQ(id, AcDbObjectId(3));
    EXPECT_EQ(witness.Take(), "+3 ");
    AcDbPoint* pPoint = nullptr;
    acdbOpenObject(pPoint, id, AcDb::kForWrite, false, &database);
    pPoint->setPosition({2, 0, 0});
    pPoint->setAttribute(AcDbIntern("a"), 1);
    EXPECT_EQ(witness.Take(), "");
    pPoint->downgradeOpen();
    EXPECT_EQ(witness.Take(), "~3 ");
    pPoint->upgradeOpen();
    pPoint->close(); // nothing was changed
    EXPECT_EQ(witness.Take(), "");
    Change<AcDbPoint>(database, id, [](AcDbPoint& point) {
        point.setColorIndex(1);
        point.erase();
    });
    EXPECT_EQ(witness.Take(), "-3 ");
    Change<AcDbPoint>(database, id, [](AcDbPoint& point) {
        point.erase(false);
        point.setColorIndex(2);
    });
    EXPECT_EQ(witness.Take(), "^3 ~3 ");
    Change<AcDbPoint>(database, id, [](AcDbPoint& point) {
        point.erase();
        point.erase(false);
    });
    EXPECT_EQ(witness.Take(), "");
    database.removeReactor(&witness);
    AddPoint(database, 2);
    EXPECT_EQ(witness.Take(), "");
}

TEST(DatabaseReactors, AreNotifiedOfTheResultOfUndoAndRedo) {
    AcDbDatabase database;
    Witness witness;
    const AcDbObjectId old = AddPoint(database, 1); // 3
    database.addReactor(&witness);
    database.undo().beginGroup(L"edit");
    MovePoint(database, old, 5);
    const AcDbObjectId made = AddPoint(database, 2); // 4
    MovePoint(database, made, 6);
    SetAttribute(database, old, "a", 1);
    Erase(database, AddPoint(database, 3)); // 5
    database.undo().endGroup();
    witness.Take();
    database.undo().undo();
    EXPECT_EQ(witness.Take(), "~3 -4 "); // 5 was erased before and after
    database.undo().redo();
    EXPECT_EQ(witness.Take(), "~3 ^4 ~4 ");
}

TEST(DatabaseReactors, MayBeAddedAndRemovedDuringACall) {
    AcDbDatabase database;
    Witness witnesses[4];
    for (Witness* const pWitness : {&witnesses[0], &witnesses[1], &witnesses[2]}) {
        database.addReactor(pWitness);
    }
    witnesses[0].onEvent = [&] {
        database.removeReactor(&witnesses[1]);
        database.removeReactor(&witnesses[0]);
        database.addReactor(&witnesses[3]);
    };
    const auto heard = [&] {
        std::string all;
        for (Witness& witness : witnesses) {
            all += witness.Take() + "|";
        }
        return all;
    };
    AddPoint(database, 1);
    EXPECT_EQ(heard(), "+3 ||+3 ||");
    AddPoint(database, 2);
    EXPECT_EQ(heard(), "||+4 |+4 |");
}

TEST(DatabaseReactors, MayChangeTheDrawingInNotificationsOfUndo) {
    AcDbDatabase database;
    Witness witness;
    const AcDbObjectId counter = AddPoint(database, 0);
    database.undo().beginGroup(L"both");
    const AcDbObjectId a = AddPoint(database, 1);
    AddPoint(database, 2);
    database.undo().endGroup();
    database.addReactor(&witness);
    int changes = 0;
    witness.onEvent = [&] {
        if (changes < 2) {
            SetAttribute(database, counter, "changes", ++changes);
        }
        EXPECT_TRUE(database.peek(a)->isErased()); // undo is complete before reactors are notified
    };
    EXPECT_TRUE(database.undo().undo());
    EXPECT_EQ(witness.Take(), "-5 ~3 ~3 -4 ");
    EXPECT_EQ(database.undo().redoName(), nullptr);
    EXPECT_EQ(database.entityCount(), 1U);
}
