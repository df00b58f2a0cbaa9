#include "host/storage/StoredExtent.h"

#include <array>
#include <limits>
#include <ogrsf_frmts.h>
#include <sqlite3.h>
#include <string>

#include "host/storage/OpenGeoPackage.h"

namespace Tessaly {

namespace {

struct Side {
    const char* column;
    const char* function;
    bool isLower;
};
constexpr std::array<Side, 4> kSides = {{{"c.min_x", "ST_MinX", true},
                                         {"c.min_y", "ST_MinY", true},
                                         {"c.max_x", "ST_MaxX", false},
                                         {"c.max_y", "ST_MaxY", false}}};

/// That a value does not reach to a side of the extent, in SQL. Not exactly: on its way
/// through a text the side may have lost its last digits.
std::string IsInside(const Side& side, const std::string& value) {
    const std::string column = side.column;
    return "(" + (side.isLower ? value + " - " + column : column + " - " + value) +
           " > 1e-12 * (1 + abs(" + column + ")))";
}

} // namespace

StoredExtent::~StoredExtent() {
    sqlite3_finalize(m_pReaches);
}

sqlite3* StoredExtent::Database() {
    return static_cast<sqlite3*>(m_file.Dataset().GetInternalHandle("SQLITE_HANDLE"));
}

bool StoredExtent::Prepare() {
    const std::string geometry = "(r." + QuoteName(m_layer.GetGeometryColumn()) + ")";
    std::string sql = "SELECT 1 FROM " + QuoteName(m_layer.GetName()) +
                      " AS r, gpkg_contents AS c WHERE r." + QuoteName(m_layer.GetFIDColumn()) +
                      " = ?1 AND c.table_name = " + QuoteText(m_layer.GetName()) + " AND (0";
    for (std::size_t i = 0; i < kSides.size(); ++i) {
        sql += " OR (NOT " + IsInside(kSides[i], kSides[i].function + geometry) + " AND " +
               IsInside(kSides[i], "?" + std::to_string(i + 2)) + ")";
    }
    sql += ")";
    return sqlite3_prepare_v2(Database(), sql.c_str(), -1, &m_pReaches, nullptr) == SQLITE_OK;
}

bool StoredExtent::Leave(std::int64_t fid, const OGRGeometry* pNext) {
    if (m_bTooLarge || *m_layer.GetGeometryColumn() == '\0') {
        return true;
    }
    int result = SQLITE_ERROR;
    if (m_pReaches || Prepare()) {
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        std::array<double, kSides.size()> sides{kInfinity, kInfinity, -kInfinity, -kInfinity};
        if (pNext && !pNext->IsEmpty()) {
            OGREnvelope box;
            pNext->getEnvelope(&box);
            sides = {box.MinX, box.MinY, box.MaxX, box.MaxY};
        }
        sqlite3_bind_int64(m_pReaches, 1, fid);
        for (std::size_t i = 0; i < sides.size(); ++i) {
            sqlite3_bind_double(m_pReaches, static_cast<int>(i) + 2, sides[i]);
        }
        result = sqlite3_step(m_pReaches);
        m_bTooLarge = result == SQLITE_ROW;
        sqlite3_reset(m_pReaches);
    }
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        CPLError(CE_Failure, CPLE_AppDefined, "%s", sqlite3_errmsg(Database()));
        return false;
    }
    return true;
}

bool StoredExtent::Finish() {
    if (!m_bTooLarge) {
        return true;
    }
    const std::string geometry = QuoteName(m_layer.GetGeometryColumn());
    // What GDAL has noted goes to the file first, or it would come over this later.
    return m_layer.SyncToDisk() == OGRERR_NONE &&
           m_file.Execute("UPDATE gpkg_contents SET (min_x, min_y, max_x, max_y) = (SELECT "
                          "min(ST_MinX(" +
                          geometry + ")), min(ST_MinY(" + geometry + ")), max(ST_MaxX(" + geometry +
                          ")), max(ST_MaxY(" + geometry + ")) FROM " +
                          QuoteName(m_layer.GetName()) +
                          ") WHERE table_name = " + QuoteText(m_layer.GetName()));
}

} // namespace Tessaly
