#include "host/storage/DrawingWriter.h"

#include <algorithm>
#include <ogrsf_frmts.h>
#include <unordered_map>
#include <utility>

#include "host/Texts.h"
#include "host/storage/ConflictTexts.h"
#include "host/storage/EntityRows.h"
#include "host/storage/OpenGeoPackage.h"
#include "host/storage/StoredExtent.h"
#include "host/storage/SymbolRows.h"
#include "platform/arx/DbDictionary.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

/// A feature table with the one row object that all its rows are written from.
struct DrawingWriter::Table {
    Table(OpenGeoPackage& file, OGRLayer& layer, EntityKind kind, const Schema& schema,
          bool isNewTable)
        : columns(layer, kind, schema), extent(file, layer), isNew(isNewTable) {}

    EntityTable columns;
    StoredExtent extent;
    bool isNew;
    OGRFeatureUniquePtr row; ///< made once all columns are there
    /// Names that stand in rows, by the ids of layers and blocks.
    std::unordered_map<std::uint32_t, std::string> names;
};

/// How often a name's values are of each kind.
struct DrawingWriter::Counts {
    std::size_t reals = 0;
    std::size_t integers = 0;
    std::size_t texts = 0;
    bool isSeen = false;

    void Add(AcDbValue::Kind kind) {
        reals += kind == AcDbValue::Kind::Real;
        integers += kind == AcDbValue::Kind::Integer;
        texts += kind == AcDbValue::Kind::Text;
    }
    /// The kind that most values fit; the others go to the extra text.
    AcDbValue::Kind Kind() const {
        if (texts > reals + integers || reals + integers == 0) {
            return AcDbValue::Kind::Text;
        }
        return reals > 0 ? AcDbValue::Kind::Real : AcDbValue::Kind::Integer;
    }
};

namespace {

/// Null for what is no entity, or none of a class that is stored.
const AcDbEntity* AsEntity(const AcDbObject& object) {
    const AcRxClass* const pClass = object.isA();
    const bool isEntity = pClass == AcDbPoint::desc() || pClass == AcDbPolyline::desc() ||
                          pClass == AcDbMPolygon::desc() || pClass == AcDbText::desc();
    return isEntity ? static_cast<const AcDbEntity*>(&object) : nullptr;
}

} // namespace

DrawingWriter::DrawingWriter(OpenGeoPackage& file, GdalErrors& errors, const AcDbDatabase& database,
                             const RememberedFile& remembered, const AcDbProgress& progress)
    : m_file(file), m_errors(errors), m_database(database), m_remembered(remembered),
      m_progress(progress) {}

DrawingWriter::~DrawingWriter() = default;

CString DrawingWriter::Write(Scope scope, Identity identity) {
    m_scope = scope;
    m_identity = identity;
    if (!m_file.BeginWriting()) {
        return m_errors.Reason();
    }
    CString reason = LoadSchema(m_file, m_schema);
    if (!reason.IsEmpty()) {
        return reason;
    }
    // Looked at here, where nobody else can write any more.
    if (m_scope != Scope::Everything) {
        m_conflict = FindConflict(m_file, m_schema, m_remembered, m_database);
    }
    if (m_conflict) {
        return ConflictReason(m_conflict);
    }
    m_nNotedColumns = m_schema.columns.size();
    m_errors.Clear();
    if (WriteAll() && m_file.Commit()) {
        return {};
    }
    // Said before the transaction is taken back, which may have its own complaints.
    CString failure = FailureReason();
    m_file.Rollback();
    return failure;
}

CString DrawingWriter::FailureReason() {
    if (!m_strRefusal.IsEmpty()) {
        return m_strRefusal;
    }
    return m_progress.IsStopped() ? Text(Msg::SavingStopped) : m_errors.Reason();
}

bool DrawingWriter::WriteAll() {
    // Another drawing may have been saved to the same file since, with more objects.
    m_nNextId = std::max(m_database.nextId(), m_schema.nextId);
    if (std::int64_t{m_nNextId} > kHighestId) {
        m_strRefusal = Text(Msg::TooManyObjects);
        return false;
    }
    if (!ForgetMissingTables(m_file, m_schema) || !CreateSchema(m_file) || !MoveRenumbered()) {
        return false;
    }
    CollectObjects();
    return PrepareTables() && WriteObjects() && FinishTables() && WriteNotes();
}

void DrawingWriter::CollectObjects() {
    if (m_scope != Scope::Everything) {
        const auto unsaved = m_database.unsavedObjects();
        m_objects.assign(unsaved.begin(), unsaved.end());
        m_objects.insert(m_objects.end(), m_remembered.made.begin(), m_remembered.made.end());
        if (!m_schema.exists) {
            for (const auto& ids :
                 {m_database.layers(), m_database.blocks(), m_database.dictionaries()}) {
                m_objects.insert(m_objects.end(), ids.begin(), ids.end());
            }
        }
    }
    for (std::uint32_t i = 1; m_scope != Scope::Changes && i < m_database.nextId(); ++i) {
        const AcDbObjectId id(i);
        const AcDbObject* pObject = m_database.peek(id);
        const bool isOthers = m_scope == Scope::Rewrite && m_remembered.FindForeign(id);
        if (pObject && !pObject->isErased() && !isOthers) {
            m_objects.push_back(id);
        }
    }
    // An object may be there for several reasons, and is to be written once.
    std::sort(m_objects.begin(), m_objects.end());
    m_objects.erase(std::unique(m_objects.begin(), m_objects.end()), m_objects.end());
    m_progress.Expect(static_cast<std::int64_t>(m_objects.size()));
}

bool DrawingWriter::MoveRow(const std::string& table, std::int64_t from, const std::string& to) {
    return m_file.Execute("UPDATE " + QuoteName(table) + " SET fid = " + to +
                          " WHERE fid = " + std::to_string(from));
}

/// To a number behind all others: read next time as what another program added.
bool DrawingWriter::MoveAside(const std::string& table, std::int64_t fid) {
    return MoveRow(table, fid,
                   "1 + max((SELECT max(fid) FROM " + QuoteName(table) + "), " +
                       std::to_string(m_nNextId) + ")");
}

bool DrawingWriter::MoveRenumbered() {
    // Out of each other's way first: one may have the number that another is to get.
    constexpr std::int64_t kOutOfTheWay = -(std::int64_t{1} << 40);
    for (const bool isFinal : {false, true}) {
        for (const RememberedFile::Renumbered& row : m_remembered.renumbered) {
            const std::string& table = m_schema.tables[static_cast<std::size_t>(row.kind)];
            const std::int64_t number = row.id.number();
            const bool isDone =
                table.empty() ||
                (isFinal ? MoveAside(table, number) &&
                               MoveRow(table, kOutOfTheWay - number, std::to_string(number))
                         : MoveRow(table, row.fid, std::to_string(kOutOfTheWay - number)));
            if (!isDone) {
                return false;
            }
            std::int64_t& last = m_schema.lastFids[static_cast<std::size_t>(row.kind)];
            last = std::max(last, number);
        }
    }
    return true;
}

bool DrawingWriter::PrepareTables() {
    std::array<std::vector<Counts>, kEntityKinds> counts;
    std::array<std::vector<AcDbNameId>, kEntityKinds> names;
    std::array<bool, kEntityKinds> isNeeded{};
    for (const AcDbObjectId id : m_objects) {
        const AcDbObject* pObject = m_database.peek(id);
        const AcDbEntity* pEntity = pObject ? AsEntity(*pObject) : nullptr;
        EntityKind kind{};
        if (!pEntity || !KindOf(*pEntity, kind)) {
            continue;
        }
        const auto at = static_cast<std::size_t>(kind);
        isNeeded[at] = true;
        const AcDbAttributes& attributes = pEntity->attributes();
        for (std::size_t i = 0; i < attributes.size() && !pEntity->isErased(); ++i) {
            const AcDbAttributes::Item item = attributes.at(i);
            const auto number = static_cast<std::size_t>(item.name);
            if (number >= counts[at].size()) {
                counts[at].resize(number + 1);
            }
            if (!std::exchange(counts[at][number].isSeen, true)) {
                names[at].push_back(item.name);
            }
            counts[at][number].Add(item.value.kind());
        }
    }
    for (std::size_t i = 0; i < kEntityKinds; ++i) {
        if (isNeeded[i] && !PrepareTable(i, counts[i], names[i])) {
            return false;
        }
    }
    return true;
}

bool DrawingWriter::PrepareTable(std::size_t kind, const std::vector<Counts>& counts,
                                 const std::vector<AcDbNameId>& names) {
    std::string& name = m_schema.tables[kind];
    OGRLayer* pLayer = name.empty() ? nullptr : m_file.Table(name);
    const bool isNew = !pLayer;
    if (isNew) {
        const std::string wkt = WideToUtf8(m_database.coordinateSystem().View());
        pLayer = CreateEntityTable(m_file, static_cast<EntityKind>(kind), wkt, name);
    }
    if (!pLayer || !CompleteEntityTable(*pLayer, static_cast<EntityKind>(kind))) {
        return false;
    }
    m_tables[kind] =
        std::make_unique<Table>(m_file, *pLayer, static_cast<EntityKind>(kind), m_schema, isNew);
    Table& table = *m_tables[kind];
    for (const AcDbNameId attribute : names) {
        const AcDbValue::Kind valueKind = counts[static_cast<std::size_t>(attribute)].Kind();
        if (!table.columns.Find(attribute) && !table.columns.Add(attribute, valueKind, m_schema)) {
            return false;
        }
    }
    table.row.reset(OGRFeature::CreateFeature(pLayer->GetLayerDefn()));
    return true;
}

bool DrawingWriter::WriteObjects() {
    for (const AcDbObjectId id : m_objects) {
        const AcDbObject* pObject = m_database.peek(id);
        if (!pObject) {
            continue;
        }
        const AcDbEntity* pEntity = AsEntity(*pObject);
        if (!pEntity && dynamic_cast<const AcDbEntity*>(pObject)) {
            m_nUnknown += pObject->isErased() ? 0 : 1;
            continue;
        }
        const bool isDone = pEntity ? WriteEntity(*pEntity)
                                    : WriteSymbol(m_file, *pObject, m_scope == Scope::Everything);
        if (!isDone || !m_progress.Step()) {
            return false;
        }
    }
    return true;
}

bool DrawingWriter::WriteEntity(const AcDbEntity& entity) {
    EntityKind kind{};
    KindOf(entity, kind);
    Table& table = *m_tables[static_cast<std::size_t>(kind)];
    const bool isForeign =
        m_scope != Scope::Everything && m_remembered.FindForeign(entity.objectId()) != nullptr;
    const bool isNewRow = m_scope == Scope::Everything || !m_remembered.HasRow(entity.objectId());
    if (isForeign && !TakeOver(entity.objectId())) {
        return false;
    }
    if (!entity.isErased()) {
        return PutRow(table, entity, isNewRow);
    }
    if (isNewRow) {
        return true;
    }
    const std::int64_t fid = entity.objectId().number();
    if (!table.extent.Leave(fid, nullptr)) {
        return false;
    }
    const OGRErr deleted = table.columns.Layer().DeleteFeature(fid);
    return deleted == OGRERR_NONE || deleted == OGRERR_NON_EXISTING_FEATURE;
}

bool DrawingWriter::PutRow(Table& table, const AcDbEntity& entity, bool isNewRow) {
    OGRFeature& row = *table.row;
    OGRLayer& layer = table.columns.Layer();
    if (!FillRow(table.columns, entity, row)) {
        m_strRefusal =
            Text(Msg::ObjectPosition, entity.objectId().number(), entity.layer().GetString());
        return false;
    }
    const auto nameOf = [&](AcDbObjectId id) -> AcDbValue {
        const auto [place, isUnknown] = table.names.try_emplace(id.number());
        if (isUnknown) {
            const AcDbObject* pObject = m_database.peek(id);
            if (const auto* pLayer = dynamic_cast<const AcDbLayerTableRecord*>(pObject)) {
                place->second = WideToUtf8(pLayer->getName().View());
            } else if (const auto* pBlock = dynamic_cast<const AcDbBlockTableRecord*>(pObject)) {
                place->second = WideToUtf8(pBlock->getName().View());
            }
        }
        return std::string_view(place->second);
    };
    const bool isInSpace = entity.blockId() == m_database.modelSpace();
    SetFieldValue(row, table.columns.Fields().layer, nameOf(entity.layerId()));
    SetFieldValue(row, table.columns.Fields().block,
                  isInSpace ? AcDbValue() : nameOf(entity.blockId()));
    row.SetFID(entity.objectId().number());
    std::int64_t& last = m_schema.lastFids[static_cast<std::size_t>(table.columns.Kind())];
    last = std::max<std::int64_t>(last, entity.objectId().number());
    if (!isNewRow) {
        if (!table.extent.Leave(row.GetFID(), row.GetGeometryRef())) {
            return false;
        }
        const OGRErr updated = layer.SetFeature(&row);
        if (updated != OGRERR_NON_EXISTING_FEATURE) {
            return updated == OGRERR_NONE;
        }
    }
    return layer.CreateFeature(&row) == OGRERR_NONE || InsertBeside(table, row);
}

bool DrawingWriter::InsertBeside(Table& table, OGRFeature& row) {
    // Another program may have given the number to a row of its own since we read the file.
    OGRLayer& layer = table.columns.Layer();
    const GIntBig fid = row.GetFID();
    if (!OGRFeatureUniquePtr(layer.GetFeature(fid))) {
        return false;
    }
    m_errors.Clear();
    return MoveAside(layer.GetName(), fid) && layer.CreateFeature(&row) == OGRERR_NONE;
}

bool DrawingWriter::TakeOver(AcDbObjectId id) {
    const RememberedFile::Foreign& row = *m_remembered.FindForeign(id);
    const std::string& table = m_remembered.foreignTables[row.table];
    m_takenOver.push_back(id);
    return AddNote(m_file, kForeignTable,
                   {{"table_name", std::string_view(table)},
                    {"row_fid", row.fid},
                    {"part", std::int64_t{row.part}}});
}

bool DrawingWriter::FinishTables() {
    for (const std::unique_ptr<Table>& table : m_tables) {
        if (!table || !table->isNew) {
            if (table && !table->extent.Finish()) {
                return false;
            }
            continue;
        }
        // Heights are welcome and not required, which GDAL has no word for.
        OGRLayer& layer = table->columns.Layer();
        if (layer.SyncToDisk() != OGRERR_NONE ||
            !m_file.Execute("UPDATE gpkg_geometry_columns SET z = 2 WHERE table_name = " +
                            QuoteText(layer.GetName()))) {
            return false;
        }
    }
    return true;
}

bool DrawingWriter::WriteNotes() {
    for (std::size_t i = m_nNotedColumns; i < m_schema.columns.size(); ++i) {
        const ColumnName& column = m_schema.columns[i];
        if (!AddNote(m_file, kColumnTable,
                     {{"table_name", std::string_view(column.table)},
                      {"column_name", std::string_view(column.column)},
                      {"attribute", std::string_view(column.attribute)}})) {
            return false;
        }
    }
    for (const IdRun& run : m_remembered.newRuns) {
        if (m_scope != Scope::Everything && !AddNote(m_file, kIdTable,
                                                     {{"table_name", std::string_view(run.table)},
                                                      {"place", run.place},
                                                      {"first_id", std::int64_t{run.firstId}},
                                                      {"count", std::int64_t{run.count}}})) {
            return false;
        }
    }
    for (std::size_t i = 0; i < kEntityKinds; ++i) {
        const std::string name = kEntityTables[i];
        if (!m_schema.tables[i].empty() &&
            (!WriteMeta(m_file, "table." + name, m_schema.tables[i]) ||
             !WriteMeta(m_file, "last." + name, std::to_string(m_schema.lastFids[i])))) {
            return false;
        }
    }
    return WriteIdentity() && WriteMeta(m_file, "version", std::to_string(kSchemaVersion)) &&
           WriteMeta(m_file, "next_id", std::to_string(m_nNextId)) &&
           WriteMeta(m_file, "srs", WideToUtf8(m_database.coordinateSystem().View()));
}

bool DrawingWriter::WriteIdentity() {
    const bool isNewFile = m_identity == Identity::NewFile;
    m_next = NextIdentity(isNewFile ? FileIdentity() : m_schema.identity);
    std::optional<NumberRuns> changed;
    if (m_identity == Identity::Same) {
        std::vector<std::uint32_t> numbers;
        // Rows that are only written anew hold what they held.
        for (const AcDbObjectId id : m_database.unsavedObjects()) {
            numbers.push_back(id.number());
        }
        for (const AcDbObjectId id : m_remembered.made) {
            numbers.push_back(id.number());
        }
        changed.emplace(std::move(numbers));
    }
    return (!isNewFile || ClearSaves(m_file)) && NoteSave(m_file, m_next, changed);
}

void DrawingWriter::Update(RememberedFile& remembered) const {
    if (m_scope == Scope::Everything) {
        const std::string path = std::move(remembered.path);
        remembered = RememberedFile();
        remembered.path = path;
    }
    remembered.identity = m_next;
    for (const AcDbObjectId id : m_objects) {
        const AcDbObject* pObject = m_database.peek(id);
        if (pObject && pObject->isA() == AcDbDictionary::desc()) {
            remembered.NoteRecords(static_cast<const AcDbDictionary&>(*pObject));
        }
    }
    for (const AcDbObjectId id : m_takenOver) {
        remembered.FindForeign(id)->isOurs = true;
    }
    remembered.firstUnwritten = m_database.nextId();
    remembered.made.clear();
    remembered.renumbered.clear();
    remembered.newRuns.clear();
}

} // namespace Tessaly
