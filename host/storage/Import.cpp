#include "host/storage/Import.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <mutex>
#include <new>
#include <ogrsf_frmts.h>

#include "host/Texts.h"
#include "host/storage/Columns.h"
#include "host/storage/CoordinateSystem.h"
#include "host/storage/FileChecks.h"
#include "host/storage/GdalErrors.h"
#include "host/storage/ImportCheck.h"
#include "host/storage/RowProgress.h"
#include "host/storage/Shapes.h"
#include "platform/arx/Guard.h"
#include "platform/win/CodePage.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

using Feature = AcDbImportFeature;

/// Drivers whose files are but directions to data elsewhere, and those that start other
/// programs to read.
constexpr std::array kLeftOut = {"OGR_VRT",       "WFS",   "OAPIF",      "CSW",  "HTTP",
                                 "GMLAS",         "CARTO", "AmigoCloud", "NGW",  "PLSCENES",
                                 "Elasticsearch", "EEDA",  "GPSBabel",   "ODBC", "PGeo"};
/// Its reader takes the end of a cut file for the end of the data, but the file knows how
/// much there is to be.
constexpr const char* kCountedFormat = "FlatGeobuf";
/// Columns by which our own drawings keep what is no attribute.
constexpr const char* kOwnPrefix = "orv_";

/// Takes the shapes of a row into its layer.
class FeatureMaker final : public IShapeSink {
public:
    FeatureMaker(std::vector<Feature>& features, std::int64_t row, const AcDbAttributes& attributes)
        : m_features(features), m_nRow(row), m_attributes(attributes) {}

    void TakePoint(const AcGePoint3d& point) override {
        Add(Feature::Kind::Point).points = {point};
    }
    void TakeLine(std::span<const AcGePoint3d> points) override {
        Add(Feature::Kind::Line).points.assign(points.begin(), points.end());
    }
    void TakePolygon(std::vector<AcDbMPolygon::Ring> rings) override {
        Add(Feature::Kind::Polygon).rings = std::move(rings);
    }

private:
    Feature& Add(Feature::Kind kind) {
        Feature& feature = m_features.emplace_back();
        feature.kind = kind;
        feature.row = m_nRow;
        feature.attributes = m_attributes;
        return feature;
    }

    std::vector<Feature>& m_features;
    std::int64_t m_nRow;
    const AcDbAttributes& m_attributes;
};

/// A layer while its rows come, which may be between those of other layers.
struct Source {
    AcDbImportLayer layer;
    std::vector<AttributeColumn> columns;
    std::int64_t rows = 0;
    std::int64_t empty = 0;
};

class Importer final : public IDbImporter {
public:
    AcDbImportResult Import(const wchar_t* path, const AcDbProgress& progress) override;
    bool IsSameCoordinateSystem(const CString& left, const CString& right) override {
        return Tessaly::IsSameCoordinateSystem(left, right);
    }
    CString CoordinateSystemName(const CString& wkt) override {
        return Tessaly::CoordinateSystemName(wkt);
    }

private:
    static AcDbImportResult ImportFile(const std::string& native, const AcDbProgress& progress);
};

/// One reading of one file.
class Reading {
public:
    Reading(GDALDataset& dataset, const std::string& path, GdalErrors& errors,
            const AcDbProgress& progress)
        : m_dataset(dataset), m_path(path), m_errors(errors), m_rows(progress) {}

    AcDbImportResult Run();

private:
    Source& SourceOf(OGRLayer& layer);
    bool IsCut(OGRLayer& layer);
    void ReadInTurn();
    void ReadMixed();
    bool TakeRow(OGRLayer& layer, const OGRFeature& row);
    void Refuse(const Source& source, const CString& reason);

    GDALDataset& m_dataset;
    const std::string& m_path;
    GdalErrors& m_errors;
    RowProgress m_rows;
    std::map<OGRLayer*, std::size_t> m_places;
    std::vector<Source> m_sources;
    AcDbImportResult m_result;
};

/// Names of all drivers that may read a file.
const char* const* Drivers() {
    static std::vector<const char*> names;
    static std::once_flag once;
    std::call_once(once, [] {
        GDALAllRegister();
        GDALDriverManager& manager = *GetGDALDriverManager();
        for (int i = 0; i < manager.GetDriverCount(); ++i) {
            GDALDriver& driver = *manager.GetDriver(i);
            const char* name = driver.GetDescription();
            const bool isLeftOut =
                std::any_of(kLeftOut.begin(), kLeftOut.end(),
                            [&](const char* leftOut) { return EQUAL(leftOut, name); });
            if (driver.GetMetadataItem(GDAL_DCAP_VECTOR) && !isLeftOut) {
                names.push_back(name);
            }
        }
        names.push_back(nullptr);
    });
    return names.data();
}

/// Readers make an empty point, or no geometry at all, of one whose numbers are none.
bool LosesGeometry(const OGRFeature& row) {
    const OGRGeometry* const pGeometry = row.GetGeometryRef();
    if (pGeometry && wkbFlatten(pGeometry->getGeometryType()) == wkbPoint) {
        const auto& point = static_cast<const OGRPoint&>(*pGeometry);
        return std::isnan(point.getX()) != std::isnan(point.getY());
    }
    const int text = pGeometry ? -1 : row.GetFieldIndex("WKT");
    return text >= 0 && *row.GetFieldAsString(text) != '\0';
}

AcDbImportResult Importer::Import(const wchar_t* path, const AcDbProgress& progress) {
    const std::string native = AbsolutePath(path);
    AcDbImportResult failed;
    try {
        return ImportFile(native, progress);
    } catch (const std::bad_alloc&) {
        failed.reason = FileReason(native, Text(Msg::NoMemory));
    } catch (...) {
        failed.reason = FileReason(native, CaughtReason());
    }
    return failed;
}

AcDbImportResult Importer::ImportFile(const std::string& native, const AcDbProgress& progress) {
    GdalErrors errors;
    AcDbImportResult result;
    const char* const* drivers = Drivers();
    result.reason = WhyNotImportable(native);
    if (!result.reason.IsEmpty()) {
        result.reason = FileReason(native, result.reason);
        return result;
    }
    errors.Clear();
    const GDALDatasetUniquePtr dataset{
        GDALDataset::Open(native.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR,
                          drivers, nullptr)};
    if (!dataset || errors.HasFailed()) {
        result.reason = errors.Reason(native);
        return result;
    }
    return Reading(*dataset, native, errors, progress).Run();
}

AcDbImportResult Reading::Run() {
    if (m_dataset.TestCapability(ODsCRandomLayerRead)) {
        ReadMixed();
    } else {
        ReadInTurn();
    }
    if (m_result.ok() && m_rows.IsStopped()) {
        m_result.reason = FileReason(m_path, Text(Msg::ReadingStopped));
    }
    if (m_result.ok() && m_errors.HasFailed()) {
        m_result.reason = m_errors.Reason(m_path);
    }
    for (Source& source : m_sources) {
        if (source.empty > 0) {
            m_result.warnings.push_back(FileReason(
                m_path, Text(Msg::SkippedWithoutGeometry, source.layer.name, source.empty)));
        }
        if (m_result.ok() && !source.layer.features.empty()) {
            m_result.layers.push_back(std::move(source.layer));
        }
    }
    return std::move(m_result);
}

void Reading::ReadInTurn() {
    const int count = m_dataset.GetLayerCount();
    for (int i = 0; i < count; ++i) {
        if (OGRLayer* pLayer = m_dataset.GetLayer(i)) {
            m_rows.Expect(*pLayer);
        }
    }
    for (int i = 0; i < count; ++i) {
        OGRLayer* pLayer = m_dataset.GetLayer(i);
        if (!pLayer || pLayer->GetGeomType() == wkbNone) {
            continue;
        }
        if (pLayer->GetLayerDefn()->GetFieldIndex(kTextColumn) >= 0) {
            // A drawing of ours: its texts are no points.
            m_result.warnings.push_back(
                FileReason(m_path, Text(Msg::TextsNotImported, pLayer->GetName())));
            continue;
        }
        pLayer->ResetReading();
        while (const OGRFeatureUniquePtr row{pLayer->GetNextFeature()}) {
            if (!TakeRow(*pLayer, *row)) {
                return;
            }
        }
        if (m_errors.HasFailed() || IsCut(*pLayer)) {
            Refuse(SourceOf(*pLayer),
                   m_errors.HasFailed() ? m_errors.Reason() : Text(Msg::IsCutShort));
            return;
        }
    }
}

bool Reading::IsCut(OGRLayer& layer) {
    GDALDriver* pDriver = m_dataset.GetDriver();
    return pDriver && EQUAL(pDriver->GetDescription(), kCountedFormat) &&
           layer.GetFeatureCount(FALSE) > SourceOf(layer).rows;
}

void Reading::ReadMixed() {
    OGRLayer* pLayer = nullptr;
    while (const OGRFeatureUniquePtr row{
        m_dataset.GetNextFeature(&pLayer, nullptr, nullptr, nullptr)}) {
        if (pLayer && !TakeRow(*pLayer, *row)) {
            return;
        }
    }
}

Source& Reading::SourceOf(OGRLayer& layer) {
    const auto [place, isNew] = m_places.try_emplace(&layer, m_sources.size());
    if (isNew) {
        Source& source = m_sources.emplace_back();
        source.layer.name = Utf8ToWide(layer.GetName());
        if (source.layer.name.IsEmpty()) {
            source.layer.name = FileNameOf(CString(Utf8ToWide(m_path)));
        }
        source.layer.coordinateSystem = Utf8ToWide(WktOf(layer.GetSpatialRef()));
        std::vector<std::string> binary;
        source.columns = AttributeColumns(*layer.GetLayerDefn(), binary);
        std::erase_if(source.columns, [](const AttributeColumn& column) {
            return AcDbNameOf(column.name).starts_with(kOwnPrefix);
        });
    }
    return m_sources[place->second];
}

bool Reading::TakeRow(OGRLayer& layer, const OGRFeature& row) {
    Source& source = SourceOf(layer);
    ++source.rows;
    AcDbAttributes attributes;
    attributes.reserve(source.columns.size());
    std::string scratch;
    for (const AttributeColumn& column : source.columns) {
        const AcDbValue value = FieldValue(row, column, scratch);
        if (!value.isNull()) {
            attributes.set(column.name, value);
        }
    }
    FeatureMaker maker(source.layer.features, source.rows, attributes);
    const OGRGeometry* pGeometry = row.GetGeometryRef();
    const ShapeResult shapes = LosesGeometry(row) ? ShapeResult::NotPlace
                               : pGeometry        ? ReadShapes(*pGeometry, maker)
                                                  : ShapeResult::Empty;
    if (shapes == ShapeResult::NotPlace) {
        Refuse(source, Text(Msg::InvalidPosition));
        return false;
    }
    source.empty += shapes == ShapeResult::Empty ? 1 : 0;
    return m_rows.Step();
}

void Reading::Refuse(const Source& source, const CString& reason) {
    m_result.reason =
        FileReason(m_path, Text(Msg::LayerRow, source.layer.name, source.rows, reason));
}

} // namespace

std::unique_ptr<IDbImporter> MakeImporter() {
    return std::make_unique<Importer>();
}

} // namespace Tessaly
