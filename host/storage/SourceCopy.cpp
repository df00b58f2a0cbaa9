#include "host/storage/SourceCopy.h"

#include <ogrsf_frmts.h>

#include "host/storage/Columns.h"
#include "host/storage/Journals.h"
#include "host/storage/OpenGeoPackage.h"
#include "host/storage/UnfinishedFile.h"

namespace Tessaly {

namespace {

bool HasWriteAheadLog(OpenGeoPackage& file) {
    std::string mode;
    file.Query("PRAGMA journal_mode",
               [&](const OGRFeature& row) { mode = row.GetFieldAsString(0); });
    return mode == "wal";
}

/// The file's number for a coordinate system, which is added to those it knows.
bool RegisterSystem(OpenGeoPackage& file, const std::string& wkt, std::string& number) {
    // GDAL registers one only with a table in it.
    std::string name;
    OGRLayer* pProbe = CreateEntityTable(file, EntityKind::Node, wkt, name);
    if (!pProbe || pProbe->SyncToDisk() != OGRERR_NONE ||
        !file.Query("SELECT srs_id AS number FROM gpkg_geometry_columns WHERE table_name = " +
                        QuoteText(name),
                    [&](const OGRFeature& row) { number = row.GetFieldAsString(0); })) {
        return false;
    }
    return file.Execute("DELLAYER:" + name);
}

} // namespace

CString CopySource(const std::string& source, const UnfinishedFile& copy) {
    CString reason = SettleJournal(source);
    if (!reason.IsEmpty()) {
        return FileReason(source, reason);
    }
    GdalErrors errors;
    OpenGeoPackage file(source, OpenGeoPackage::Mode::Read);
    if (!file.IsOpen()) {
        return errors.Reason(source);
    }
    if (HasWriteAheadLog(file)) {
        // What was written last is not in the file itself yet.
        return file.Execute("VACUUM INTO " + QuoteText(copy.Path())) ? CString() : errors.Reason();
    }
    // Reading keeps writers out, up to the end of the transaction.
    if (!file.Begin() ||
        !file.Query("SELECT count(*) AS n FROM sqlite_master", [](const OGRFeature&) {})) {
        return errors.Reason(source);
    }
    return copy.CopyFrom(source);
}

CString SetCoordinateSystem(const std::string& path, const std::string& wkt) {
    GdalErrors errors;
    OpenGeoPackage file(path, OpenGeoPackage::Mode::Draft);
    Schema schema;
    std::string number;
    bool isDone =
        file.IsOpen() && LoadSchema(file, schema).IsEmpty() && RegisterSystem(file, wkt, number);
    for (const std::string& table : schema.tables) {
        for (const char* list : {"gpkg_geometry_columns", "gpkg_contents"}) {
            isDone =
                isDone && file.Execute("UPDATE " + std::string(list) + " SET srs_id = " + number +
                                       " WHERE table_name = " + QuoteText(table));
        }
    }
    return isDone ? CString() : errors.Reason();
}

} // namespace Tessaly
