// The way of layers of any file into systems of the drawing.
#pragma once

#include <vector>

#include "platform/arx/DbImport.h"
#include "plugins/network/ImportedSystems.h"
#include "plugins/network/NetworkSnap.h"

namespace Orvane::Network {

/// The features of all layers by what they become. Points into the result of an import, which
/// has to live as long.
struct LayerContents {
    explicit LayerContents(const AcDbImportResult& result);

    std::vector<const AcDbImportFeature*> points;
    std::vector<const AcDbImportFeature*> lines;
    std::vector<const AcDbImportFeature*> polygons;
    // Places of the points, and ends of the lines.
    std::vector<AcGePoint3d> places;
    std::vector<LineEnds> ends;
};

/// What an attribute of a feature means for an entity, whatever the case of its name: a
/// "NAME", or else an "ID", names it, a "KIND" tells what it is, and the names of a network's
/// figures are written as we write them.
struct EntityDescription {
    explicit EntityDescription(const AcDbImportFeature& feature);

    std::string name;
    std::string kind;
    std::vector<std::pair<std::string, AcDbValue>> attributes; ///< values of the feature
};

struct LayerCounts {
    std::size_t nodes = 0;
    std::size_t foundNodes = 0; ///< of the nodes: those where lines end and no point was
    std::size_t sections = 0;
    std::size_t polygons = 0;
};

/// Makes a network of points and lines, whose ends are snapped to nodes, and a system of
/// polygons, as far as there are any.
/// \return an empty text, or the reason why nothing was added
CString AddToDrawing(const LayerContents& contents, double tolerance, int systemFunction,
                     const CString& name, ImportedSystems& imported, LayerCounts& counts,
                     ImportProgress& progress);

/// Gives the current drawing the coordinate system of what was imported, if that is the first
/// thing in it and it has none yet.
/// Needs the host's importer.
/// \return a warning for each layer whose coordinate system is another than the drawing's
std::vector<CString> TakeCoordinateSystem(const AcDbImportResult& result, bool isFirst);

} // namespace Orvane::Network
