// Reads a GeoPackage as a drawing: our tables, and those of others as plain entities.
#pragma once

#include <optional>
#include <vector>

#include "host/Texts.h"
#include "host/storage/Columns.h"
#include "host/storage/GdalErrors.h"
#include "host/storage/LoadedObjects.h"
#include "host/storage/RememberedFile.h"
#include "host/storage/RowProgress.h"
#include "host/storage/Schema.h"

class OGRLayer;

namespace Tessaly {

class OpenGeoPackage;
class StoredRows;

/// One reading of one file. Nothing reaches a database before all is read.
class DrawingReader {
public:
    DrawingReader(OpenGeoPackage& file, GdalErrors& errors, const AcDbProgress& progress)
        : m_file(file), m_errors(errors), m_progress(progress) {}

    /// Empty on success, else why not. `empty` tells what every database has.
    CString Read(const AcDbDatabase& empty);
    /// After success, once.
    void MoveInto(AcDbDatabase& database, RememberedFile& remembered);
    std::vector<CString>& Warnings() { return m_warnings; }
    /// Tables that the file should have.
    const std::vector<std::string>& MissingTables() const { return m_schema.missing; }

private:
    /// Rows of one table that were passed over, and the first of them.
    struct PassedOver {
        std::int64_t count = 0;
        std::int64_t firstFid = 0;
        void Add(std::int64_t fid) { firstFid = count++ == 0 ? fid : firstFid; }
    };
    /// A table of somebody else while it is read.
    struct ForeignTable {
        std::string name;
        std::uint32_t number = 0; ///< in RememberedFile::foreignTables
        AcDbObjectId layer;
        std::vector<AttributeColumn> columns;
        std::vector<IdRun> runs; ///< ids that its entities had when they were last saved
        std::int64_t place = 0;  ///< entities so far, those that were replaced included
        PassedOver empty;
        PassedOver misfits;
    };

    /// A row that another program added to one of our tables.
    struct Stranger {
        EntityKind kind{};
        std::int64_t fid = 0;
        AcDbObjectId block;
        std::unique_ptr<AcDbEntity> entity;
    };

    void ExpectRows();
    void ReadLayers();
    void ReadBlocks();
    void ReadDictionaries();
    void ReadOwnTables();
    void ReadOwnTable(OGRLayer& layer, EntityKind kind);
    void ReadOwnRow(const EntityTable& table, const StoredRows& row, PassedOver& misfits);
    void AddStrangers();
    void ReadForeignTables();
    void ReadForeignTable(OGRLayer& layer, std::uint32_t table);
    void TakeForeignRow(ForeignTable& source, const StoredRows& row,
                        std::vector<std::unique_ptr<AcDbEntity>>& entities);
    AcDbObjectId ForeignId(ForeignTable& source);
    void TakeCoordinateSystem(OGRLayer& layer);
    void Warn(const std::string& table, Msg what, const PassedOver& rows);
    bool MayGoOn() const { return !m_errors.HasFailed() && !m_rows->IsStopped(); }

    OpenGeoPackage& m_file;
    GdalErrors& m_errors;
    const AcDbProgress& m_progress;
    std::optional<RowProgress> m_rows;
    Schema m_schema;
    std::optional<LoadedObjects> m_objects;
    std::vector<Stranger> m_strangers;
    RememberedFile m_remembered;
    std::optional<std::string> m_coordinateSystem;
    std::vector<CString> m_warnings;
};

} // namespace Tessaly
