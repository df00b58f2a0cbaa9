// Writes a drawing, or what has changed of it, into a GeoPackage.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "host/storage/Columns.h"
#include "host/storage/GdalErrors.h"
#include "host/storage/RememberedFile.h"
#include "host/storage/RowProgress.h"
#include "platform/arx/DbDatabase.h"

namespace Tessaly {

class OpenGeoPackage;

/// One writing into one file: a single transaction.
class DrawingWriter {
public:
    enum class Scope {
        Changes,    ///< what the database says is unsaved
        Everything, ///< into a file that has nothing of the drawing
        Rewrite,    ///< what the file has of ours, and the changes: every row anew
    };

    /// What the file is to be from now on.
    enum class Identity {
        Same,    ///< the next state of the file that the drawing was read from
        NewFile, ///< the first state of another one
    };

    DrawingWriter(OpenGeoPackage& file, GdalErrors& errors, const AcDbDatabase& database,
                  const RememberedFile& remembered, const AcDbProgress& progress);
    ~DrawingWriter();
    DrawingWriter(const DrawingWriter&) = delete;
    DrawingWriter& operator=(const DrawingWriter&) = delete;

    /// Empty on success, else why not: the file is then as it was.
    CString Write(Scope scope, Identity identity);
    /// After a failure: the file is not in the state that the drawing knows.
    const AcDbConflict& Conflict() const { return m_conflict; }
    /// After success: what is to be remembered of the file now.
    void Update(RememberedFile& remembered) const;
    /// Objects that are not in the file, since it has no table for their class.
    std::size_t UnknownCount() const { return m_nUnknown; }

private:
    struct Table;
    struct Counts;

    bool WriteAll();
    void CollectObjects();
    bool MoveRow(const std::string& table, std::int64_t from, const std::string& to);
    bool MoveAside(const std::string& table, std::int64_t fid);
    bool MoveRenumbered();
    bool PrepareTables();
    bool PrepareTable(std::size_t kind, const std::vector<Counts>& counts,
                      const std::vector<AcDbNameId>& names);
    bool WriteObjects();
    bool WriteEntity(const AcDbEntity& entity);
    bool PutRow(Table& table, const AcDbEntity& entity, bool isNewRow);
    bool InsertBeside(Table& table, OGRFeature& row);
    bool TakeOver(AcDbObjectId id);
    bool WriteNotes();
    bool WriteIdentity();
    bool FinishTables();
    CString FailureReason();

    OpenGeoPackage& m_file;
    GdalErrors& m_errors;
    const AcDbDatabase& m_database;
    const RememberedFile& m_remembered;
    RowProgress m_progress;
    Scope m_scope = Scope::Changes;
    Identity m_identity = Identity::Same;
    FileIdentity m_next; ///< the file's after this writing
    AcDbConflict m_conflict;
    Schema m_schema;
    std::size_t m_nNotedColumns = 0;
    std::size_t m_nUnknown = 0;
    std::uint32_t m_nNextId = 0; ///< to be noted in the file
    std::vector<AcDbObjectId> m_objects;
    std::array<std::unique_ptr<Table>, kEntityKinds> m_tables;
    std::vector<AcDbObjectId> m_takenOver;
    CString m_strRefusal; ///< set where the drawing, not the file, is at fault
};

} // namespace Tessaly
