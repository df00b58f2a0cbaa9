// Numbers by which the whole family names kinds of topologies and entities. They are
// persisted and travel through interfaces, so the values stand.
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

/// Function of line systems that lead along roads and pipes: alignments, told apart from
/// networks wherever layers and figures are concerned.
inline constexpr int kFunctionAlignment = 10000;

} // namespace Orvane
