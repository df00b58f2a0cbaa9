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

TEST_F(UndoTest, OutsideOfGroupsAnOpeningIsOne) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    const AcDbObjectId b = AddPoint(m_database, 1);
    Undo().clear();
    Change<AcDbPoint>(m_database, a, [&](AcDbPoint& point) {
        point.setPosition({2, 0, 0});
        point.setAttribute(AcDbIntern("a"), 1);
        point.setColorIndex(3);
        point.erase();
    });
    MovePoint(m_database, b, 3);
    EXPECT_EQ(*Undo().undoName(), L"");
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(b, "body"), "1,0 ");
    EXPECT_EQ(Part(a, "exists"), "no");
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "body") + Part(a, "exists") + Part(a, "color") + Part(a, "order"),
              "1,0 yes256");
    EXPECT_FALSE(Undo().undo());
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

TEST_F(UndoTest, ANewChangeEndsTheRedoSide) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    MovePoint(m_database, a, 2);
    MovePoint(m_database, a, 3);
    Undo().undo();
    Undo().undo();
    SetAttribute(m_database, a, "a", 1);
    EXPECT_FALSE(Undo().redo());
    EXPECT_EQ(Part(a, "body"), "1,0 ");
    Undo().undo();
    EXPECT_EQ(Part(a, "attribute a"), "-");
    Undo().redo();
    EXPECT_EQ(Part(a, "attribute a"), "1");
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
        EXPECT_EQ(Part(a, "body"), std::string(expected) + ",0 ");
        EXPECT_EQ(Part(a, "attribute a"), expected);
    }
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "body") + Part(a, "attribute a"), "1,0 -");
    EXPECT_FALSE(Undo().undo());
}

TEST_F(UndoTest, AnOpeningIsNotedInTheGroupAfterTheRedoSideWasDropped) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    Undo().clear();
    InGroup(L"dropped", [&] { MovePoint(m_database, a, 9); });
    Undo().undo();
    Change<AcDbPoint>(m_database, a, [&](AcDbPoint& point) {
        point.setPosition({2, 0, 0});
        InGroup(L"group", [&] { point.setPosition({3, 0, 0}); });
    });
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "body"), "2,0 ");
}

TEST_F(UndoTest, RecordsKeepTheirTextBeforeTheGroup) {
    const AcDbObjectId d = m_database.dictionary(L"d");
    SetRecord(m_database, d, L"kept", L"kept");
    SetRecord(m_database, d, L"r", L"0");
    InGroup(L"write", [&] {
        for (const wchar_t* const text : {L"1", L"2", L"3"}) {
            SetRecord(m_database, d, L"r", text);
            SetRecord(m_database, d, L"new", text);
            SetRecord(m_database, d, L"new", L"");
        }
        Change<AcDbDictionary>(m_database, d, [](AcDbDictionary& o) { o.remove(L"kept"); });
    });
    Undo().undo();
    EXPECT_EQ(Part(d, "record r") + Part(d, "record new") + Part(d, "record kept"), "0-kept");
    Undo().redo();
    EXPECT_EQ(Part(d, "record r") + Part(d, "record new") + Part(d, "record kept"), "3-");
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

TEST_F(UndoTest, ADictionaryWrittenOffTheRecordStaysWithItsRecords) {
    AcDbObjectId d;
    InGroup(L"make", [&] {
        d = m_database.dictionary(L"settings");
        SetRecord(m_database, d, L"user", L"1");
        SetRecord(m_database, d, L"stamp", L"1");
    });
    SetRecord(m_database, d, L"user", L"2");
    OffRecord([&] { SetRecord(m_database, d, L"stamp", L"2"); });
    UndoAll();
    EXPECT_EQ(Part(d, "exists") + Part(d, "record user") + Part(d, "record stamp"), "yes-2");
    while (Undo().redo()) {
    }
    EXPECT_EQ(Part(d, "record user") + Part(d, "record stamp"), "22");
}

TEST_F(UndoTest, OnlyWhatWasChangedOffTheRecordIsKept) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    SetAttribute(m_database, a, "gone", 0);
    SetAttribute(m_database, a, "user", 1);
    SetAttribute(m_database, a, "counter", 1);
    Undo().clear();
    InGroup(L"edit", [&] {
        MovePoint(m_database, a, 2);
        SetAttribute(m_database, a, "user", 2);
        SetAttribute(m_database, a, "counter", 2);
        SetAttribute(m_database, a, "made", 2);
    });
    OffRecord([&] {
        SetAttribute(m_database, a, "counter", 3);
        SetAttribute(m_database, a, "stamp", 3);
        Change<AcDbPoint>(m_database, a, [](AcDbPoint& point) {
            point.removeAttribute(AcDbIntern("gone"));
            point.setColorIndex(3);
        });
    });
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "body"), "1,0 ");
    EXPECT_EQ(Part(a, "color"), "3");
    EXPECT_EQ(Part(a, "order"), "user counter stamp ");
    EXPECT_EQ(Part(a, "attribute user") + Part(a, "attribute counter"), "13");
    EXPECT_TRUE(Undo().redo());
    EXPECT_EQ(Part(a, "body"), "2,0 ");
    EXPECT_EQ(Part(a, "attribute user") + Part(a, "attribute counter"), "23");
    EXPECT_EQ(Part(a, "attribute made") + Part(a, "attribute stamp"), "23");
    EXPECT_EQ(Part(a, "attribute gone"), "-");
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
    EXPECT_EQ(Part(a, "body") + Part(a, "attribute a"), "3,0 3");
    EXPECT_TRUE(Undo().redo());
    EXPECT_EQ(Part(a, "body") + Part(a, "attribute a"), "4,0 4");
}

TEST_F(UndoTest, RecordingMaySwitchWithinAGroup) {
    const AcDbObjectId d = m_database.dictionary(L"d");
    const AcDbObjectId a = AddPoint(m_database, 1);
    const AcDbObjectId b = AddPoint(m_database, 1);
    InGroup(L"edit", [&] {
        SetRecord(m_database, d, L"r", L"1");
        OffRecord([&] { SetRecord(m_database, d, L"r", L"2"); });
        SetRecord(m_database, d, L"r", L"3");
        Erase(m_database, a);
        OffRecord([&] {
            Erase(m_database, b);
            Erase(m_database, b, false);
        });
        Erase(m_database, b); // next to a, and yet not part of the same range
    });
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(d, "record r") + Part(a, "exists") + Part(b, "exists"), "2yesyes");
}

TEST_F(UndoTest, ErasureOffTheRecordIsFinal) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    MovePoint(m_database, a, 2);
    OffRecord([&] { Erase(m_database, a); });
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "exists") + Part(a, "body"), "no1,0 ");
    UndoAll();
    EXPECT_TRUE(Undo().redo());
    EXPECT_EQ(Part(a, "exists"), "no");
    EXPECT_EQ(m_database.entityCount(), 0U);
}

TEST_F(UndoTest, EntitiesOffTheRecordKeepTheirPlaces) {
    AcDbObjectId layer;
    AcDbObjectId other;
    AcDbObjectId block;
    InGroup(L"places", [&] {
        layer = m_database.layer(L"Sewer");
        other = m_database.layer(L"Gas");
        block = m_database.block(L"Valve");
    });
    const AcDbObjectId moved = AddPoint(m_database, 1);
    Undo().clear();
    InGroup(L"erase", [&] {
        Erase(m_database, layer);
        Erase(m_database, other);
        Erase(m_database, block);
    });
    Undo().undo();
    OffRecord([&] {
        auto point = std::make_unique<AcDbPoint>();
        point->setLayer(layer);
        m_database.appendEntity(std::move(point), block);
        Change<AcDbPoint>(m_database, moved, [&](AcDbPoint& entity) { entity.setLayer(other); });
    });
    EXPECT_TRUE(Undo().redo());
    EXPECT_EQ(Part(layer, "exists") + Part(other, "exists") + Part(block, "exists"), "yesyesyes");
}

TEST_F(UndoTest, AnEntityThatComesBackBringsItsLayerAlong) {
    const AcDbObjectId layer = m_database.layer(L"Sewer");
    const AcDbObjectId a = AddPoint(m_database, 1, layer);
    Erase(m_database, a);
    OffRecord([&] { EXPECT_EQ(Erase(m_database, layer), Acad::eOk); });
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "exists") + Part(layer, "exists"), "yesyes");
}

TEST_F(UndoTest, ClearingForgetsWhatWasOffTheRecord) {
    const AcDbObjectId a = AddPoint(m_database, 1);
    MovePoint(m_database, a, 2);
    OffRecord([&] { MovePoint(m_database, a, 3); });
    Undo().clear();
    MovePoint(m_database, a, 4);
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Part(a, "body"), "3,0 ");
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
    EXPECT_EQ(Part(a, "body"), "2,0 ");
}
