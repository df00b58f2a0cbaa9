// Networks from network files to the drawing, to disk and back.
#include <cmath>
#include <filesystem>
#include <sqlite3.h>

#include "host/storage/Import.h"
#include "host/storage/OpenAndSave.h"
#include "plugins/network/InpReader.h"
#include "plugins/network/NetworkDrawing.h"
#include "plugins/network/NetworkLayers.h"
#include "siblings/cadwrapper/DictionaryPtr.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "tests/support/NetworkFiles.h"
#include "tests/support/TestDrawing.h"

using namespace Orvane;
using namespace Orvane::Network;
using Topology::CTopologyStorage;

namespace {

void Append(std::string& text, const AcGePoint3d& point) {
    const auto number = [](double value) {
        return std::isnan(value) ? std::string("-") : std::to_string(value);
    };
    text += " (" + number(point.x) + " " + number(point.y) + " " + number(point.z) + ")";
}

void AppendCommon(std::string& text, const Topology::CEntity& entity) {
    text += std::to_string(entity.GetObjectId().number()) + " " +
            std::to_string(entity.GetSystemId()) + " " + std::string(entity.GetNameUtf8()) + " " +
            std::string(entity.GetKindUtf8());
    for (const Topology::AttributeData& attribute : entity.GetAttributes()) {
        const auto real = attribute.value.asReal();
        text += " " + std::string(attribute.name) + "=" +
                (real ? std::to_string(*real) : std::string(attribute.value.asText()));
    }
}

/// The complete network content of a drawing, one entity per line.
std::string Describe(const CTopologyStorage& storage) {
    std::string text;
    for (const auto node : storage.GetNodeVector()) {
        AppendCommon(text += "node ", node);
        Append(text, node.GetPosition());
        text += "\n";
    }
    for (const auto section : storage.GetSectionVector()) {
        AppendCommon(text += "section ", section);
        text += " " + std::to_string(section.GetStartNodeId().number()) + "-" +
                std::to_string(section.GetEndNodeId().number()) + " " +
                std::string(section.GetMissingStart()) + "-" + std::string(section.GetMissingEnd());
        for (const auto& vertex : section.GetInnerVertices()) {
            Append(text, vertex);
        }
        text += "\n";
    }
    for (const auto polygon : storage.GetPolygonVector()) {
        AppendCommon(text += "polygon ", polygon);
        for (const auto& ring : polygon.GetRings()) {
            text += ring.isHole ? " hole" : " ring";
            for (const auto& point : ring.points) {
                Append(text, point);
            }
        }
        text += "\n";
    }
    for (const auto label : storage.GetTextVector()) {
        AppendCommon(text += "text ", label);
        Append(text, label.GetPosition());
        text += "\n";
    }
    CString systems;
    for (const auto* pSystem : System::CSystemManager::Instance()->GetSystems()->GetSystemList()) {
        systems.AppendFormat(L"system %d %s %s %d/%d %d\n", pSystem->GetSystemId(),
                             pSystem->GetSystemName(), pSystem->GetGuid(),
                             pSystem->GetTopologyType(), pSystem->GetSystemFunction(),
                             pSystem->GetActive());
    }
    return text + WideToUtf8(systems.View());
}

class NetworkOnDisk : public TestDrawing {
protected:
    NetworkOnDisk() {
        acDocManagerPtr()->setStorage(m_pStorage.get());
        acdbSetImporter(m_pImporter.get());
    }
    ~NetworkOnDisk() override {
        while (acDocManagerPtr()->documentCount() > 0) {
            acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
        }
        acdbSetImporter(nullptr);
        acDocManagerPtr()->setStorage(nullptr);
    }
    static CTopologyStorage& Current() {
        return *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    }
    void SaveAs(const char* name) {
        const AcDbStorageResult saved = acDocManagerPtr()->saveDocumentAs(
            acDocManagerPtr()->curDocument(), m_folder.Wide(name), {});
        EXPECT_TRUE(saved.ok()) << WideToUtf8(saved.reason.View());
    }
    void CloseAndOpen(const char* name) {
        acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
        AcApDocument* pDoc = nullptr;
        const AcDbStorageResult read =
            acDocManagerPtr()->openDocument(m_folder.Wide(name), {}, pDoc);
        ASSERT_TRUE(read.ok()) << WideToUtf8(read.reason.View());
    }
    /// The first value of another program's query result.
    std::string Ask(const char* name, const char* sql) {
        sqlite3* pFile = nullptr;
        std::string answer = "nothing";
        sqlite3_open_v2(m_folder.Native(name).c_str(), &pFile, SQLITE_OPEN_READONLY, nullptr);
        sqlite3_exec(
            pFile, sql,
            [](void* pAnswer, int, char** values, char**) {
                *static_cast<std::string*>(pAnswer) = values[0] ? values[0] : "null";
                return 0;
            },
            &answer, nullptr);
        sqlite3_close(pFile);
        return answer;
    }

    TempFolder m_folder;
    std::unique_ptr<IDbStorage> m_pStorage = Tessaly::MakeGeoPackageStorage();
    std::unique_ptr<IDbImporter> m_pImporter = Tessaly::MakeImporter();
    ImportProgress m_progress{{}};
};

class ReferenceNetworkOnDisk : public NetworkOnDisk,
                               public testing::WithParamInterface<std::string> {
protected:
    NetworkFiles m_networks;
};

} // namespace

TEST_P(ReferenceNetworkOnDisk, ComesBackAsItWas) {
    const std::filesystem::path path = m_networks.Path(GetParam());
    const InpResult network = ReadInpFile(Utf8ToWide(path.string()).c_str());
    ASSERT_TRUE(network.ok);
    ImportedSystems imported;
    ASSERT_TRUE(
        AddToDrawing(network.model, kFunctionWater, L"Nätwork", imported, m_progress).IsEmpty());
    System::CSystemManager::Instance()->SetSystemActive(imported.pNetwork);
    CORVCDictionaryPtr records(AcDb::kForWrite);
    records.dctWriteBigString(L"ORVZ_UISTATE", L"UIRECORD", CString(L'\x4E2D', 100000));
    const std::string before = Describe(Current());
    SaveAs("plan.gpkg");
    CloseAndOpen("plan.gpkg");
    EXPECT_TRUE(Describe(Current()) == before);
    CString text;
    EXPECT_EQ(
        CORVCDictionaryPtr(AcDb::kForRead).dctReadBigString(L"ORVZ_UISTATE", L"UIRECORD", text),
        Acad::eOk);
    EXPECT_EQ(text.GetLength(), 100000);
    EXPECT_FALSE(acDocManagerPtr()->curDocument()->isModified());

    // Other programs see ordinary tables.
    EXPECT_EQ(Ask("plan.gpkg", "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(Ask("plan.gpkg", "SELECT count(*) FROM nodes"),
              std::to_string(network.model.nodes.size()));
    EXPECT_EQ(Ask("plan.gpkg", "SELECT count(*) FROM sections WHERE NAME <> ''"),
              std::to_string(network.model.sections.size()));
    EXPECT_EQ(Ask("plan.gpkg", "SELECT NAME FROM nodes ORDER BY fid LIMIT 1"),
              std::string(network.model.nodes.names[0]));
    double west = std::numeric_limits<double>::infinity();
    for (const Point& place : network.model.nodes.positions) {
        west = std::min(west, place.x);
    }
    EXPECT_EQ(Ask("plan.gpkg", "SELECT min_x FROM gpkg_contents WHERE table_name = 'nodes'"),
              Ask("plan.gpkg", ("SELECT " + std::to_string(west) + " + 0.0").c_str()));
}

namespace {

std::vector<std::string> Networks() {
    std::vector<std::string> names = {"generated-water.inp", "generated-sewer.inp"};
    if (NetworkFiles::HasReal()) {
        names.insert(names.end(), {"Net3.inp", "Net6.inp", "ky10.inp", "model_state_plane.inp",
                                   "test_inlet_drains.inp"});
    }
    return names;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(All, ReferenceNetworkOnDisk, testing::ValuesIn(Networks()),
                         [](const auto& test) {
                             std::string name = test.param.substr(0, test.param.find('.'));
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST_F(NetworkOnDisk, LinesAndPointsOfAnyFileBecomeANetwork) {
    m_folder.Write("pipes.geojson", R"({"type": "FeatureCollection", "features": [
{"type": "Feature", "properties": {"Name": "W1", "elevation": 12.5, "kind": "Tank"},
 "geometry": {"type": "Point", "coordinates": [0, 0, 99]}},
{"type": "Feature", "properties": {"Name": null, "ID": 7},
 "geometry": {"type": "Point", "coordinates": [10, 0, 3]}},
{"type": "Feature", "properties": {"Name": "P", "diameter": 150, "SYSTEMID": 5},
 "geometry": {"type": "MultiLineString", "coordinates":
   [[[0.0004, 0, 1], [5, 5, 2], [10, 0, 3]], [[10, 0], [20, 0]]]}},
{"type": "Feature", "properties": {"Name": "Q"},
 "geometry": {"type": "LineString", "coordinates": [[20, 0.0005], [30, 0]]}},
{"type": "Feature", "properties": {"Name": "lake"},
 "geometry": {"type": "Polygon", "coordinates":
   [[[0, 0], [9, 0], [9, 9], [0, 9], [0, 0]], [[1, 1], [2, 1], [2, 2], [1, 1]]]}}]})");
    const AcDbImportResult read =
        Tessaly::MakeImporter()->Import(m_folder.Wide("pipes.geojson"), {});
    ASSERT_TRUE(read.ok()) << WideToUtf8(read.reason.View());
    const LayerContents contents(read);
    ImportedSystems imported;
    LayerCounts counts;
    ASSERT_TRUE(AddToDrawing(contents, 0.001, kFunctionWater, L"Net", imported, counts, m_progress)
                    .IsEmpty());
    EXPECT_TRUE(TakeCoordinateSystem(read, true).empty());
    EXPECT_FALSE(Document()->database()->coordinateSystem().IsEmpty());
    EXPECT_TRUE(TakeCoordinateSystem(read, false).empty());
    EXPECT_EQ(counts.nodes, 4U);
    EXPECT_EQ(counts.foundNodes, 2U);
    EXPECT_EQ(counts.sections, 3U);
    EXPECT_EQ(counts.polygons, 1U);
    CTopologyStorage& storage = Current();
    const int id = imported.pNetwork->GetSystemId();
    const auto tank = storage.FindNodeByName(id, "W1");
    ASSERT_TRUE(tank);
    EXPECT_EQ(tank.GetKindUtf8(), "Tank");
    EXPECT_EQ(tank.GetNumber(AcDbIntern("ELEVATION")), 12.5);
    EXPECT_EQ(tank.GetPosition().z, 99);
    EXPECT_EQ(storage.FindNodeByName(id, "7").GetNumber(AcDbIntern("ELEVATION")), 3);
    const auto first = storage.FindSectionByName(id, "P");
    ASSERT_TRUE(first);
    EXPECT_EQ(first.GetStartNodeId(), tank.GetObjectId());
    EXPECT_EQ(first.GetNumber(AcDbIntern("DIAMETER")), 150);
    EXPECT_EQ(first.GetNumber(AcDbIntern("SYSTEMID_")), 5);
    EXPECT_EQ(first.GetInnerVertices()[0].z, 2);
    const auto* const pLine =
        static_cast<const AcDbPolyline*>(Document()->database()->peek(first.GetObjectId()));
    EXPECT_EQ(pLine->vertices()[0].z, 1) << "the line's own height, not that of its node";
    EXPECT_EQ(pLine->vertices()[0].x, 0);
    const auto second = storage.FindSectionByName(id, "P (2)");
    ASSERT_TRUE(second);
    EXPECT_EQ(storage.FindSectionByName(id, "Q").GetStartNodeId(), second.GetEndNodeId());
    EXPECT_EQ(storage.GetPolygonVector()[0].GetRings().size(), 2U);

    ImportedSystems again;
    ImportProgress stopped([](int) { return false; });
    stopped.Reading()(1);
    EXPECT_FALSE(
        AddToDrawing(contents, 0, kFunctionWater, L"stopped", again, counts, stopped).IsEmpty());
    EXPECT_FALSE(
        AddToDrawing(contents, 0, kFunctionWater, L"net", again, counts, m_progress).IsEmpty());
    EXPECT_EQ(again.pNetwork, nullptr);
    EXPECT_EQ(System::CSystemManager::Instance()->GetSystems()->GetCount(), 2);

    const std::string before = Describe(storage);
    SaveAs("net");
    CloseAndOpen("net.gpkg");
    EXPECT_EQ(Describe(Current()), before);
}

TEST_F(NetworkOnDisk, WhatAnotherProgramChangesIsThereAfterOpening) {
    const InpResult network = ReadInpFile(L"" TESSALY_SOURCE_DIR "/share/sample/town-water.inp");
    ImportedSystems imported;
    ASSERT_TRUE(
        AddToDrawing(network.model, kFunctionWater, L"Town", imported, m_progress).IsEmpty());
    const auto section = Current().GetSectionVector()[0];
    const std::string name(section.GetNameUtf8());
    const AcDbObjectId gone = section.GetStartNodeId();
    SaveAs("town.gpkg");
    sqlite3* pFile = nullptr;
    ASSERT_EQ(sqlite3_open(m_folder.Native("town.gpkg").c_str(), &pFile), SQLITE_OK);
    const std::string sql = "UPDATE sections SET DIAMETER = 777 WHERE NAME = '" + name +
                            "'; DELETE FROM nodes WHERE fid = " + std::to_string(gone.number()) +
                            "; UPDATE orv_records SET text = '' WHERE name = 'GUID'";
    ASSERT_EQ(sqlite3_exec(pFile, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(pFile);
    sqlite3_close(pFile);
    CloseAndOpen("town.gpkg");
    const auto changed = Current().FindSectionByName(1, name);
    ASSERT_TRUE(changed);
    EXPECT_EQ(changed.GetNumber(AcDbIntern("DIAMETER")), 777);
    EXPECT_TRUE(changed.GetStartNodeId().isNull());
    EXPECT_TRUE(changed.GetEndNode());
    EXPECT_EQ(System::CSystemManager::Instance()->GetSystems()->UpgradeSystems(), 1);
}
