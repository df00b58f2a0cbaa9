#include "host/storage/CoordinateSystem.h"

#include <ogr_spatialref.h>

#include "host/Texts.h"
#include "platform/win/CodePage.h"

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

namespace {

bool Read(const CString& wkt, OGRSpatialReference& reference) {
    return reference.importFromWkt(WideToUtf8(wkt.View()).c_str()) == OGRERR_NONE;
}

} // namespace

bool IsSameCoordinateSystem(const CString& left, const CString& right) {
    OGRSpatialReference first;
    OGRSpatialReference second;
    static const char* const kOptions[] = {"IGNORE_DATA_AXIS_TO_SRS_AXIS_MAPPING=YES", nullptr};
    return left == right ||
           (Read(left, first) && Read(right, second) && first.IsSame(&second, kOptions));
}

CString CoordinateSystemName(const CString& wkt) {
    OGRSpatialReference reference;
    const char* const name = Read(wkt, reference) ? reference.GetName() : nullptr;
    return name ? CString(Utf8ToWide(name)) : Text(Msg::UnknownCoordinateSystem);
}

} // namespace Tessaly
