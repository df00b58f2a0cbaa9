#include "platform/arx/DbObject.h"

#include <cmath>

#include <gtest/gtest.h>

#include "tests/platform/DbDrawing.h"
#include "tests/support/Rows.h"

namespace {

/// Performs steps on one object and returns their results: r and w open for reading and writing,
/// c closes, u and d upgrade and downgrade, e and b erase and restore.
std::vector<int> Play(AcDbDatabase& database, AcDbObjectId id, std::string_view steps) {
    auto* const pObject = const_cast<AcDbObject*>(database.peek(id));
    AcDbObject* pOpened = nullptr;
    std::vector<int> results;
    for (const char step : steps) {
        switch (step) {
        case 'r':
        case 'w':
            results.push_back(acdbOpenAcDbObject(
                pOpened, id, step == 'r' ? AcDb::kForRead : AcDb::kForWrite, false, &database));
            break;
        case 'c':
            results.push_back(pObject->close());
            break;
        case 'u':
            results.push_back(pObject->upgradeOpen());
            break;
        case 'd':
            results.push_back(pObject->downgradeOpen());
            break;
        default:
            results.push_back(pObject->erase(step == 'e'));
        }
    }
    return results;
}

} // namespace

TEST(OpeningObjects, AllowsManyReadersOrOneWriter) {
    using namespace Acad;
    const Rows<std::string_view, std::vector<int>> cases = {
        {"rrrccc", {0, 0, 0, 0, 0, 0}},
        {"wc", {0, 0}},
        {"rw", {0, eWasOpenForRead}},
        {"rcw", {0, 0, 0}},
        {"wr", {0, eWasOpenForWrite}},
        {"ww", {0, eWasOpenForWrite}},
        {"c", {eInvalidInput}},
        {"rcc", {0, 0, eInvalidInput}},
        {"wcc", {0, 0, eInvalidInput}},
        {"rucc", {0, 0, 0, eInvalidInput}},
        {"rru", {0, 0, eWasOpenForRead}},
        {"rrcu", {0, 0, 0, 0}},
        {"wu", {0, eWasOpenForWrite}},
        {"u", {eInvalidInput}},
        {"d", {eNotOpenForWrite}},
        {"rd", {0, eNotOpenForWrite}},
        {"wdrcc", {0, 0, 0, 0, 0}},
        {"wduc", {0, 0, 0, 0}},
        {"e", {eNotOpenForWrite}},
        {"re", {0, eNotOpenForWrite}},
        {"weebbc", {0, 0, eWasErased, 0, 0, 0}},
        {"wecr", {0, 0, 0, eWasErased}},
        {"wecw", {0, 0, 0, eWasErased}},
    };
    for (const auto& [steps, results] : cases) {
        AcDbDatabase database;
        EXPECT_EQ(Play(database, AddPoint(database, 1), steps), results) << steps;
    }
}

TEST(OpeningObjects, ReportsWhyItFails) {
    AcDbDatabase database;
    AcDbDatabase other;
    const AcDbObjectId id = AddPoint(database, 1);
    const Rows<AcDbObjectId, AcDb::OpenMode, AcDbDatabase*, int> cases = {
        {id, AcDb::kForRead, nullptr, Acad::eNoDatabase}, // no current database
        {{}, AcDb::kForRead, &database, Acad::eNullObjectId},
        {AcDbObjectId(4000000000U), AcDb::kForRead, &database, Acad::eUnknownObject},
        {id, AcDb::kForRead, &other, Acad::eUnknownObject},
        {id, AcDb::OpenMode(7), &database, Acad::eInvalidInput},
        {id, AcDb::kForWrite, &database, Acad::eOk},
    };
    for (const auto& [itsId, mode, pDatabase, itsStatus] : cases) {
        auto* pObject = const_cast<AcDbObject*>(database.peek(id));
        const int status = acdbOpenAcDbObject(pObject, itsId, mode, false, pDatabase);
        EXPECT_EQ(status, itsStatus);
        EXPECT_EQ(pObject != nullptr, itsStatus == Acad::eOk);
    }
}

TEST(OpeningObjects, DoesNotOpenAnObjectOfAnotherClass) {
    AcDbDatabase database;
    const AcDbObjectId id = AddPoint(database, 1);
    AcDbPolyline* pLine = nullptr;
    EXPECT_EQ(acdbOpenObject(pLine, id, AcDb::kForRead, false, &database), Acad::eInvalidInput);
    EXPECT_EQ(pLine, nullptr);
    EXPECT_EQ(Play(database, id, "wc"), (std::vector<int>{0, 0}));
}

TEST(ChangingObjects, NeedsAnOpeningForWriting) {
    AcDbDatabase database;
    const AcDbObjectId layer = database.layer(L"Sewer");
    const AcDbObjectId point = AddPoint(database, 1);
    const AcDbObjectId line = database.appendEntity(std::make_unique<AcDbPolyline>());
    const AcDbObjectId area = database.appendEntity(std::make_unique<AcDbMPolygon>());
    const AcDbObjectId text = database.appendEntity(std::make_unique<AcDbText>());
    const AcDbObjectId dictionary = database.dictionary(L"records");
    SetAttribute(database, point, "a", 1);
    SetRecord(database, dictionary, L"r", L"text");
    const Parts before = PartsOf(database);
    database.markSaved();

    const auto refuse = [&]<class T>(AcDbObjectId id, std::initializer_list<void (*)(T&)> edits) {
        T* pObject = nullptr;
        ASSERT_EQ(acdbOpenObject(pObject, id, AcDb::kForRead, false, &database), Acad::eOk);
        for (const auto& edit : edits) {
            EXPECT_THROW(edit(*pObject), std::logic_error);
        }
        pObject->close();
        EXPECT_THROW((*edits.begin())(*pObject), std::logic_error);
    };
    refuse.operator()<AcDbLayerTableRecord>(
        layer, {[](auto& o) { o.setColorIndex(1); }, [](auto& o) { o.setIsOff(true); }});
    refuse.operator()<AcDbPoint>(point, {[](auto& o) {
                                             o.setPosition({9, 9, 9});
                                         },
                                         [](auto& o) { o.setColorIndex(1); },
                                         [](auto& o) { o.setLayer(o.database()->layer(L"Sewer")); },
                                         [](auto& o) { o.setAttribute(AcDbIntern("a"), 2); },
                                         [](auto& o) { o.removeAttribute(AcDbIntern("a")); }});
    refuse.operator()<AcDbPolyline>(
        line, {[](auto& o) { o.setVertices({}); }, [](auto& o) { o.setClosed(true); }});
    refuse.operator()<AcDbMPolygon>(area, {[](auto& o) { o.setRings({{}}); }});
    refuse.operator()<AcDbText>(text, {[](auto& o) { o.setText("x"); },
                                       [](auto& o) {
                                           o.setPosition({9, 9, 9});
                                       },
                                       [](auto& o) { o.setHeight(2); }});
    refuse.operator()<AcDbDictionary>(
        dictionary, {[](auto& o) { o.setAt(L"r", L"other"); }, [](auto& o) { o.remove(L"r"); }});
    EXPECT_EQ(PartsOf(database), before);
    EXPECT_FALSE(database.isModified());
}

TEST(ChangingObjects, AcceptsTheObjectsOwnContent) {
    AcDbDatabase database;
    const AcGePoint3d points[] = {{1, 1, 0}, {2, 2, 0}, {3, 3, 0}};
    const AcDbObjectId line = database.appendEntity(std::make_unique<AcDbPolyline>(points));
    Change<AcDbPolyline>(database, line,
                         [](AcDbPolyline& o) { o.setVertices(o.vertices().subspan(1)); });
    EXPECT_EQ(BodyText(*database.peek(line)), "2,2,0 3,3,0 ");
    const AcDbObjectId dictionary = database.dictionary(L"d");
    SetRecord(database, dictionary, L"r", L"a long enough text of a record");
    Change<AcDbDictionary>(database, dictionary, [](AcDbDictionary& o) {
        o.setAt(L"copy", *o.getAt(L"r"));
        o.setAt(L"r", *o.getAt(L"r"));
        EXPECT_EQ(*o.getAt(L"copy"), L"a long enough text of a record");
        EXPECT_EQ(*o.getAt(L"r"), L"a long enough text of a record");
        EXPECT_EQ(o.remove(L"R"), Acad::eKeyNotFound); // case-sensitive
        EXPECT_EQ(o.getAt(nullptr), nullptr);
    });
}

TEST(ChangingObjects, ReplacesColoursOutsideTheTableByTheDefault) {
    AcDbPoint point;
    AcDbLayerTableRecord layer(L"l");
    for (const int index : {-1, 257, 70000, 65536 + 3}) {
        point.setColorIndex(3);
        point.setColorIndex(index);
        EXPECT_EQ(point.colorIndex(), kColorByLayer) << index;
        layer.setColorIndex(3);
        layer.setColorIndex(index);
        EXPECT_EQ(layer.colorIndex(), 7) << index;
    }
}

TEST(Objects, KnowTheirClassAndItsBases) {
    AcDbDatabase database;
    const AcDbObjectId point = AddPoint(database, 1);
    const AcDbObject& layer = *database.peek(database.layer(L"0"));
    EXPECT_TRUE(database.peek(point)->isKindOf(AcDbPoint::desc()));
    EXPECT_TRUE(database.peek(point)->isKindOf(AcDbEntity::desc()));
    EXPECT_TRUE(database.peek(point)->isKindOf(AcDbObject::desc()));
    EXPECT_TRUE(database.peek(point)->isKindOf(AcRxObject::desc()));
    EXPECT_FALSE(database.peek(point)->isKindOf(AcDbText::desc()));
    EXPECT_FALSE(layer.isKindOf(AcDbEntity::desc()));
    const AcRxClass* const classes[] = {AcDbDatabase::desc(),        AcDbPolyline::desc(),
                                        AcDbMPolygon::desc(),        AcDbText::desc(),
                                        AcDbDictionary::desc(),      AcDbLayerTableRecord::desc(),
                                        AcDbBlockTableRecord::desc()};
    for (const AcRxClass* const pClass : classes) {
        EXPECT_EQ(acrxClassDictionary()->at(pClass->name()), pClass);
        EXPECT_TRUE(pClass->isDerivedFrom(AcRxObject::desc()));
    }
}

TEST(Objects, AreClonedWithTheirContentOnly) {
    AcDbDatabase database;
    auto made = std::make_unique<AcDbText>(AcGePoint3d{1, 2, 3}, "manhole");
    made->setHeight(2.5);
    made->setLayer(database.layer(L"Sewer"));
    made->setColorIndex(3);
    made->setAttribute(AcDbIntern("a"), "an attribute of it");
    const AcDbObjectId id = database.appendEntity(std::move(made));

    const auto copy = database.peek(id)->clone();
    EXPECT_EQ(copy->database(), nullptr);
    EXPECT_TRUE(copy->objectId().isNull());
    EXPECT_TRUE(static_cast<const AcDbEntity&>(*copy).blockId().isNull());
    Parts ofCopy;
    Parts ofOriginal;
    AddParts(*copy, ofCopy, true);
    AddParts(*database.peek(id), ofOriginal, true);
    const auto texts = [](const Parts& parts) {
        std::vector<std::string> values;
        for (const auto& [name, text] : parts) {
            if (!name.ends_with(" block")) {
                values.push_back(text);
            }
        }
        return values;
    };
    EXPECT_EQ(texts(ofCopy), texts(ofOriginal));
    EXPECT_EQ(copy->close(), Acad::eNoDatabase);
    EXPECT_EQ(copy->erase(), Acad::eNoDatabase);
}

TEST(Entities, HaveExtentsAroundAllTheirPoints) {
    const double nan = std::nan("");
    const AcGePoint3d points[] = {{3, 1, nan}, {-2, 5, 0}, {nan, nan, nan}};
    AcDbMPolygon area({{{{0, 0, 0}, {1, 1, 0}}, false}, {{{9, -9, 0}}, true}});
    const AcGeExtents2d ofLine = AcDbPolyline(points).extents();
    EXPECT_EQ(ofLine.minX, -2);
    EXPECT_EQ(ofLine.minY, 1);
    EXPECT_EQ(ofLine.maxX, 3);
    EXPECT_EQ(ofLine.maxY, 5);
    EXPECT_EQ(area.extents().maxX, 9);
    EXPECT_EQ(area.extents().minY, -9);
    EXPECT_TRUE(AcDbPolyline().extents().isEmpty());
    EXPECT_TRUE(AcDbMPolygon().extents().isEmpty());
    EXPECT_TRUE(AcDbPoint({nan, nan, 0}).extents().isEmpty());
}
