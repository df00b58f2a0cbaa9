// Ids of topologies and kinds of entities. They are persisted and part of the interface, so the
// values must not change.
#pragma once

namespace Orvane {

enum enmTopologyType : int {
    TopologyNone = 0,
    TopologyLine = 1,
    TopologyPolygon = 2,
    TopologyPoint = 4,
    TopologyScheme = 8,
};

/// A bit set, though most places hold one value.
enum enmEntityType : int {
    EntityNone = 0,
    EntityNode = 1,
    EntitySection = 2,
    EntityPolygon = 16,
    EntityPolygonNode = 32,
    EntityLongitudinalSection = 128,
};

/// Function of line systems that are alignments of roads and pipes, which differ from networks in
/// layers and statistics.
inline constexpr int kFunctionAlignment = 10000;

} // namespace Orvane
