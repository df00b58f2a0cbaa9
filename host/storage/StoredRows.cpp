#include "host/storage/StoredRows.h"

#include <ogrsf_frmts.h>
#include <sqlite3.h>

#include "host/storage/OpenGeoPackage.h"

namespace Tessaly {

namespace {

/// Columns in front of the fields: number and geometry.
constexpr int kFirstField = 2;

sqlite3* DatabaseOf(OpenGeoPackage& file) {
    return static_cast<sqlite3*>(file.Dataset().GetInternalHandle("SQLITE_HANDLE"));
}

struct Search {
    std::span<const std::string> tables;
    bool isFound = false;
};

/// Called by SQLite for each column that a statement is going to read.
int NoteReading(void* pSearch, int action, const char* table, const char*, const char*,
                const char*) {
    auto& search = *static_cast<Search*>(pSearch);
    for (const std::string& own : search.tables) {
        if (action == SQLITE_READ && table && !own.empty() && EQUAL(own.c_str(), table)) {
            search.isFound = true;
        }
    }
    return SQLITE_OK;
}

void Report(sqlite3* pDatabase) {
    CPLError(CE_Failure, CPLE_AppDefined, "%s", sqlite3_errmsg(pDatabase));
}

} // namespace

StoredRows::StoredRows(OpenGeoPackage& file, OGRLayer& layer)
    : m_bNumbered(*layer.GetFIDColumn() != '\0') {
    std::string sql = "SELECT " +
                      (m_bNumbered ? QuoteName(layer.GetFIDColumn()) : std::string("NULL")) + ", " +
                      QuoteName(layer.GetGeometryColumn());
    const OGRFeatureDefn& definition = *layer.GetLayerDefn();
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        sql += ", " + QuoteName(definition.GetFieldDefn(i)->GetNameRef());
    }
    sql += " FROM " + QuoteName(layer.GetName());
    sqlite3* pDatabase = DatabaseOf(file);
    if (sqlite3_prepare_v2(pDatabase, sql.c_str(), -1, &m_pStatement, nullptr) != SQLITE_OK) {
        Report(pDatabase);
    }
}

StoredRows::~StoredRows() {
    sqlite3_finalize(m_pStatement);
}

bool StoredRows::Next() {
    const int result = m_pStatement ? sqlite3_step(m_pStatement) : SQLITE_DONE;
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        Report(sqlite3_db_handle(m_pStatement));
    }
    ++m_nRow;
    return result == SQLITE_ROW;
}

std::int64_t StoredRows::Fid() const {
    return m_bNumbered ? sqlite3_column_int64(m_pStatement, 0) : m_nRow;
}

std::span<const unsigned char> StoredRows::Geometry() const {
    if (sqlite3_column_type(m_pStatement, 1) != SQLITE_BLOB) {
        return {};
    }
    const auto* pBytes = static_cast<const unsigned char*>(sqlite3_column_blob(m_pStatement, 1));
    return {pBytes, static_cast<std::size_t>(sqlite3_column_bytes(m_pStatement, 1))};
}

AcDbValue StoredRows::Value(int field) const {
    if (field < 0) {
        return {};
    }
    const int column = field + kFirstField;
    switch (sqlite3_column_type(m_pStatement, column)) {
    case SQLITE_INTEGER:
        return std::int64_t{sqlite3_column_int64(m_pStatement, column)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_pStatement, column);
    case SQLITE_TEXT: {
        const auto* pText =
            reinterpret_cast<const char*>(sqlite3_column_text(m_pStatement, column));
        return std::string_view(
            pText, static_cast<std::size_t>(sqlite3_column_bytes(m_pStatement, column)));
    }
    default:
        return {};
    }
}

const char* StoredRows::Text(int field) const {
    const int column = field + kFirstField;
    return field >= 0 && sqlite3_column_type(m_pStatement, column) == SQLITE_TEXT
               ? reinterpret_cast<const char*>(sqlite3_column_text(m_pStatement, column))
               : nullptr;
}

bool ShowsAnyOf(OpenGeoPackage& file, const std::string& view,
                std::span<const std::string> tables) {
    Search search{tables};
    sqlite3* pDatabase = DatabaseOf(file);
    sqlite3_stmt* pStatement = nullptr;
    sqlite3_set_authorizer(pDatabase, NoteReading, &search);
    // A view that cannot be read says so when it is.
    sqlite3_prepare_v2(pDatabase, ("SELECT * FROM " + QuoteName(view)).c_str(), -1, &pStatement,
                       nullptr);
    sqlite3_finalize(pStatement);
    sqlite3_set_authorizer(pDatabase, nullptr, nullptr);
    return search.isFound;
}

} // namespace Tessaly
