// Saving and reopening preserves everything.
#include <limits>

#include "platform/arx/DbUndo.h"
#include "platform/win/CodePage.h"
#include "tests/host/storage/StorageFixture.h"

namespace Tessaly {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

using Ring = AcDbMPolygon::Ring;

/// A drawing with every kind of content.
void Fill(AcDbDatabase& database) {
    database.setCoordinateSystem(
        L"LOCAL_CS[\"Works grid \u010D. 7\",UNIT[\"metre\",1],AXIS[\"x\",EAST],AXIS[\"y\",NORTH]]");
    const AcDbObjectId water =
        database.layer(L"Water \u017Elu\u0165ou\u010Dk\u00FD \"k\u016F\u0148\"");
    Edit<AcDbLayerTableRecord>(database, water, [](AcDbLayerTableRecord& layer) {
        layer.setColorIndex(5);
        layer.setIsOff(true);
    });
    const AcDbObjectId block = database.block(L"Hydrant");
    database.appendEntity(std::make_unique<AcDbPoint>(AcGePoint3d{1.5, -2.25, 300.125}));
    const AcDbObjectId plain = AddNode(database, 0.1, 1e14, "N 'one' \"1\"");
    Edit<AcDbPoint>(database, plain, [&](AcDbPoint& point) {
        point.setLayer(water);
        point.setColorIndex(0);
    });
    AddLine(database, {{0, 0, 1}, {10, 0, kNaN}, {10, 10, -3}});
    AddLine(database, {{0, 0}, {5, 5}});
    AddLine(database, {{7, 7}, {7, 7}});
    database.appendEntity(std::make_unique<AcDbText>(AcGePoint3d{3, 4}, "\xC5\xBD\n two"));
    database.appendEntity(std::make_unique<AcDbPoint>(AcGePoint3d{0, 0, 0}), block);
    std::vector<Ring> rings{{{{0, 0}, {9, 0}, {9, 9}}, false},
                            {{{1, 1}, {2, 1}, {2, 2}}, true},
                            {{{20, 20, 5}, {29, 20, 6}, {29, 29, 7}, {20, 29, kNaN}}, false}};
    database.appendEntity(std::make_unique<AcDbMPolygon>(rings));
    Edit<AcDbDictionary>(database, database.dictionary(L"__HV__"), [](AcDbDictionary& records) {
        records.setAt(L"version", L"8.0");
        records.setAt(L"empty", L"");
        records.setAt(L"long", std::wstring(3'000'000, L'\u010D').c_str());
    });
    database.dictionary(L"__hv__");
}

TEST_F(StorageTest, EverythingThatADrawingHoldsComesBack) {
    AcDbDatabase database;
    Fill(database);
    SaveNew(database, "all.gpkg");
    EXPECT_TRUE(m_warnings.empty());
    EXPECT_EQ(DescribeFile("all.gpkg"), Describe(database));
    EXPECT_EQ(Sqlite(m_folder.Native("all.gpkg")).Query("PRAGMA integrity_check"), "'ok'\n");
    EXPECT_TRUE(Leftovers({"all.gpkg"}).empty());

    const auto again = Open("all.gpkg");
    EXPECT_FALSE(again->isModified());
    Save(*again, "all.gpkg");
    EXPECT_EQ(DescribeFile("all.gpkg"), Describe(database)) << "a save without changes";
}

TEST_F(StorageTest, OddShapesKeepTheirPoints) {
    AcDbDatabase database;
    AddLine(database, {});
    AddLine(database, {{1, 2, 3}});
    AddLine(database, {{1, 2}, {1, 2}, {1, 2}});
    for (const std::vector<AcGePoint3d>& vertices : std::vector<std::vector<AcGePoint3d>>{
             {}, {{1, 1}}, {{1, 1}, {1, 1}}, {{0, 0}, {4, 0}, {4, 4}}, {{0, 0}, {4, 0}, {0, 0}}}) {
        Edit<AcDbPolyline>(database, AddLine(database, vertices),
                           [](AcDbPolyline& line) { line.setClosed(true); });
    }
    database.appendEntity(std::make_unique<AcDbPoint>(AcGePoint3d{kNaN, kNaN}));
    database.appendEntity(std::make_unique<AcDbText>(AcGePoint3d{kNaN, kNaN}, "nowhere"));
    database.appendEntity(std::make_unique<AcDbMPolygon>());
    database.appendEntity(std::make_unique<AcDbMPolygon>(std::vector<Ring>{
        {{{1, 1}}, false}, {{{1, 1}, {2, 2}}, false}, {{{3, 3}, {4, 4}, {3, 3}}, true}}));
    SaveNew(database, "odd.gpkg");
    EXPECT_EQ(DescribeFile("odd.gpkg"), Describe(database));
}

TEST_F(StorageTest, AttributesKeepTheirKindsAndTheirOrder) {
    AcDbDatabase database;
    const std::string withNul("a\0b=\\\nc", 7);
    const std::vector<std::vector<std::pair<const char*, AcDbValue>>> cases = {
        {{"DIAMETER", 0.5}, {"NAME", "P1"}},
        {{"NAME", "P2"}, {"DIAMETER", 200}},
        {{"DIAMETER", "unknown"}, {"NAME", 17}},
        {{"DIAMETER", AcDbValue()}, {"NAME", AcDbValue()}},
        {{"NAME", ""}, {"DIAMETER", -0.0}},
        {{"DIAMETER", kNaN}},
        {{"DIAMETER", kInfinity}, {"NAME", "0.5"}},
        {{"DIAMETER", -kInfinity}},
        {{"NAME", std::string_view(withNul)}, {"COUNT", std::numeric_limits<std::int64_t>::min()}},
        {{"COUNT", std::numeric_limits<std::int64_t>::max()}, {"NAME", 0.1}},
        {{"NAME", "\xFF ill-formed \xC3"}},
        {{"COUNT", 1.5}, {"DIAMETER", 5e-324}},
        {},
    };
    for (const auto& attributes : cases) {
        auto line = std::make_unique<AcDbPolyline>(std::vector<AcGePoint3d>{{0, 0}, {1, 1}});
        for (const auto& [name, value] : attributes) {
            line->setAttribute(Name(name), value);
        }
        database.appendEntity(std::move(line));
    }
    SaveNew(database, "kinds.gpkg");
    EXPECT_EQ(DescribeFile("kinds.gpkg"), Describe(database));
}

TEST_F(StorageTest, AttributesOfAnyNameComeBack) {
    AcDbDatabase database;
    auto point = std::make_unique<AcDbPoint>(AcGePoint3d{1, 2});
    int value = 0;
    const std::string longName(80, 'n');
    for (const std::string& name : std::vector<std::string>{
             "Name",      "NAME",        "name",          "fid",          "FID",
             "geom",      "rowid",       "orv_layer",     "ORV_EXTRA",    "",
             " ",         "select",      "a\"b",          "a'b",          "a`b",
             "new\nline", "d\u00E9bit",  "D\u00C9BIT",    "\xFF\xFE",     "Name_1",
             "x=1",       "back\\slash", "percent %d %s", longName + "1", longName + "2"}) {
        point->setAttribute(Name(name.c_str()), value++);
    }
    database.appendEntity(std::move(point));
    SaveNew(database, "names.gpkg");
    EXPECT_EQ(DescribeFile("names.gpkg"), Describe(database));

    const auto again = Open("names.gpkg");
    Edit<AcDbPoint>(*again, AcDbObjectId(3), [](AcDbPoint& changed) {
        changed.setAttribute(Name("nAME"), "added later");
        changed.setAttribute(Name("Name"), "changed");
    });
    Save(*again, "names.gpkg");
    EXPECT_EQ(DescribeFile("names.gpkg"), Describe(*again));
}

TEST_F(StorageTest, MoreAttributesThanATableCanHaveColumnsComeBack) {
    AcDbDatabase database;
    auto point = std::make_unique<AcDbPoint>(AcGePoint3d{1, 2});
    for (int i = 0; i < 1200; ++i) {
        point->setAttribute(Name(("attribute " + std::to_string(i)).c_str()), i);
    }
    database.appendEntity(std::move(point));
    SaveNew(database, "many.gpkg");
    EXPECT_EQ(DescribeFile("many.gpkg"), Describe(database));
}

TEST_F(StorageTest, ASaveWritesWhatChangedAndNothingElse) {
    AcDbDatabase database;
    std::vector<AcDbObjectId> ids;
    for (int i = 0; i < 50; ++i) {
        ids.push_back(AddNode(database, i, 2 * i, "node"));
    }
    const AcDbObjectId line = AddLine(database, {{0, 0}, {1, 1}});
    SaveNew(database, "plan.gpkg");
    Sqlite(m_folder.Native("plan.gpkg"))
        .Execute("CREATE TABLE touched (what TEXT, id INTEGER);"
                 "CREATE TRIGGER t1 AFTER UPDATE ON nodes BEGIN "
                 "INSERT INTO touched VALUES ('update', NEW.fid); END;"
                 "CREATE TRIGGER t2 AFTER INSERT ON nodes BEGIN "
                 "INSERT INTO touched VALUES ('insert', NEW.fid); END;"
                 "CREATE TRIGGER t3 AFTER DELETE ON nodes BEGIN "
                 "INSERT INTO touched VALUES ('delete', OLD.fid); END;"
                 "CREATE TRIGGER t4 AFTER UPDATE ON sections BEGIN "
                 "INSERT INTO touched VALUES ('section', NEW.fid); END;");

    Edit<AcDbPoint>(database, ids[7],
                    [](AcDbPoint& point) { point.setAttribute(Name("NAME"), "changed"); });
    Edit<AcDbPoint>(database, ids[9], [](AcDbPoint& point) { point.erase(); });
    const AcDbObjectId added = AddNode(database, 3, 3, "added");
    const AcDbObjectId brief = AddNode(database, 4, 4, "brief");
    Edit<AcDbPoint>(database, brief, [](AcDbPoint& point) { point.erase(); });
    Save(database, "plan.gpkg");
    EXPECT_EQ(DumpTable(m_folder.Native("plan.gpkg"), "touched"),
              "'update'|" + std::to_string(ids[7].number()) + "\n'delete'|" +
                  std::to_string(ids[9].number()) + "\n'insert'|" + std::to_string(added.number()) +
                  "\n");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));

    Edit<AcDbPoint>(database, ids[9], [](AcDbPoint& point) { point.erase(false); });
    Edit<AcDbPolyline>(database, line, [](AcDbPolyline& section) { section.erase(); });
    Save(database, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database))
        << "an erased object that was restored";
}

TEST_F(StorageTest, IdsOfRowsStayTheirsWhateverIsUndone) {
    AcDbDatabase database;
    AddNode(database, 1, 1, "first");
    AddNode(database, 2, 2, "second");
    SaveNew(database, "plan.gpkg");
    std::uint32_t highest = 0;
    for (const bool isSavedUndone : {false, true, false}) {
        database.undo().undo();
        if (isSavedUndone) {
            Save(database, "plan.gpkg");
            EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));
        }
        AddNode(database, 3, 3, "never saved");
        database.undo().undo();
        const AcDbObjectId id = AddLine(database, {{0, 0}, {1, 1}});
        EXPECT_GT(id.number(), highest);
        highest = id.number();
        Save(database, "plan.gpkg");
        EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));
    }
}

TEST_F(StorageTest, SymbolsAndRecordsAreSavedAsTheyChange) {
    AcDbDatabase database;
    Fill(database);
    SaveNew(database, "plan.gpkg");
    Edit<AcDbDictionary>(database, database.findDictionary(L"__HV__"), [](AcDbDictionary& records) {
        records.setAt(L"version", L"8.1");
        records.setAt(L"added", L"text");
        records.remove(L"long");
    });
    Edit<AcDbDictionary>(database, database.findDictionary(L"__hv__"),
                         [](AcDbDictionary& records) { records.erase(); });
    Edit<AcDbLayerTableRecord>(database, database.layer(L"Gas"),
                               [](AcDbLayerTableRecord& layer) { layer.setColorIndex(2); });
    Save(database, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));
}

TEST_F(StorageTest, ExtentsForOtherProgramsFollowWhatMovesAndGoes) {
    AcDbDatabase database;
    std::vector<AcDbObjectId> ids;
    for (int i = 0; i < 4; ++i) {
        ids.push_back(AddNode(database, (i + 1) / 7.0, i / 3.0, "node"));
    }
    SaveNew(database, "plan.gpkg");
    const auto expectExtent = [&](double minX, double minY, double maxX, double maxY) {
        Save(database, "plan.gpkg");
        char sql[400];
        // Converting to text may lose the last digits.
        std::snprintf(sql, sizeof sql,
                      "SELECT abs(min_x - %.17g) + abs(min_y - %.17g) + abs(max_x - %.17g) + "
                      "abs(max_y - %.17g) < 1e-9 FROM gpkg_contents WHERE table_name = 'nodes'",
                      minX, minY, maxX, maxY);
        EXPECT_EQ(Sqlite(m_folder.Native("plan.gpkg")).Query(sql), "1\n") << minX << " " << maxX;
    };
    Edit<AcDbPoint>(database, ids[3], [](AcDbPoint& point) { point.erase(); });
    expectExtent(1 / 7.0, 0, 3 / 7.0, 2 / 3.0);
    Edit<AcDbPoint>(database, ids[0], [](AcDbPoint& point) { point.setPosition({0.3, -7}); });
    expectExtent(2 / 7.0, -7, 3 / 7.0, 2 / 3.0);
    Edit<AcDbPoint>(database, ids[0], [](AcDbPoint& point) { point.setPosition({kNaN, kNaN}); });
    AddNode(database, 9, 9, "added");
    expectExtent(2 / 7.0, 1 / 3.0, 9, 9);
}

/// An entity of a class defined by a module.
class Special final : public AcDbEntity {
public:
    AcRxClass* isA() const override { return AcDbEntity::desc(); }
    AcGeExtents2d extents() const override { return {}; }
    std::unique_ptr<AcDbObject> clone() const override { return std::make_unique<Special>(); }

protected:
    void swapBody(AcDbObject&) override {}
};

TEST_F(StorageTest, EntitiesOfUnknownClassesAreCountedAndTheRestIsSaved) {
    AcDbDatabase database;
    AddNode(database, 1, 1, "node");
    database.appendEntity(std::make_unique<Special>());
    SaveNew(database, "plan.gpkg");
    ASSERT_EQ(m_warnings.size(), 1U);
    EXPECT_EQ(m_warnings[0].Find(L"1 objects of unsupported types were not saved"), 0);
    EXPECT_EQ(Open("plan.gpkg")->entityCount(), 1U);
}

TEST_F(StorageTest, CoordinatesOfWhichNothingIsKnownAreNoDegrees) {
    AcDbDatabase database;
    AddNode(database, 500'000, 5'000'000, "far from any degree");
    SaveNew(database, "plan.gpkg");
    EXPECT_EQ(
        Sqlite(m_folder.Native("plan.gpkg")).Query("SELECT srs_id FROM gpkg_geometry_columns"),
        "-1\n");
    EXPECT_TRUE(Open("plan.gpkg")->coordinateSystem().IsEmpty());
}

TEST_F(StorageTest, AnotherCoordinateSystemReachesEveryGeometry) {
    AcDbDatabase database;
    Fill(database);
    SaveNew(database, "plan.gpkg");
    const std::string wkt = "GEOGCS[\"WGS 84\",DATUM[\"WGS_1984\",SPHEROID[\"WGS 84\",6378137,"
                            "298.257223563]],PRIMEM[\"Greenwich\",0],UNIT[\"degree\","
                            "0.0174532925199433],AUTHORITY[\"EPSG\",\"4326\"]]";
    database.setCoordinateSystem(CString(Utf8ToWide(wkt)));
    AddNode(database, 5, 5, "added with it");
    Save(database, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));
    Sqlite file(m_folder.Native("plan.gpkg"));
    EXPECT_EQ(file.Query("SELECT DISTINCT srs_id FROM gpkg_geometry_columns"), "4326\n");
    EXPECT_EQ(file.Query("SELECT DISTINCT srs_id FROM gpkg_contents WHERE data_type='features'"),
              "4326\n");
    EXPECT_EQ(file.Query("SELECT DISTINCT hex(substr(geom, 5, 4)) FROM nodes"), "'E6100000'\n");
    EXPECT_TRUE(Leftovers({"plan.gpkg"}).empty());
}

} // namespace
} // namespace Tessaly
