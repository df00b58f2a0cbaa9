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
