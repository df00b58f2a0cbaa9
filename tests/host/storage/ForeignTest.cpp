// GeoPackages from other programs: shown unchanged, and never written to.
#include <cmath>
#include <map>
#include <ogrsf_frmts.h>

#include "platform/win/CodePage.h"
#include "tests/host/storage/StorageFixture.h"

namespace Tessaly {
namespace {

class ForeignTest : public StorageTest {
protected:
    ForeignTest() { GDALAllRegister(); }

    /// A table with a text and a number column and one row per geometry (WKT; empty: null).
    void AddTable(const std::string& file, const std::string& table, OGRwkbGeometryType type,
                  const std::vector<std::string>& geometries) {
        const std::string path = m_folder.Native(file);
        GDALDriver* pDriver = GetGDALDriverManager()->GetDriverByName("GPKG");
        const GDALDatasetUniquePtr dataset{
            std::filesystem::exists(path)
                ? GDALDataset::Open(path.c_str(), GDAL_OF_VECTOR | GDAL_OF_UPDATE)
                : pDriver->Create(path.c_str(), 0, 0, 0, GDT_Unknown, nullptr)};
        ASSERT_TRUE(dataset);
        // Without a spatial index, whose triggers call functions that plain SQLite does not have.
        static const char* const kOptions[] = {"SPATIAL_INDEX=NO", nullptr};
        OGRSpatialReference reference;
        reference.importFromEPSG(32633);
        OGRLayer* pLayer =
            dataset->CreateLayer(table.c_str(), &reference, type, const_cast<char**>(kOptions));
        ASSERT_TRUE(pLayer);
        for (const auto& [name, fieldType] : {std::pair("n\xC3\xA1zev", OFTString),
                                              {"count", OFTInteger},
                                              {"when", OFTDate},
                                              {"bytes", OFTBinary},
                                              {"length", OFTReal}}) {
            OGRFieldDefn field(name, fieldType);
            pLayer->CreateField(&field);
        }
        int number = 0;
        for (const std::string& wkt : geometries) {
            OGRFeature feature(pLayer->GetLayerDefn());
            feature.SetField(0, ("row " + std::to_string(++number)).c_str());
            feature.SetField(1, number);
            feature.SetField(2, 2020, 2, 29);
            feature.SetField(3, 2, "\x01\xFF");
            OGRGeometry* pGeometry = nullptr;
            if (!wkt.empty()) {
                OGRGeometryFactory::createFromWkt(wkt.c_str(), nullptr, &pGeometry);
                ASSERT_TRUE(pGeometry) << wkt;
                feature.SetGeometryDirectly(pGeometry);
            }
            ASSERT_EQ(pLayer->CreateFeature(&feature), OGRERR_NONE);
        }
    }
    void Run(const std::string& file, const std::string& sql) {
        Sqlite(m_folder.Native(file)).Execute(sql);
    }
    /// Entities on the layer of a table, in file order.
    static std::vector<const AcDbEntity*> On(const AcDbDatabase& database, const char* layer) {
        std::vector<const AcDbEntity*> found;
        database.forEachEntity([&](const AcDbEntity& entity) {
            if (WideToUtf8(entity.layer().View()) == layer) {
                found.push_back(&entity);
            }
        });
        return found;
    }
    bool HasWarning(const char* part) const {
        for (const CString& warning : m_warnings) {
            if (WideToUtf8(warning.View()).find(part) != std::string::npos) {
                return true;
            }
        }
        return false;
    }
    /// All tables of the other program, except what every write updates.
    std::string DumpForeign(const std::string& file, const std::vector<std::string>& tables) {
        std::string all;
        for (const std::string& table : tables) {
            all += table + "\n" + DumpTable(m_folder.Native(file), table);
            all += Sqlite(m_folder.Native(file))
                       .Query("SELECT * FROM gpkg_contents WHERE table_name = '" + table + "'");
            all += Sqlite(m_folder.Native(file))
                       .Query("SELECT * FROM gpkg_geometry_columns WHERE table_name = '" + table +
                              "'");
            all += Sqlite(m_folder.Native(file))
                       .Query("SELECT sql FROM sqlite_master WHERE tbl_name = '" + table + "'");
        }
        return all;
    }
};

TEST_F(ForeignTest, ShapesOfAnyKindBecomePlainEntities) {
    AddTable("town.gpkg", "m\xC4\x9Bsto \"1\"", wkbUnknown,
             {"POINT (1 2)", "POINT Z (1 2 3)", "POINT M (1 2 9)", "POINT ZM (1 2 3 9)",
              "LINESTRING (0 0,1 1)", "MULTIPOINT (1 1,2 2)",
              "MULTILINESTRING ((0 0,1 1),(2 2,3 3,4 4))",
              "POLYGON ((0 0,9 0,9 9,0 0),(1 1,2 1,2 2,1 1))",
              "MULTIPOLYGON (((0 0,9 0,9 9,0 0)),((20 20,29 20,29 29,20 20)))",
              "GEOMETRYCOLLECTION (POINT (1 1),LINESTRING (0 0,1 1))"});
    const auto database = Open("town.gpkg");
    std::string shapes;
    for (const AcDbEntity* pEntity : On(*database, "m\xC4\x9Bsto \"1\"")) {
        shapes += WideToUtf8(pEntity->isA()->name().View()) + " ";
    }
    EXPECT_EQ(shapes,
              "AcDbPoint AcDbPoint AcDbPoint AcDbPoint AcDbPolyline AcDbPoint AcDbPoint "
              "AcDbPolyline AcDbPolyline AcDbMPolygon AcDbMPolygon AcDbPoint AcDbPolyline ");
    const std::vector<const AcDbEntity*> entities = On(*database, "m\xC4\x9Bsto \"1\"");
    const auto height = [&](std::size_t i) {
        return dynamic_cast<const AcDbPoint&>(*entities[i]).position().z;
    };
    EXPECT_TRUE(std::isnan(height(0)));
    EXPECT_EQ(height(1), 3);
    EXPECT_TRUE(std::isnan(height(2))) << "a measure is not a height";
    EXPECT_EQ(height(3), 3);
    EXPECT_EQ(entities[9]->attributes().size(), 3U);
    EXPECT_EQ(entities[6]->attribute(Name("n\xC3\xA1zev")).asText(), "row 6") << "of both parts";
    EXPECT_EQ(entities[6]->attribute(Name("count")).asInteger(), 6);
    EXPECT_EQ(entities[6]->attribute(Name("when")).asText(), "2020-02-29");
    EXPECT_TRUE(HasWarning("bytes")) << "binary columns are reported";
    EXPECT_NE(WideToUtf8(database->coordinateSystem().View()).find("UTM zone 33N"),
              std::string::npos);
    EXPECT_FALSE(database->isModified());
}

TEST_F(ForeignTest, CurvesAreStroked) {
    AddTable("town.gpkg", "curves", wkbUnknown,
             {"CIRCULARSTRING (0 0,1 1,2 0)",
              "COMPOUNDCURVE ((5 5,0 0),CIRCULARSTRING (0 0,1 1,2 0))",
              "CURVEPOLYGON (CIRCULARSTRING (0 0,1 1,2 0,1 -1,0 0))",
              "MULTICURVE ((5 5,0 0),CIRCULARSTRING (0 0,1 1,2 0))"});
    const auto database = Open("town.gpkg");
    const auto entities = On(*database, "curves");
    ASSERT_EQ(entities.size(), 5U);
    for (const std::size_t i : {0U, 1U, 4U}) {
        const auto vertices = dynamic_cast<const AcDbPolyline&>(*entities[i]).vertices();
        EXPECT_GT(vertices.size(), 10U);
        for (const AcGePoint3d& vertex : vertices.last(vertices.size() - 1)) {
            EXPECT_NEAR(std::hypot(vertex.x - 1, vertex.y), 1, 1e-6);
        }
    }
    EXPECT_GT(dynamic_cast<const AcDbMPolygon&>(*entities[2]).rings().at(0).points.size(), 20U);
}

TEST_F(ForeignTest, RowsThatCannotBeShownAreCountedAndNamed) {
    AddTable("town.gpkg", "points", wkbUnknown,
             {"POINT (1 1)", "", "POINT EMPTY", "LINESTRING EMPTY", "POINT (1e300 0)",
              "LINESTRING (0 0,1 -1e16)", "MULTIPOINT (0 0,1e200 0)", "POINT (2 2)"});
    const auto database = Open("town.gpkg");
    EXPECT_EQ(On(*database, "points").size(), 2U);
    EXPECT_TRUE(HasWarning("points: skipped 3 rows: no geometry (the first is "
                           "row 2)"));
    EXPECT_TRUE(HasWarning("points: skipped 3 rows: invalid position "
                           "(the first is row 5)"));
}

TEST_F(ForeignTest, ViewsAreLayersAndTablesWithoutGeometryAreNot) {
    AddTable("town.gpkg", "points", wkbPoint, {"POINT (1 1)", "POINT (2 2)", "POINT (3 3)"});
    AddTable("town.gpkg", "prices", wkbNone, {"", ""});
    Run("town.gpkg",
        "CREATE VIEW some AS SELECT fid AS OGC_FID, geom, count FROM points WHERE count > 1;"
        "INSERT INTO gpkg_contents (table_name, identifier, data_type, srs_id) "
        "VALUES ('some', 'some', 'features', 32633);"
        "INSERT INTO gpkg_geometry_columns VALUES ('some', 'geom', 'POINT', 32633, 0, 0);");
    const auto database = Open("town.gpkg");
    EXPECT_EQ(On(*database, "points").size(), 3U);
    EXPECT_EQ(On(*database, "some").size(), 2U);
    EXPECT_TRUE(database->findLayer(L"prices").isNull());

    // A view of our own objects would show them twice.
    AddNode(*database, 1, 1, "ours");
    Save(*database, "town.gpkg");
    Run("town.gpkg",
        "CREATE VIEW ours AS SELECT n.* FROM NODES AS n, points AS p WHERE n.fid <> p.fid;"
        "INSERT INTO gpkg_contents (table_name, identifier, data_type, srs_id) "
        "VALUES ('ours', 'ours', 'features', 32633);"
        "INSERT INTO gpkg_geometry_columns VALUES ('ours', 'geom', 'POINT', 32633, 0, 0);");
    EXPECT_EQ(Open("town.gpkg")->entityCount(), 6U);
    EXPECT_TRUE(HasWarning("ours: it is passed over"));
}

TEST_F(ForeignTest, ASaveLeavesForeignTablesAsTheyAre) {
    AddTable("town.gpkg", "nodes", wkbPoint, {"POINT (1 1)", "POINT Z (2 2 2)", ""});
    AddTable("town.gpkg", "k\xC5\x99ivky", wkbUnknown, {"CIRCULARSTRING (0 0,1 1,2 0)"});
    Run("town.gpkg", "UPDATE gpkg_contents SET min_x = 77, max_x = 66;");
    const std::vector<std::string> tables = {"nodes", "k\xC5\x99ivky"};
    const std::string before = DumpForeign("town.gpkg", tables);

    const auto database = Open("town.gpkg");
    AddNode(*database, 5, 5, "ours");
    AddLine(*database, {{0, 0}, {1, 1}});
    Save(*database, "town.gpkg");
    EXPECT_EQ(DumpForeign("town.gpkg", tables), before);
    EXPECT_EQ(DescribeFile("town.gpkg"), Describe(*database));
    EXPECT_EQ(Sqlite(m_folder.Native("town.gpkg")).Query("SELECT NAME FROM nodes_1"), "'ours'\n")
        << "a table with that name already existed";
    EXPECT_EQ(Sqlite(m_folder.Native("town.gpkg")).Query("PRAGMA integrity_check"), "'ok'\n");
}

TEST_F(ForeignTest, AChangedForeignEntityBecomesOurs) {
    AddTable("town.gpkg", "roads", wkbUnknown,
             {"POINT (1 1)", "MULTIPOINT (2 2,3 3,4 4)", "POINT (5 5)", "POINT (6 6)"});
    const std::string before = DumpForeign("town.gpkg", {"roads"});
    const auto database = Open("town.gpkg");
    const auto entities = On(*database, "roads");
    ASSERT_EQ(entities.size(), 6U);
    Edit<AcDbPoint>(*database, entities[2]->objectId(), [](AcDbPoint& point) {
        point.setPosition({33, 33});
        point.setAttribute(Name("count"), "changed");
    });
    Edit<AcDbPoint>(*database, entities[4]->objectId(), [](AcDbPoint& point) { point.erase(); });
    Save(*database, "town.gpkg");
    EXPECT_EQ(DumpForeign("town.gpkg", {"roads"}), before);
    EXPECT_EQ(DescribeFile("town.gpkg"), Describe(*database)) << "ids are the same as well";

    const auto again = Open("town.gpkg");
    Edit<AcDbPoint>(*again, entities[2]->objectId(),
                    [](AcDbPoint& point) { point.setAttribute(Name("count"), "again"); });
    Edit<AcDbPoint>(*again, entities[5]->objectId(),
                    [](AcDbPoint& point) { point.setAttribute(Name("count"), "too"); });
    Save(*again, "town.gpkg");
    EXPECT_EQ(DescribeFile("town.gpkg"), Describe(*again));
    Edit<AcDbPoint>(*again, entities[2]->objectId(), [](AcDbPoint& point) { point.erase(); });
    Save(*again, "town.gpkg");
    EXPECT_EQ(DescribeFile("town.gpkg"), Describe(*again));
    EXPECT_EQ(DumpForeign("town.gpkg", {"roads"}), before);
}

TEST_F(ForeignTest, IdsOfForeignEntitiesStayWhenTheirTableGrows) {
    AddTable("town.gpkg", "roads", wkbPoint, {"POINT (1 1)", "POINT (2 2)"});
    auto database = Open("town.gpkg");
    AddNode(*database, 5, 5, "ours");
    Save(*database, "town.gpkg");
    const std::uint32_t nextId = database->nextId();
    EXPECT_EQ(Open("town.gpkg")->nextId(), nextId);

    Run("town.gpkg", "INSERT INTO roads (geom, count) SELECT geom, 99 FROM roads WHERE fid = 1;");
    const auto grown = Open("town.gpkg");
    EXPECT_EQ(grown->nextId(), nextId + 1) << "the new row alone has a new id";
    EXPECT_EQ(grown->entityCount(), 4U);
    AddNode(*grown, 6, 6, "ours too");
    Save(*grown, "town.gpkg");
    EXPECT_EQ(DescribeFile("town.gpkg"), Describe(*grown));
}

TEST_F(ForeignTest, SaveAsTakesForeignTablesAlong) {
    AddTable("town.gpkg", "roads", wkbPoint, {"POINT (1 1)", "POINT (2 2)"});
    const std::string before = DumpForeign("town.gpkg", {"roads"});
    const std::string bytes = m_folder.Read("town.gpkg");
    const auto database = Open("town.gpkg");
    AddNode(*database, 5, 5, "ours");
    m_folder.Write("copy.gpkg", "an older file in the way");
    EXPECT_TRUE(
        m_storage->SaveAs(*database, m_folder.Wide("town.gpkg"), m_folder.Wide("copy.gpkg"), {})
            .ok());
    EXPECT_EQ(m_folder.Read("town.gpkg"), bytes);
    EXPECT_EQ(DumpForeign("copy.gpkg", {"roads"}), before);
    EXPECT_EQ(DescribeFile("copy.gpkg"), Describe(*database));
    AddNode(*database, 6, 6, "later");
    Save(*database, "copy.gpkg");
    EXPECT_EQ(DescribeFile("copy.gpkg"), Describe(*database));
    EXPECT_TRUE(Leftovers({"town.gpkg", "copy.gpkg"}).empty());
}

TEST_F(ForeignTest, RowsThatAnotherProgramAddsToOurTablesAreKept) {
    AcDbDatabase database;
    const AcDbObjectId node = AddNode(database, 1, 1, "first");
    const AcDbObjectId line = AddLine(database, {{0, 0}, {1, 1}});
    SaveNew(database, "plan.gpkg");
    // The line's number, the drawing's next number, a large one, and invalid ones.
    Run("plan.gpkg", "INSERT INTO nodes (fid, geom, NAME, orv_layer) SELECT v.column1, geom, "
                     "v.column2, 'Theirs' FROM nodes, (VALUES (" +
                         std::to_string(line.number()) + ", 'clash'), (" +
                         std::to_string(database.nextId()) +
                         ", 'next'), (4000000000000, 'far'), (-5, 'negative')) AS v;"
                         "ALTER TABLE nodes ADD COLUMN remark TEXT;"
                         "UPDATE nodes SET remark = 'theirs';");
    const auto again = Open("plan.gpkg");
    EXPECT_EQ(again->entityCount(), 6U);
    EXPECT_NE(dynamic_cast<const AcDbPolyline*>(again->peek(line)), nullptr) << "keeps its id";
    EXPECT_EQ(On(*again, "Theirs").size(), 4U);
    for (const AcDbEntity* pEntity : On(*again, "Theirs")) {
        EXPECT_EQ(pEntity->attribute(Name("remark")).asText(), "theirs");
    }
    Edit<AcDbPoint>(*again, On(*again, "Theirs")[0]->objectId(),
                    [](AcDbPoint& point) { point.setAttribute(Name("NAME"), "changed"); });
    Save(*again, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(*again));

    // This time between our reading and our saving.
    Run("plan.gpkg", "INSERT INTO nodes (fid, geom, NAME) SELECT " +
                         std::to_string(again->nextId()) +
                         ", geom, 'meanwhile' FROM nodes "
                         "WHERE fid = " +
                         std::to_string(node.number()) + ";");
    AddNode(*again, 9, 9, "ours, of the same number");
    Save(*again, "plan.gpkg");
    EXPECT_TRUE(HasWarning("another program"));
    const auto last = Open("plan.gpkg");
    EXPECT_EQ(last->entityCount(), 8U);
    EXPECT_NE(Describe(*last).find("'meanwhile'"), std::string::npos);
    EXPECT_NE(Describe(*last).find("'ours, of the same number'"), std::string::npos);
}

TEST_F(ForeignTest, ColumnsOfOtherProgramsInOurTablesKeepTheirValues) {
    AcDbDatabase database;
    const AcDbObjectId node = AddNode(database, 1, 1, "one");
    SaveNew(database, "plan.gpkg");
    Run("plan.gpkg",
        "ALTER TABLE nodes ADD COLUMN built DATE; ALTER TABLE nodes ADD COLUMN seen DATETIME;"
        "ALTER TABLE nodes ADD COLUMN small TINYINT; ALTER TABLE nodes ADD COLUMN short TEXT(3);"
        "ALTER TABLE nodes ADD COLUMN good BOOLEAN; ALTER TABLE nodes ADD COLUMN photo BLOB;"
        "ALTER TABLE nodes ADD COLUMN f FLOAT; ALTER TABLE nodes DROP COLUMN orv_extra;"
        "UPDATE nodes SET built = '2020-02-29', seen = '2020-02-29T10:11:12Z', small = 7,"
        "short = 'abc', good = 1, photo = x'0102', f = 0.1;");
    const auto again = Open("plan.gpkg");
    Edit<AcDbPoint>(*again, node, [](AcDbPoint& point) {
        EXPECT_EQ(point.attribute(Name("seen")).asText(), "2020-02-29T10:11:12Z");
        point.setAttribute(Name("NAME"), 12);
        point.setAttribute(Name("small"), std::int64_t{1} << 40);
        point.setAttribute(Name("short"), "longer than that");
    });
    Save(*again, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(*again));
    EXPECT_EQ(Sqlite(m_folder.Native("plan.gpkg"))
                  .Query("SELECT built, seen, small, short, good, photo, f FROM nodes"),
              "'2020-02-29'|'2020-02-29T10:11:12Z'|1099511627776|'longer than that'|1|x'0102'|"
              "0.10000000000000001\n");
    Edit<AcDbPoint>(*again, node, [](AcDbPoint& point) {
        point.setAttribute(Name("built"), "some day");
        point.setAttribute(Name("good"), "yes");
    });
    Save(*again, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(*again));
}

} // namespace
} // namespace Tessaly
