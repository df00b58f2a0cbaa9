// The rows of a feature table or view, as SQLite has them. Reading them as GDAL's features
// would make and drop an object, and copy every text, once more for each row.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/arx/DbAttributes.h"

class OGRLayer;
struct sqlite3_stmt;

namespace Tessaly {

class OpenGeoPackage;

/// Goes through a table once. Fields have the numbers that the layer's fields have. What it
/// gives is valid until the next row. A failure is reported as GDAL reports its own.
class StoredRows {
public:
    StoredRows(OpenGeoPackage& file, OGRLayer& layer);
    ~StoredRows();
    StoredRows(const StoredRows&) = delete;
    StoredRows& operator=(const StoredRows&) = delete;

    /// False at the end, and after a failure.
    bool Next();
    /// Its place, from 1, in a view whose rows have no number.
    std::int64_t Fid() const;
    /// As the file has it; empty for none.
    std::span<const unsigned char> Geometry() const;
    /// By what is stored, whatever the column says that it should be. Null for bytes that
    /// are no text, and for a field of -1.
    AcDbValue Value(int field) const;
    /// Null if it is no text.
    const char* Text(int field) const;

private:
    sqlite3_stmt* m_pStatement = nullptr;
    bool m_bNumbered;
    std::int64_t m_nRow = 0;
};

/// A view whose rows come from one of the tables, if only in part.
bool ShowsAnyOf(OpenGeoPackage& file, const std::string& view, std::span<const std::string> tables);

} // namespace Tessaly
