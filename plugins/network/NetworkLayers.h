// Converts the layers of any file into systems of the drawing.
#pragma once

#include <vector>

#include "platform/arx/DbImport.h"
#include "plugins/network/ImportedSystems.h"
#include "plugins/network/NetworkSnap.h"

namespace Orvane::Network {

/// The features of all layers, grouped by the entities they become. Points into the import result,
/// which must outlive it.
struct LayerContents {
    explicit LayerContents(const AcDbImportResult& result);

    std::vector<const AcDbImportFeature*> points;
    std::vector<const AcDbImportFeature*> lines;
    std::vector<const AcDbImportFeature*> polygons;
    // Positions of the points, and ends of the lines.
    std::vector<AcGePoint3d> places;
    std::vector<LineEnds> ends;
};

/// How a feature's attributes describe an entity, ignoring the case of their names: "NAME", or else
/// "ID", is the name, "KIND" the kind, and the attributes of NetworkGeometry.h get our spelling.
struct EntityDescription {
    explicit EntityDescription(const AcDbImportFeature& feature);

    std::string name;
    std::string kind;
    std::vector<std::pair<std::string, AcDbValue>> attributes; ///< values from the feature
};

struct LayerCounts {
    std::size_t nodes = 0;
    std::size_t foundNodes = 0; ///< nodes added at line ends that had no point
    std::size_t sections = 0;
    std::size_t polygons = 0;
};

/// Creates a network from points and lines, whose ends are snapped to nodes, and a system of
/// polygons, whichever of these are present.
/// \return an empty string, or the reason why nothing was added
CString AddToDrawing(const LayerContents& contents, double tolerance, int systemFunction,
                     const CString& name, ImportedSystems& imported, LayerCounts& counts,
                     ImportProgress& progress);

/// Sets the current drawing's coordinate system to the imported one, if this is its first content
/// and it has none yet. Requires the host's importer.
/// \return a warning for each layer whose coordinate system differs from the drawing's
std::vector<CString> TakeCoordinateSystem(const AcDbImportResult& result, bool isFirst);

} // namespace Orvane::Network
