// Imports files from other programs as plain values: completely or not at all.
#include <cmath>
#include <csignal>
#include <ogrsf_frmts.h>
#include <sys/stat.h>

#include "host/storage/Import.h"
#include "platform/win/CodePage.h"
#include "tests/host/storage/StorageFixture.h"

namespace Tessaly {
namespace {

class ImportTest : public testing::Test {
protected:
    AcDbImportResult Import(const std::string& name, const AcDbProgress& progress = {}) {
        return MakeImporter()->Import(m_folder.Wide(name), progress);
    }
    /// Expects a refusal and returns its reason.
    std::string WhyNot(const std::string& name) {
        const AcDbImportResult result = Import(name);
        EXPECT_FALSE(result.ok()) << name;
        EXPECT_TRUE(result.layers.empty()) << "nothing may be half imported";
        const std::string reason = WideToUtf8(result.reason.View());
        EXPECT_EQ(reason.find(m_folder.Native(name)), 0U) << reason;
        return reason;
    }
    /// Points in a file of any format.
    void WriteWith(const char* driver, const std::string& name, int points) {
        GDALAllRegister();
        GDALDriver* pDriver = GetGDALDriverManager()->GetDriverByName(driver);
        ASSERT_TRUE(pDriver);
        const GDALDatasetUniquePtr dataset{
            pDriver->Create(m_folder.Native(name).c_str(), 0, 0, 0, GDT_Unknown, nullptr)};
        OGRSpatialReference reference;
        reference.importFromEPSG(32633);
        OGRLayer* pLayer = dataset->CreateLayer("points", &reference, wkbPoint25D, nullptr);
        OGRFieldDefn field("NAME", OFTString);
        pLayer->CreateField(&field);
        for (int i = 0; i < points; ++i) {
            OGRFeature feature(pLayer->GetLayerDefn());
            feature.SetField(0, ("N" + std::to_string(i)).c_str());
            feature.SetGeometryDirectly(new OGRPoint(i, i, i));
            ASSERT_EQ(pLayer->CreateFeature(&feature), OGRERR_NONE);
        }
    }
    static std::string Collection(const std::string& features) {
        return R"({"type":"FeatureCollection","features":[)" + features + "]}";
    }
    static std::string Row(const std::string& geometry, const std::string& properties = "{}") {
        return R"({"type":"Feature","properties":)" + properties + R"(,"geometry":)" + geometry +
               "}";
    }

    TempFolder m_folder;
};

TEST_F(ImportTest, AllShapesAndValuesOfAFileAreThere) {
    m_folder.Write(
        "town.geojson",
        Collection(
            Row(R"({"type":"Point","coordinates":[1,2,3]})", R"({"n":1.5,"t":"a","none":null})") +
            "," +
            Row(R"({"type":"MultiLineString","coordinates":[[[0,0],[1,1]],[[2,2],[3,3]]]})",
                R"({"n":2,"t":"b"})") +
            "," +
            Row(R"({"type":"Polygon","coordinates":[[[0,0],[9,0],[9,9],[0,0]],[[1,1],[2,1],[2,2],[1,1]]]})") +
            "," + Row("null")));
    const AcDbImportResult result = Import("town.geojson");
    ASSERT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
    ASSERT_EQ(result.layers.size(), 1U);
    EXPECT_EQ(WideToUtf8(result.layers[0].name.View()), "town");
    EXPECT_NE(result.layers[0].coordinateSystem.Find(L"WGS 84"), -1);
    const auto& features = result.layers[0].features;
    ASSERT_EQ(features.size(), 4U);
    using Kind = AcDbImportFeature::Kind;
    EXPECT_EQ(features[0].kind, Kind::Point);
    EXPECT_EQ(features[0].points.at(0).z, 3);
    EXPECT_EQ(features[0].attributes.get(Name("n")).asReal(), 1.5);
    EXPECT_FALSE(features[0].attributes.has(Name("none")));
    EXPECT_EQ(features[1].kind, Kind::Line);
    EXPECT_EQ(features[2].row, 2);
    EXPECT_EQ(features[2].attributes.get(Name("t")).asText(), "b") << "both parts have it";
    EXPECT_TRUE(std::isnan(features[2].points.at(1).z));
    EXPECT_EQ(features[3].kind, Kind::Polygon);
    ASSERT_EQ(features[3].rings.size(), 2U);
    EXPECT_EQ(features[3].rings[0].points.size(), 3U) << "the first point is not repeated";
    EXPECT_TRUE(features[3].rings[1].isHole);
    EXPECT_EQ(result.warnings.size(), 1U) << "of the row without a geometry";
}

TEST_F(ImportTest, TheFormatsOfTheTradeAreRead) {
    for (const auto& [driver, name] : {std::pair("GPKG", "p.gpkg"),
                                       {"GeoJSON", "p.geojson"},
                                       {"ESRI Shapefile", "p.shp"},
                                       {"GML", "p.gml"},
                                       {"FlatGeobuf", "p.fgb"}}) {
        WriteWith(driver, name, 20);
        const AcDbImportResult result = Import(name);
        ASSERT_TRUE(result.ok()) << driver << " " << WideToUtf8(result.reason.View());
        ASSERT_EQ(result.layers.size(), 1U) << driver;
        ASSERT_EQ(result.layers[0].features.size(), 20U) << driver;
        bool isThere = false;
        for (const AcDbImportFeature& feature : result.layers[0].features) {
            isThere = isThere || (feature.attributes.get(Name("NAME")).asText() == "N7" &&
                                  feature.points.at(0).x == 7 && feature.points[0].z == 7);
        }
        EXPECT_TRUE(isThere) << driver;
    }
}

const std::string kDxf = "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nPipes\n10\n0.0\n20\n0.0\n30\n"
                         "5.0\n11\n10.0\n21\n0.0\n31\n6.0\n0\nCIRCLE\n8\nWells\n10\n5.0\n20\n"
                         "5.0\n40\n2.0\n0\nENDSEC\n0\nEOF\n";

TEST_F(ImportTest, ADxfThatIsCutOrDamagedIsRefusedInTime) {
    std::string lines;
    for (const char c : kDxf) {
        lines += c == '\n' ? "\r\n" : std::string(1, c);
    }
    m_folder.Write("plan.dxf", lines);
    EXPECT_TRUE(Import("plan.dxf").ok());
    for (std::size_t length = 1; length < lines.size() - 5; ++length) {
        m_folder.Write("plan.dxf", lines.substr(0, length));
        WhyNot("plan.dxf");
    }
    lines[lines.find("\r\n10") + 1] = '\0';
    m_folder.Write("plan.dxf", lines);
    WhyNot("plan.dxf");
    // A word that makes another driver claim the file.
    m_folder.Write("plan.dxf", lines.insert(lines.find("Pipes"), "<kml:kml"));
    WhyNot("plan.dxf");
}

TEST_F(ImportTest, ADxfKeepsItsLayersAsValues) {
    m_folder.Write("plan.dxf", kDxf);
    const AcDbImportResult result = Import("plan.dxf");
    ASSERT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
    const auto& features = result.layers.at(0).features;
    ASSERT_EQ(features.size(), 2U);
    EXPECT_EQ(features[0].attributes.get(Name("Layer")).asText(), "Pipes");
    EXPECT_EQ(features[0].points.at(1).z, 6);
    EXPECT_EQ(features[1].attributes.get(Name("Layer")).asText(), "Wells");
    EXPECT_GT(features[1].points.size(), 16U) << "the circle is stroked";
}

TEST_F(ImportTest, AnImpossiblePositionRefusesTheFileAndNamesTheRow) {
    const std::string good = Row(R"({"type":"Point","coordinates":[1,2]})");
    for (const char* bad : {R"({"type":"Point","coordinates":[1e300,0]})",
                            R"({"type":"LineString","coordinates":[[0,0],[0,-1e16]]})",
                            R"({"type":"Polygon","coordinates":[[[0,0],[9,0],[9,1e20],[0,0]]]})",
                            R"({"type":"MultiPoint","coordinates":[[0,0],[1e16,0]]})",
                            R"({"type":"Point","coordinates":[0,0,1e99]})",
                            R"({"type":"Point","coordinates":[NaN,2]})",
                            R"({"type":"LineString","coordinates":[[0,0],[NaN,2]]})"}) {
        m_folder.Write("bad.geojson", Collection(good + "," + good + "," + Row(bad) + "," + good));
        EXPECT_NE(WhyNot("bad.geojson").find("layer \"bad\", row 3: invalid position"),
                  std::string::npos)
            << bad;
    }
    m_folder.Write("bad.csv", "WKT,NAME\nPOINT(1 2),a\nPOINT EMPTY,b\nPOINT(nan 3),c\n");
    EXPECT_NE(WhyNot("bad.csv").find("row 3: invalid position"), std::string::npos);
}

TEST_F(ImportTest, AFileThatIsCutIsRefusedNotReadInHalf) {
    for (const auto& [driver, name] : {std::pair("GPKG", "p.gpkg"),
                                       {"GeoJSON", "p.geojson"},
                                       {"ESRI Shapefile", "p.shp"},
                                       {"FlatGeobuf", "p.fgb"}}) {
        WriteWith(driver, name, 3000);
        const std::string whole = m_folder.Read(name);
        for (const double part : {0.2, 0.5, 0.9}) {
            m_folder.Write(name, whole.substr(0, static_cast<std::size_t>(
                                                     part * static_cast<double>(whole.size()))));
            WhyNot(name);
        }
    }
}

TEST_F(ImportTest, FilesThatPointElsewhereAreNotFollowed) {
    WriteWith("GeoJSON", "p.geojson", 3);
    m_folder.Write("link.vrt", "<OGRVRTDataSource><OGRVRTLayer name=\"points\"><SrcDataSource>" +
                                   m_folder.Native("p.geojson") +
                                   "</SrcDataSource></OGRVRTLayer></OGRVRTDataSource>");
    WhyNot("link.vrt");
}

TEST_F(ImportTest, ProgressIsToldAndStopsIt) {
    WriteWith("GPKG", "p.gpkg", 13'000);
    std::vector<int> told;
    EXPECT_TRUE(Import("p.gpkg", [&](int percent) {
                    told.push_back(percent);
                    return true;
                }).ok());
    ASSERT_GE(told.size(), 3U);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_GT(told.back(), 50);
    EXPECT_LE(told.back(), 100);
    const AcDbImportResult stopped = Import("p.gpkg", [](int) { return false; });
    EXPECT_NE(stopped.reason.Find(L"stopped"), -1);
    EXPECT_TRUE(stopped.layers.empty());
}

TEST_F(ImportTest, ADrawingIsImportedWithoutItsOwnColumns) {
    AcDbDatabase database;
    AddNode(database, 1, 2, "one");
    ASSERT_TRUE(MakeGeoPackageStorage()->SaveAs(database, L"", m_folder.Wide("d.gpkg"), {}).ok());
    const AcDbImportResult result = Import("d.gpkg");
    ASSERT_TRUE(result.ok());
    ASSERT_EQ(result.layers.size(), 1U);
    EXPECT_EQ(result.layers[0].features.at(0).attributes.size(), 2U);
}

} // namespace
} // namespace Tessaly
