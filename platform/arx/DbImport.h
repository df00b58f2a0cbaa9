// Content of other programs' files as plain values, before it is added to a drawing. Implemented by
// the host; modules never see a file format.
#pragma once

#include <memory>
#include <vector>

#include "platform/arx/DbEntity.h"
#include "platform/arx/DbStorage.h"

/// One shape with its values. Several shapes may come from the same row.
struct AcDbImportFeature {
    enum class Kind : std::uint8_t { Point, Line, Polygon };
    Kind kind = Kind::Point;
    std::int64_t row = 0;                  ///< row number in its layer, from 1
    std::vector<AcGePoint3d> points;       ///< one for a point, all vertices of a line
    std::vector<AcDbMPolygon::Ring> rings; ///< of a polygon
    AcDbAttributes attributes;
};

struct AcDbImportLayer {
    CString name;             ///< never empty
    CString coordinateSystem; ///< WKT; empty if unknown
    std::vector<AcDbImportFeature> features;
};

/// An import succeeds or fails as a whole: there are layers only if the reason is empty.
struct AcDbImportResult {
    CString reason;                ///< names the file and the error; empty on success
    std::vector<CString> warnings; ///< skipped content, one text each
    std::vector<AcDbImportLayer> layers;
    bool ok() const { return reason.IsEmpty(); }
};

class PLATFORM_API IDbImporter {
public:
    virtual ~IDbImporter() = default;
    /// Reads a file, or a folder for formats that consist of one. Positions are as in the file. The
    /// progress stays at 0 for formats of unknown total size.
    virtual AcDbImportResult Import(const wchar_t* path, const AcDbProgress& progress) = 0;

    /// True if positions in both coordinate systems are interchangeable. Texts (WKT) that cannot be
    /// parsed are equal only if identical.
    virtual bool IsSameCoordinateSystem(const CString& left, const CString& right) = 0;
    /// Such as "ETRS89 / UTM zone 32N"; "unknown" for an empty text.
    virtual CString CoordinateSystemName(const CString& wkt) = 0;
};

/// The importer for files of other programs; null while no host provides one.
PLATFORM_API IDbImporter* acdbImporter();
/// Called by the host, which keeps ownership. Null removes the importer.
PLATFORM_API void acdbSetImporter(IDbImporter* pImporter);
