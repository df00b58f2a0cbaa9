// The extent that a file states for a table, by which other programs show and search it.
#pragma once

#include <cstdint>

class OGRGeometry;
class OGRLayer;
struct sqlite3;
struct sqlite3_stmt;

namespace Tessaly {

class OpenGeoPackage;

/// GDAL lets it grow with what is written, and never shrink. This looks at the rows that go
/// or move, and measures the table anew only if one of them was what the extent reached to.
class StoredExtent {
public:
    StoredExtent(OpenGeoPackage& file, OGRLayer& layer) : m_file(file), m_layer(layer) {}
    ~StoredExtent();
    StoredExtent(const StoredExtent&) = delete;
    StoredExtent& operator=(const StoredExtent&) = delete;

    /// Before a row gets another geometry, or none. False on failure.
    bool Leave(std::int64_t fid, const OGRGeometry* pNext);
    /// After all rows are written. False on failure.
    bool Finish();

private:
    bool Prepare();
    sqlite3* Database();

    OpenGeoPackage& m_file;
    OGRLayer& m_layer;
    sqlite3_stmt* m_pReaches = nullptr;
    bool m_bTooLarge = false;
};

} // namespace Tessaly
