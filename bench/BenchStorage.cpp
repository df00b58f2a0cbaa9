// Opening and saving of drawings compared with bare OGR doing the same work on the same content in
// the same run.
//   BenchStorage            ratios, and a save after one change
//   BenchStorage --large    a million nodes and a million sections
#include <chrono>
#include <cstring>
#include <filesystem>
#include <functional>
#include <gdal_utils.h>
#include <iostream>
#include <malloc.h>
#include <ogrsf_frmts.h>
#include <unistd.h>

#include "host/storage/OpenAndSave.h"
#include "platform/arx/DbDatabase.h"
#include "platform/win/CodePage.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kVertices = 10;
constexpr int kRuns = 7;

std::filesystem::path g_folder;

std::string File(const char* name) {
    return (g_folder / name).string();
}

CString Wide(const char* name) {
    return Utf8ToWide(File(name));
}

double Seconds(const std::function<void()>& work) {
    const auto begin = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// Best run of each of two functions, run alternately so that other load on the machine affects
/// both.
std::pair<double, double> Best(const std::function<void()>& work,
                               const std::function<void()>& peer) {
    std::pair<double, double> best{1e9, 1e9};
    for (int i = 0; i < kRuns; ++i) {
        best.first = std::min(best.first, Seconds(work));
        best.second = std::min(best.second, Seconds(peer));
    }
    return best;
}

void Require(bool isGood, const char* what) {
    if (!isGood) {
        std::cerr << what << " failed\n";
        std::exit(1);
    }
}

double MegabytesInUse() {
    return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / 1e6;
}

std::string NameOf(int i) {
    return "N" + std::to_string(i);
}

AcGePoint3d PlaceOf(int i, int vertex = 0) {
    return {i % 1000 * 10.0 + vertex, i / 1000 * 10.0 + vertex * 0.5, 200 + i % 100 * 0.25};
}

void AddAttributes(AcDbEntity& entity, int i) {
    static const AcDbNameId name = AcDbIntern("NAME");
    static const AcDbNameId elevation = AcDbIntern("ELEVATION");
    static const AcDbNameId diameter = AcDbIntern("DIAMETER");
    static const AcDbNameId material = AcDbIntern("MATERIAL");
    static const AcDbNameId year = AcDbIntern("YEAR");
    entity.setAttribute(name, NameOf(i).c_str());
    entity.setAttribute(elevation, 200 + i * 0.001);
    entity.setAttribute(diameter, 100.5 + i % 7);
    entity.setAttribute(material, "ductile iron");
    entity.setAttribute(year, 1950 + i % 70);
}

std::unique_ptr<AcDbDatabase> Drawing(int points, int lines, int vertices) {
    auto database = std::make_unique<AcDbDatabase>();
    database->disableUndoRecording(true);
    for (int i = 0; i < points; ++i) {
        auto point = std::make_unique<AcDbPoint>(PlaceOf(i));
        AddAttributes(*point, i);
        database->appendEntity(std::move(point));
    }
    std::vector<AcGePoint3d> places(static_cast<std::size_t>(vertices));
    for (int i = 0; i < lines; ++i) {
        for (int v = 0; v < vertices; ++v) {
            places[static_cast<std::size_t>(v)] = PlaceOf(i, v);
        }
        auto line = std::make_unique<AcDbPolyline>(places);
        AddAttributes(*line, i);
        database->appendEntity(std::move(line));
    }
    database->disableUndoRecording(false);
    return database;
}

void AddBareFields(OGRLayer& layer) {
    for (const auto& [name, type] : {std::pair("NAME", OFTString),
                                     {"ELEVATION", OFTReal},
                                     {"DIAMETER", OFTReal},
                                     {"MATERIAL", OFTString},
                                     {"YEAR", OFTInteger64}}) {
        OGRFieldDefn field(name, type);
        layer.CreateField(&field);
    }
}

void WriteBareFeature(OGRLayer& layer, int i, std::unique_ptr<OGRGeometry> geometry) {
    const OGRFeatureUniquePtr feature{OGRFeature::CreateFeature(layer.GetLayerDefn())};
    feature->SetField(0, NameOf(i).c_str());
    feature->SetField(1, 200 + i * 0.001);
    feature->SetField(2, 100.5 + i % 7);
    feature->SetField(3, "ductile iron");
    feature->SetField(4, GIntBig{1950 + i % 70});
    feature->SetGeometryDirectly(geometry.release());
    Require(layer.CreateFeature(feature.get()) == OGRERR_NONE, "writing a feature");
}

/// The peer: the same positions and attributes, one transaction, no spatial index.
void WriteBare(const std::string& path, int points, int lines) {
    std::filesystem::remove(path);
    GDALDriver* pDriver = GetGDALDriverManager()->GetDriverByName("GPKG");
    const GDALDatasetUniquePtr dataset{
        pDriver->Create(path.c_str(), 0, 0, 0, GDT_Unknown, nullptr)};
    const char* const kOptions[] = {"SPATIAL_INDEX=NO", nullptr};
    OGRLayer* pNodes =
        dataset->CreateLayer("nodes", nullptr, wkbPoint25D, const_cast<char**>(kOptions));
    OGRLayer* pSections =
        dataset->CreateLayer("sections", nullptr, wkbLineString25D, const_cast<char**>(kOptions));
    AddBareFields(*pNodes);
    AddBareFields(*pSections);
    dataset->StartTransaction();
    for (int i = 0; i < points; ++i) {
        const AcGePoint3d place = PlaceOf(i);
        WriteBareFeature(*pNodes, i, std::make_unique<OGRPoint>(place.x, place.y, place.z));
    }
    for (int i = 0; i < lines; ++i) {
        auto line = std::make_unique<OGRLineString>();
        line->setNumPoints(kVertices);
        for (int v = 0; v < kVertices; ++v) {
            const AcGePoint3d place = PlaceOf(i, v);
            line->setPoint(v, place.x, place.y, place.z);
        }
        WriteBareFeature(*pSections, i, std::move(line));
    }
    Require(dataset->CommitTransaction() == OGRERR_NONE, "committing");
}

void ReadBare(const std::string& path, std::int64_t expected) {
    const GDALDatasetUniquePtr dataset{
        GDALDataset::Open(path.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY)};
    std::int64_t count = 0;
    for (OGRLayer* pLayer : dataset->GetLayers()) {
        if (pLayer->GetGeomType() == wkbNone) {
            continue;
        }
        while (const OGRFeatureUniquePtr feature{pLayer->GetNextFeature()}) {
            ++count;
        }
    }
    Require(count == expected, "reading all features");
}

void SaveAs(AcDbDatabase& database, const char* name) {
    const auto storage = Tessaly::MakeGeoPackageStorage();
    Require(storage->SaveAs(database, L"", Wide(name), {}).ok(), "saving");
}

void CompareReading(const char* name, std::size_t entities) {
    // Destroying the drawings is not part of opening them.
    std::vector<std::unique_ptr<AcDbDatabase>> opened;
    const auto [read, bareRead] = Best(
        [&] {
            AcDbDatabase& database = *opened.emplace_back(std::make_unique<AcDbDatabase>());
            Require(Tessaly::MakeGeoPackageStorage()->Read(database, Wide(name), {}).ok(),
                    "reading");
            Require(database.entityCount() == entities, "reading all");
        },
        [&] { ReadBare(File(name), static_cast<std::int64_t>(entities)); });
    std::cout << "  read: " << read << " s, bare OGR " << bareRead << " s, ratio "
              << read / bareRead << "\n";
}

void CompareWithBare() {
    constexpr int kEach = 100'000;
    const auto drawing = Drawing(kEach, kEach, kVertices);
    std::cout << "100,000 points and 100,000 lines of 10 vertices, 5 attributes each\n";
    const auto [write, bareWrite] = Best([&] { SaveAs(*drawing, "drawing.gpkg"); },
                                         [] { WriteBare(File("bare.gpkg"), kEach, kEach); });
    std::cout << "  write as a new file: " << write << " s, bare OGR " << bareWrite << " s, ratio "
              << write / bareWrite << "\n";
    CompareReading("drawing.gpkg", 2 * kEach);
    std::cout << "  the same as written by another program:\n";
    CompareReading("bare.gpkg", 2 * kEach);
}

/// Does the same as the tool ogr2ogr, by the library function behind it.
void Translate(const char* from, const std::string& to, std::vector<const char*> options) {
    options.push_back(nullptr);
    GDALVectorTranslateOptions* pOptions =
        GDALVectorTranslateOptionsNew(const_cast<char**>(options.data()), nullptr);
    GDALDatasetH source = GDALOpenEx(File(from).c_str(), GDAL_OF_VECTOR, nullptr, nullptr, nullptr);
    Require(source != nullptr, "opening for ogr2ogr");
    GDALDatasetH target = GDALVectorTranslate(to.c_str(), nullptr, 1, &source, pOptions, nullptr);
    Require(target != nullptr, "ogr2ogr");
    GDALClose(target);
    GDALClose(source);
    GDALVectorTranslateOptionsFree(pOptions);
}

void CompareWithOgr2ogr() {
    constexpr int kEach = 100'000;
    const auto drawing = Drawing(kEach, kEach, kVertices);
    SaveAs(*drawing, "drawing.gpkg");
    std::vector<std::unique_ptr<AcDbDatabase>> opened;
    const auto [read, peerRead] = Best(
        [&] {
            AcDbDatabase& database = *opened.emplace_back(std::make_unique<AcDbDatabase>());
            Require(Tessaly::MakeGeoPackageStorage()->Read(database, Wide("drawing.gpkg"), {}).ok(),
                    "reading");
        },
        [] {
            Translate("drawing.gpkg", "", {"-f", "Memory"});
        });
    std::cout << "  read: " << read << " s, ogr2ogr into memory " << peerRead << " s, ratio "
              << read / peerRead << "\n";
    const auto [write, peerWrite] = Best([&] { SaveAs(*drawing, "copy.gpkg"); },
                                         [] {
                                             std::filesystem::remove(File("peer.gpkg"));
                                             Translate("drawing.gpkg", File("peer.gpkg"),
                                                       {"-f", "GPKG", "-lco", "SPATIAL_INDEX=NO"});
                                         });
    std::cout << "  write as a new file: " << write << " s, ogr2ogr without index " << peerWrite
              << " s, ratio " << write / peerWrite << "\n";
}

void ChangeOne(AcDbDatabase& database, AcDbObjectId id, int value) {
    AcDbEntity* pEntity = nullptr;
    Require(acdbOpenObject(pEntity, id, AcDb::kForWrite, false, &database) == Acad::eOk,
            "opening an entity");
    pEntity->setAttribute(AcDbIntern("YEAR"), value);
    pEntity->close();
}

void SaveOneChange(int entities) {
    const auto storage = Tessaly::MakeGeoPackageStorage();
    auto drawing = Drawing(entities / 2, entities / 2, 2);
    const AcDbObjectId changed(drawing->nextId() / 2);
    Require(storage->SaveAs(*drawing, L"", Wide("large.gpkg"), {}).ok(), "saving");
    double best = 1e9;
    for (int i = 0; i < 5; ++i) {
        ChangeOne(*drawing, changed, i);
        best = std::min(best, Seconds([&] {
                            Require(storage->Save(*drawing, Wide("large.gpkg"), {}).ok(),
                                    "saving one change");
                        }));
    }
    std::cout << "  save after one changed attribute of " << entities
              << " entities: " << best * 1000 << " ms\n";
}

void MeasureLarge() {
    for (const int each : {250'000, 500'000, 1'000'000}) {
        {
            const auto drawing = Drawing(each, each, 2);
            const double write = Seconds([&] { SaveAs(*drawing, "million.gpkg"); });
            std::cout << each << " nodes and as many sections: save " << write << " s";
        }
        const double before = MegabytesInUse();
        AcDbDatabase database;
        const double read = Seconds([&] {
            Require(Tessaly::MakeGeoPackageStorage()->Read(database, Wide("million.gpkg"), {}).ok(),
                    "reading");
        });
        std::cout << ", open " << read << " s, " << MegabytesInUse() - before
                  << " MB more in use\n";
    }
}

} // namespace

int main(int argc, char** argv) {
    GDALAllRegister();
    g_folder =
        std::filesystem::temp_directory_path() / ("tessaly-bench-" + std::to_string(getpid()));
    std::filesystem::create_directories(g_folder);
    if (argc > 1 && std::strcmp(argv[1], "--large") == 0) {
        MeasureLarge();
    } else {
        CompareWithBare();
        CompareWithOgr2ogr();
        SaveOneChange(2'000);
        SaveOneChange(2'000'000);
    }
    std::filesystem::remove_all(g_folder);
    return 0;
}
