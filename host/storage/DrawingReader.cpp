#include "host/storage/DrawingReader.h"

#include <algorithm>
#include <limits>
#include <ogrsf_frmts.h>

#include "host/storage/Columns.h"
#include "host/storage/CoordinateSystem.h"
#include "host/storage/EntityRows.h"
#include "host/storage/OpenGeoPackage.h"
#include "host/storage/StoredRows.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

int ColorOf(const OGRFeature& row) {
    const int field = row.GetFieldIndex("color");
    return field < 0 ? 7 : row.GetFieldAsInteger(field);
}

} // namespace

CString DrawingReader::Read(const AcDbDatabase& empty) {
    CString reason = LoadSchema(m_file, m_schema);
    if (!reason.IsEmpty()) {
        return m_errors.HasFailed() ? reason + L" (" + m_errors.Reason() + L")" : reason;
    }
    m_rows.emplace(m_progress);
    m_objects.emplace(empty, m_schema.nextId);
    m_remembered.firstUnwritten = m_schema.nextId;
    m_remembered.identity = m_schema.identity;
    if (m_schema.exists) {
        m_coordinateSystem = m_schema.coordinateSystem;
    }
    ExpectRows();
    ReadLayers();
    ReadBlocks();
    ReadDictionaries();
    ReadOwnTables();
    ReadForeignTables();
    if (m_rows->IsStopped()) {
        return Text(Msg::ReadingStopped);
    }
    return m_errors.HasFailed() ? m_errors.Reason() : CString();
}

void DrawingReader::MoveInto(AcDbDatabase& database, RememberedFile& remembered) {
    m_remembered.made = m_objects->Made();
    std::sort(m_remembered.foreign.begin(), m_remembered.foreign.end(),
              [](const auto& a, const auto& b) { return a.id < b.id; });
    const CString wkt = Utf8ToWide(m_coordinateSystem.value_or(""));
    m_objects->MoveInto(database, wkt);
    for (const AcDbObjectId id : database.dictionaries()) {
        m_remembered.NoteRecords(static_cast<const AcDbDictionary&>(*database.peek(id)));
    }
    remembered = std::move(m_remembered);
}

void DrawingReader::ExpectRows() {
    if (!m_progress || m_errors.HasFailed()) {
        return;
    }
    // Counting rows would mean reading the file twice; what it has noted is good enough.
    if (m_file.Dataset().GetLayerByName("gpkg_ogr_contents")) {
        m_file.Query("SELECT sum(feature_count) AS n FROM gpkg_ogr_contents",
                     [&](const OGRFeature& row) { m_rows->Expect(row.GetFieldAsInteger64(0)); });
    }
}

void DrawingReader::ReadLayers() {
    OGRLayer* pLayer = m_file.Table(kLayerTable);
    while (pLayer && m_schema.exists) {
        const OGRFeatureUniquePtr row{pLayer->GetNextFeature()};
        if (!row) {
            return;
        }
        const CString name = Utf8ToWide(FieldText(*row, "name"));
        if (AcDbLayerTableRecord* pRecord = m_objects->AddLayer(row->GetFID(), name)) {
            pRecord->setColorIndex(ColorOf(*row));
            pRecord->setIsOff(FieldText(*row, "off") == "1");
        }
    }
}

void DrawingReader::ReadBlocks() {
    OGRLayer* pLayer = m_file.Table(kBlockTable);
    while (pLayer && m_schema.exists) {
        const OGRFeatureUniquePtr row{pLayer->GetNextFeature()};
        if (!row) {
            return;
        }
        m_objects->AddBlock(row->GetFID(), Utf8ToWide(FieldText(*row, "name")));
    }
}

void DrawingReader::ReadDictionaries() {
    OGRLayer* pNames = m_file.Table(kDictionaryTable);
    OGRLayer* pRecords = m_file.Table(kRecordTable);
    if (!pNames || !pRecords || !m_schema.exists) {
        return;
    }
    std::map<std::int64_t, AcDbDictionary*> dictionaries;
    while (const OGRFeatureUniquePtr row{pNames->GetNextFeature()}) {
        dictionaries[row->GetFID()] =
            m_objects->AddDictionary(row->GetFID(), Utf8ToWide(FieldText(*row, "name")));
    }
    while (const OGRFeatureUniquePtr row{pRecords->GetNextFeature()}) {
        const int field = row->GetFieldIndex("dictionary");
        const auto found = dictionaries.find(field < 0 ? 0 : row->GetFieldAsInteger64(field));
        if (found != dictionaries.end() && found->second) {
            const CString name = Utf8ToWide(FieldText(*row, "name"));
            const CString text = Utf8ToWide(FieldText(*row, "text"));
            found->second->setAt(name, text);
        }
    }
}

void DrawingReader::ReadOwnTables() {
    for (std::size_t i = 0; i < kEntityKinds && m_schema.exists; ++i) {
        OGRLayer* pLayer = m_schema.tables[i].empty() ? nullptr : m_file.Table(m_schema.tables[i]);
        if (pLayer && MayGoOn()) {
            ReadOwnTable(*pLayer, static_cast<EntityKind>(i));
        }
    }
    AddStrangers();
}

void DrawingReader::ReadOwnTable(OGRLayer& layer, EntityKind kind) {
    const EntityTable table(layer, kind, m_schema);
    PassedOver misfits;
    StoredRows row(m_file, layer);
    while (m_rows->Step() && row.Next()) {
        ReadOwnRow(table, row, misfits);
    }
    Warn(layer.GetName(), Msg::GeometryMisfit, misfits);
}

void DrawingReader::ReadOwnRow(const EntityTable& table, const StoredRows& row,
                               PassedOver& misfits) {
    std::unique_ptr<AcDbEntity> entity = ReadEntity(table, row);
    const std::int64_t fid = row.Fid();
    if (!entity) {
        // Its number stays taken, so that nothing new is ever written over it.
        m_objects->Take(fid);
        misfits.Add(fid);
        return;
    }
    const EntityTable::Fixed& fields = table.Fields();
    entity->setLayer(m_objects->Layer(row.Text(fields.layer)));
    const AcDbObjectId block = m_objects->Block(row.Text(fields.block));
    const bool isOurs = fid <= m_schema.lastFids[static_cast<std::size_t>(table.Kind())];
    const AcDbObjectId id = isOurs ? m_objects->Take(fid) : AcDbObjectId();
    if (id.isNull()) {
        m_strangers.push_back({table.Kind(), fid, block, std::move(entity)});
    } else {
        m_objects->AddEntity(id, std::move(entity), block);
    }
}

void DrawingReader::AddStrangers() {
    for (Stranger& stranger : m_strangers) {
        AcDbObjectId id = m_objects->Take(stranger.fid);
        if (id.isNull()) {
            id = m_objects->TakeNew();
            m_remembered.renumbered.push_back({stranger.kind, stranger.fid, id});
        }
        m_objects->AddEntity(id, std::move(stranger.entity), stranger.block);
    }
}

void DrawingReader::ReadForeignTables() {
    GDALDataset& dataset = m_file.Dataset();
    for (int i = 0; i < dataset.GetLayerCount() && MayGoOn(); ++i) {
        OGRLayer& layer = *dataset.GetLayer(i);
        const bool isOurs = m_schema.exists && m_schema.IsOurs(layer.GetName());
        if (isOurs || layer.GetGeomType() == wkbNone) {
            continue;
        }
        if (m_schema.exists && ShowsAnyOf(m_file, layer.GetName(), m_schema.tables)) {
            m_warnings.push_back(
                Utf8ToWide(std::string(layer.GetName()) +
                           ": it is passed over, since it shows objects of the drawing once more"));
            continue;
        }
        const auto table = static_cast<std::uint32_t>(m_remembered.foreignTables.size());
        m_remembered.foreignTables.emplace_back(layer.GetName());
        ReadForeignTable(layer, table);
        TakeCoordinateSystem(layer);
    }
}

void DrawingReader::ReadForeignTable(OGRLayer& layer, std::uint32_t table) {
    ForeignTable source;
    source.number = table;
    source.name = m_remembered.foreignTables[table];
    source.layer = m_objects->Layer(source.name.c_str());
    std::vector<std::string> binary;
    source.columns = AttributeColumns(*layer.GetLayerDefn(), binary);
    std::copy_if(m_schema.runs.begin(), m_schema.runs.end(), std::back_inserter(source.runs),
                 [&](const IdRun& run) { return run.table == source.name; });
    EntityMaker maker;
    StoredRows row(m_file, layer);
    while (m_rows->Step() && row.Next()) {
        maker.Entities().clear();
        const ShapeResult result = ReadShapes(row.Geometry(), maker);
        if (result != ShapeResult::Taken) {
            (result == ShapeResult::Empty ? source.empty : source.misfits).Add(row.Fid());
        }
        TakeForeignRow(source, row, maker.Entities());
    }
    Warn(source.name, Msg::NoGeometry, source.empty);
    Warn(source.name, Msg::InvalidPosition, source.misfits);
    for (const std::string& column : binary) {
        m_warnings.push_back(Text(Msg::BinaryColumn, source.name, column));
    }
}

void DrawingReader::TakeForeignRow(ForeignTable& source, const StoredRows& row,
                                   std::vector<std::unique_ptr<AcDbEntity>>& entities) {
    for (std::uint32_t part = 0; part < entities.size(); ++part) {
        if (!m_schema.foreign.empty() &&
            m_schema.foreign.contains({source.name, row.Fid(), part})) {
            ++source.place;
            continue;
        }
        std::unique_ptr<AcDbEntity>& entity = entities[part];
        for (const AttributeColumn& column : source.columns) {
            const AcDbValue value = row.Value(column.field);
            if (!value.isNull()) {
                entity->setAttribute(column.name, value);
            }
        }
        entity->setLayer(source.layer);
        const AcDbObjectId id = ForeignId(source);
        m_remembered.foreign.push_back({id, part, row.Fid(), source.number});
        m_objects->AddEntity(id, std::move(entity), m_objects->Block(nullptr));
    }
}

AcDbObjectId DrawingReader::ForeignId(ForeignTable& source) {
    const std::int64_t place = source.place++;
    for (const IdRun& run : source.runs) {
        if (place >= run.place && place - run.place < std::int64_t{run.count}) {
            const AcDbObjectId id = m_objects->Take(run.firstId + (place - run.place));
            if (!id.isNull()) {
                return id;
            }
        }
    }
    const AcDbObjectId id = m_objects->TakeNew();
    std::vector<IdRun>& runs = m_remembered.newRuns;
    const bool goesOn = !runs.empty() && runs.back().table == source.name &&
                        runs.back().place + runs.back().count == place &&
                        runs.back().firstId + runs.back().count == id.number();
    if (goesOn) {
        ++runs.back().count;
    } else {
        runs.push_back({source.name, place, id.number(), 1});
    }
    return id;
}

void DrawingReader::TakeCoordinateSystem(OGRLayer& layer) {
    const std::string wkt = WktOf(layer.GetSpatialRef());
    if (wkt.empty()) {
        return;
    }
    if (!m_coordinateSystem) {
        m_coordinateSystem = wkt;
        return;
    }
    OGRSpatialReference drawing;
    if (*m_coordinateSystem != wkt &&
        (drawing.importFromWkt(m_coordinateSystem->c_str()) != OGRERR_NONE ||
         !drawing.IsSame(layer.GetSpatialRef()))) {
        m_warnings.push_back(Text(Msg::TableCoordinateSystem, layer.GetName()));
    }
}

void DrawingReader::Warn(const std::string& table, Msg what, const PassedOver& rows) {
    if (rows.count > 0) {
        m_warnings.push_back(Text(Msg::SkippedRows, table, rows.count, Text(what), rows.firstFid));
    }
}

} // namespace Tessaly
