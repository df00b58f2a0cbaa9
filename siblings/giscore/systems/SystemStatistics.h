// Statistics of a system, and the interface of their provider.
#pragma once

#include <optional>

#include "siblings/giscore/Api.h"

namespace Orvane::System {

class CGisSystem;

/// The numbers are part of the interface and must not change. Lengths and areas are in drawing
/// units, in the plane.
enum enmStatistic : int {
    StatisticNodes = 0,
    StatisticSections = 1,
    StatisticPolygonNodes = 2, ///< vertices of all rings
    StatisticPolygons = 3,
    StatisticLength = 4, ///< real; of all sections as drawn
    StatisticArea = 5,   ///< real; of all polygons, without holes
    StatisticParts = 6,  ///< connected parts; an isolated node counts as one
    StatisticLoops = 7,  ///< independent loops
    StatisticIsolatedNodes = 8,
    StatisticEndNodes = 9,      ///< nodes with one section
    StatisticThroughNodes = 10, ///< nodes with two sections
    StatisticBranchNodes = 11,  ///< nodes with three or more sections
    StatisticCrossSections = 12,
    StatisticLongitudinalSections = 13,
    StatisticAlignments = 14, ///< connected parts of an alignment system
    StatisticMainPoints = 15, ///< nodes of an alignment system
};

/// Implemented by the module that stores the entities.
class ISystemStatistics {
public:
    /// nullopt if systems of this kind do not have the statistic or it is not available.
    virtual std::optional<double> GetStatistic(const CGisSystem& system,
                                               enmStatistic statistic) = 0;

protected:
    ~ISystemStatistics() = default;
};

/// Not owned; null: no statistics are available.
GISCORE_API void SetSystemStatistics(ISystemStatistics* pStatistics);

} // namespace Orvane::System
