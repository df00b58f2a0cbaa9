#include "host/storage/CoordinateSystem.h"

#include <ogr_spatialref.h>

namespace Tessaly {

namespace {

/// How GDAL names the coordinate systems of a GeoPackage that stand for none.
bool IsUndefined(const OGRSpatialReference& reference) {
    const char* name = reference.GetName();
    return !name || STARTS_WITH_CI(name, "Undefined ");
}

} // namespace

std::string WktOf(const OGRSpatialReference* pReference) {
    if (!pReference || IsUndefined(*pReference)) {
        return {};
    }
    static const char* const kOptions[] = {"FORMAT=WKT2_2019", "MULTILINE=NO", nullptr};
    char* pText = nullptr;
    const bool isDone = pReference->exportToWkt(&pText, kOptions) == OGRERR_NONE;
    std::string wkt = isDone && pText ? pText : "";
    CPLFree(pText);
    return wkt;
}

} // namespace Tessaly
