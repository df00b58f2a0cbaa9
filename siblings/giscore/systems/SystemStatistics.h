// Figures of a system as a whole, and who computes them.
#pragma once

#include <optional>

#include "siblings/giscore/Api.h"

namespace Orvane::System {

class CGisSystem;

/// The numbers travel through interfaces, so the values stand. Lengths and areas are in
/// drawing units, in the plane.
enum enmStatistic : int {
    StatisticNodes = 0,
    StatisticSections = 1,
    StatisticPolygonNodes = 2, ///< corners of all rings
    StatisticPolygons = 3,
    StatisticLength = 4, ///< real; of all sections as they are drawn
    StatisticArea = 5,   ///< real; of all polygons, without their holes
    StatisticParts = 6,  ///< parts that hang together; a node without sections is one
    StatisticLoops = 7,  ///< independent ones
    StatisticIsolatedNodes = 8,
    StatisticEndNodes = 9,      ///< with one section
    StatisticThroughNodes = 10, ///< with two
    StatisticBranchNodes = 11,  ///< with three or more
    StatisticCrossSections = 12,
    StatisticLongitudinalSections = 13,
    StatisticAlignments = 14, ///< parts of an alignment system that hang together
    StatisticMainPoints = 15, ///< its nodes
};

/// Implemented by whoever keeps the entities.
class ISystemStatistics {
public:
    /// Nothing for what a system of this kind does not have, or nobody can tell.
    virtual std::optional<double> GetStatistic(const CGisSystem& system,
                                               enmStatistic statistic) = 0;

protected:
    ~ISystemStatistics() = default;
};

/// Not owned; null: nobody can tell.
GISCORE_API void SetSystemStatistics(ISystemStatistics* pStatistics);

} // namespace Orvane::System
