#include "platform/arx/DbUndo.h"

#include <gtest/gtest.h>

#include "tests/platform/DbDrawing.h"

namespace {

class UndoTest : public testing::Test {
protected:
    /// The text of a part of an object, "-" if it has none of the name.
    std::string Part(AcDbObjectId id, const std::string& part) const {
        const Parts parts = PartsOf(m_database);
        const auto hit = parts.find(std::to_string(id.number()) + ' ' + part);
        return hit == parts.end() ? "-" : hit->second;
    }
    template <class Edit>
    void OffRecord(Edit edit) {
        m_database.disableUndoRecording(true);
        edit();
        m_database.disableUndoRecording(false);
    }
    template <class Edit>
    void InGroup(const wchar_t* name, Edit edit) {
        Undo().beginGroup(name);
        edit();
        Undo().endGroup();
    }
    AcDbUndo& Undo() { return m_database.undo(); }
    void UndoAll() {
        while (Undo().undo()) {
        }
    }

    AcDbDatabase m_database;
};

} // namespace

TEST_F(UndoTest, AGroupIsTakenBackAsOne) {
    const AcDbObjectId layer = m_database.layer(L"Sewer");
    Undo().clear();
    const Parts before = PartsOf(m_database);
    AcDbObjectId point;
    InGroup(L"DRAW", [&] {
        InGroup(L"inner", [&] { point = AddPoint(m_database, 1, layer); });
        MovePoint(m_database, point, 2);
        SetAttribute(m_database, point, "a", "text of some length");
        m_database.setCoordinateSystem(L"wkt");
    });
    const Parts after = PartsOf(m_database);
    EXPECT_EQ(*Undo().undoName(), L"DRAW");
    EXPECT_EQ(Undo().redoName(), nullptr);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(Undo().undo());
        EXPECT_FALSE(Undo().undo());
        EXPECT_EQ(*Undo().redoName(), L"DRAW");
        EXPECT_TRUE(m_database.peek(point)->isErased());
        EXPECT_EQ(m_database.entityCount(), 0U);
        EXPECT_EQ(Part(point, "attribute a"), "-");
        EXPECT_EQ(PartsOf(m_database)["coordinate system"], before.at("coordinate system"));
        EXPECT_TRUE(Undo().redo());
        EXPECT_FALSE(Undo().redo());
        EXPECT_EQ(PartsOf(m_database), after);
    }
}

TEST_F(UndoTest, GroupsWithoutChangesLeaveNothing) {
    InGroup(L"empty", [] {});
    EXPECT_EQ(Undo().undoName(), nullptr);
    AddPoint(m_database, 1);
    Undo().undo();
    InGroup(L"empty", [&] { Undo().beginGroup(L"inner"), Undo().endGroup(); });
    EXPECT_TRUE(Undo().redo());
    EXPECT_THROW(Undo().endGroup(), std::logic_error);
}

TEST_F(UndoTest, WaitsForTheEndOfTheGroupAndForWriters) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    Undo().beginGroup(L"open");
    EXPECT_FALSE(Undo().undo());
    Undo().endGroup();
    AcDbPoint* pPoint = nullptr;
    acdbOpenObject(pPoint, a, AcDb::kForWrite, false, &m_database);
    EXPECT_FALSE(Undo().undo());
    pPoint->downgradeOpen();
    EXPECT_TRUE(Undo().undo()); // a reader is no obstacle
    pPoint->upgradeOpen();
    EXPECT_FALSE(Undo().redo());
    pPoint->close();
    EXPECT_TRUE(Undo().redo());
}

TEST_F(UndoTest, AnOpeningThatOutlivesAGroupIsNotedInEach) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    Undo().clear();
    AcDbPoint* pPoint = nullptr;
    acdbOpenObject(pPoint, a, AcDb::kForWrite, false, &m_database);
    const auto change = [&](int to) {
        pPoint->setPosition({double(to), 0, 0});
        pPoint->setAttribute(AcDbIntern("a"), to);
    };
    change(2);
    InGroup(L"first", [&] { change(3); });
    InGroup(L"second", [&] { change(4); });
    change(5);
    pPoint->close();
    for (const char* const expected : {"4", "3", "2"}) {
        EXPECT_TRUE(Undo().undo());
        EXPECT_EQ(Part(a, "body"), std::string(expected) + ",0,0 ");
        EXPECT_EQ(Part(a, "attribute a"), expected);
    }
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "body") + Part(a, "attribute a"), "1,0,0 -");
    EXPECT_FALSE(Undo().undo());
}

TEST_F(UndoTest, RangesOfIdsComeAndGoWhole) {
    InGroup(L"create", [&] {
        for (int i = 0; i < 1000; ++i) {
            AddPoint(m_database, i);
        }
    });
    InGroup(L"erase", [&] {
        for (std::uint32_t id = 3; id < 1003; ++id) {
            Erase(m_database, AcDbObjectId(id));
        }
        for (std::uint32_t id = 1002; id > 502; --id) {
            Erase(m_database, AcDbObjectId(id), false);
        }
    });
    for (const std::size_t expected : {1000U, 0U}) {
        Undo().undo();
        EXPECT_EQ(m_database.entityCount(), expected);
    }
    for (const std::size_t expected : {1000U, 500U}) {
        Undo().redo();
        EXPECT_EQ(m_database.entityCount(), expected);
    }
}

TEST_F(UndoTest, OffTheRecordLeavesNoTraceAndKeepsTheRedoSide) {
    const AcDbObjectId d = m_database.dictionary(L"stamp");
    const AcDbObjectId a = AddPoint(m_database, 1);
    Undo().undo();
    EXPECT_FALSE(m_database.isUndoRecordingDisabled());
    OffRecord([&] {
        EXPECT_TRUE(m_database.isUndoRecordingDisabled());
        SetRecord(m_database, d, L"version", L"7");
        AddPoint(m_database, 2);
    });
    EXPECT_TRUE(Undo().redo());
    EXPECT_EQ(Part(a, "exists"), "yes");
    UndoAll();
    EXPECT_EQ(Part(d, "record version"), "7");
    EXPECT_EQ(m_database.entityCount(), 1U);
}

TEST_F(UndoTest, RecordingMaySwitchWithinAnOpening) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    Undo().clear();
    InGroup(L"edit", [&] {
        Change<AcDbPoint>(m_database, a, [&](AcDbPoint& point) {
            const auto change = [&](int to) {
                point.setPosition({double(to), 0, 0});
                point.setAttribute(AcDbIntern("a"), to);
            };
            change(2);
            OffRecord([&] { change(3); });
            change(4);
        });
    });
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "body") + Part(a, "attribute a"), "3,0,0 3");
    EXPECT_TRUE(Undo().redo());
    EXPECT_EQ(Part(a, "body") + Part(a, "attribute a"), "4,0,0 4");
}

TEST_F(UndoTest, ClearingWithinAGroupForgetsWhatWasBefore) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    InGroup(L"edit", [&] {
        MovePoint(m_database, a, 2);
        Undo().clear();
        EXPECT_EQ(Undo().undoName(), nullptr);
        MovePoint(m_database, a, 3);
    });
    EXPECT_TRUE(Undo().undo());
    EXPECT_FALSE(Undo().undo());
    EXPECT_EQ(Part(a, "body"), "2,0,0 ");
}

TEST_F(UndoTest, AnEntityThatComesBackBringsItsLayerAlong) {
    const AcDbObjectId layer = m_database.layer(L"Sewer");
    const AcDbObjectId a = AddPoint(m_database, 1, layer);
    Erase(m_database, a);
    OffRecord([&] { EXPECT_EQ(Erase(m_database, layer), Acad::eOk); });
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "exists") + Part(layer, "exists"), "yesyes");
}

TEST_F(UndoTest, StepsThatAreGoneGiveTheirIdsAndNamesBack) {
    const AcDbObjectId kept = AddPoint(m_database, 1);
    const std::uint32_t first = m_database.nextId();
    const std::size_t unsaved = m_database.unsavedObjects().size();
    const Parts before = PartsOf(m_database);
    for (const char* round : {"first", "again", "and again"}) {
        SCOPED_TRACE(round);
        InGroup(L"import", [&] {
            const AcDbObjectId layer = m_database.layer(L"Sewer");
            EXPECT_EQ(layer.number(), first);
            m_database.block(L"Valve");
            m_database.dictionary(L"Systems");
            AddPoint(m_database, 1, layer);
            MovePoint(m_database, kept, 2);
        });
        EXPECT_EQ(m_database.nextId(), first + 4);
        EXPECT_TRUE(Undo().undo());
        EXPECT_TRUE(Undo().redo());
        EXPECT_TRUE(Undo().undo());
    }
    MovePoint(m_database, kept, 3);
    EXPECT_EQ(m_database.nextId(), first);
    EXPECT_EQ(m_database.unsavedObjects().size(), unsaved);
    EXPECT_EQ(m_database.findLayer(L"Sewer"), AcDbObjectId());
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(PartsOf(m_database), before);
}

TEST_F(UndoTest, IdsThatAFileHasAreNotGivenAgain) {
    const AcDbObjectId saved = AddPoint(m_database, 1);
    m_database.markSaved();
    EXPECT_TRUE(Undo().undo());
    const AcDbObjectId other = AddPoint(m_database, 2);
    EXPECT_GT(other, saved);
    ASSERT_NE(m_database.peek(saved), nullptr) << "its row is still to be deleted";
    m_database.markSaved();
    EXPECT_EQ(m_database.peek(saved), nullptr);
    EXPECT_EQ(m_database.nextId(), other.number() + 1);
    EXPECT_TRUE(Undo().undo());
    EXPECT_GT(AddPoint(m_database, 3), other);
}

TEST_F(UndoTest, NothingIsReleasedWhileSomebodyLooksAtIt) {
    /// Changes the drawing in the middle of an undo.
    class Writer final : public AcDbDatabaseReactor {
    public:
        explicit Writer(AcDbDatabase& database) : m_database(database) {}
        void objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool) override {
            m_database.setCoordinateSystem(std::to_wstring(++m_nCalls).c_str());
            EXPECT_EQ(m_database.peek(pObject->objectId()), pObject);
        }
        AcDbDatabase& m_database;
        int m_nCalls = 0;
    };
    const std::uint32_t first = m_database.nextId();
    Writer writer(m_database);
    m_database.addReactor(&writer);
    InGroup(L"draw", [&] {
        AddPoint(m_database, 1);
        AddPoint(m_database, 2);
    });
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(writer.m_nCalls, 2);
    EXPECT_EQ(m_database.nextId(), first) << "once everybody was told";
    m_database.removeReactor(&writer);

    const AcDbObjectId a = AddPoint(m_database, 1);
    const AcDbObjectId b = AddPoint(m_database, 2);
    EXPECT_TRUE(Undo().undo());
    int visited = 0;
    m_database.forEachEntity([&](const AcDbEntity& entity) {
        EXPECT_EQ(entity.objectId(), a);
        EXPECT_GT(AddPoint(m_database, ++visited), b) << "b is still in the way";
    });
    EXPECT_EQ(visited, 1);
    AcDbEntity* pOpen = nullptr;
    EXPECT_TRUE(Undo().undo());
    const AcDbObjectId c(b.number() + 1);
    ASSERT_EQ(acdbOpenObject(pOpen, c, AcDb::kForRead, true, &m_database), Acad::eOk);
    MovePoint(m_database, a, 5);
    EXPECT_EQ(m_database.peek(c), pOpen);
    EXPECT_EQ(m_database.peek(b), nullptr);
    pOpen->close();
}

TEST_F(UndoTest, OldestStepsAreDroppedAtTheLimit) {
    struct Limit {
        Limit() { AcDbUndo::setMemoryLimit(100'000); }
        ~Limit() { AcDbUndo::setMemoryLimit(0); }
    } const limit;
    const std::string text(1000, 'x');
    const AcDbObjectId erased = AddPoint(m_database, 1);
    SetAttribute(m_database, erased, "a", text.c_str());
    Erase(m_database, erased);
    const AcDbObjectId a = AddPoint(m_database, 1);
    std::size_t dropped = 0;
    for (int i = 0; i < 1000; ++i) {
        SetAttribute(m_database, a, "a", text.c_str());
        EXPECT_LE(Undo().bytes(), 100'000U);
        dropped += Undo().takeDropped();
    }
    EXPECT_EQ(m_database.peek(erased), nullptr);
    std::size_t steps = 0;
    for (; Undo().undo(); ++steps) {
    }
    EXPECT_GE(steps, 80U);
    EXPECT_EQ(steps + dropped, 1004U);
    for (std::size_t i = 0; i < steps; ++i) {
        EXPECT_TRUE(Undo().redo());
    }
    EXPECT_EQ(Part(a, "attribute a"), "'" + text + "'");

    SetAttribute(m_database, a, "a", std::string(200'000, 'y').c_str());
    SetAttribute(m_database, a, "a", 1);
    EXPECT_TRUE(Undo().undo()) << "the newest one stays, however large";
    EXPECT_FALSE(Undo().undo());
    EXPECT_EQ(Part(a, "attribute a").size(), 200'002U);
}
