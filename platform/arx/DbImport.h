// Files of other programs as plain values, on their way into a drawing. Implemented by the
// host; modules never see a file format.
#pragma once

#include <memory>
#include <vector>

#include "platform/arx/DbEntity.h"
#include "platform/arx/DbStorage.h"

/// One shape with its values. Several shapes may come from one row of a file.
struct AcDbImportFeature {
    enum class Kind : std::uint8_t { Point, Line, Polygon };
    Kind kind = Kind::Point;
    std::int64_t row = 0;                  ///< place in its layer, from 1
    std::vector<AcGePoint3d> points;       ///< one of a point, all of a line
    std::vector<AcDbMPolygon::Ring> rings; ///< of a polygon
    AcDbAttributes attributes;
};

struct AcDbImportLayer {
    CString name;             ///< never empty
    CString coordinateSystem; ///< WKT; empty if unknown
    std::vector<AcDbImportFeature> features;
};

/// All of a file or nothing: there are layers only if there is no reason.
struct AcDbImportResult {
    CString reason;                ///< names the file and says why; empty on success
    std::vector<CString> warnings; ///< what was passed over, a text each
    std::vector<AcDbImportLayer> layers;
    bool ok() const { return reason.IsEmpty(); }
};

class PLATFORM_API IDbImporter {
public:
    virtual ~IDbImporter() = default;
    /// Reads a file, or a folder where a format is one. Positions are as in the file. The
    /// percentage stays 0 where a format does not know how much it holds.
    virtual AcDbImportResult Import(const wchar_t* path, const AcDbProgress& progress) = 0;

    /// Whether positions in the one coordinate system are positions in the other. Texts (WKT)
    /// that cannot be read are the same only letter by letter.
    virtual bool IsSameCoordinateSystem(const CString& left, const CString& right) = 0;
    /// Such as "ETRS89 / UTM zone 32N"; "unknown" for an empty text.
    virtual CString CoordinateSystemName(const CString& wkt) = 0;
};

/// How modules read files of other programs; null while no host provides it.
PLATFORM_API IDbImporter* acdbImporter();
/// Called by the host, which goes on owning it. Null takes it away.
PLATFORM_API void acdbSetImporter(IDbImporter* pImporter);
