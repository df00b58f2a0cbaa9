// An area of a polygon system, such as a parcel.
#pragma once

#include "siblings/networkcore/Entity.h"

namespace Orvane::Topology {

class NETWORKCORE_API CPolygon : public CEntity {
public:
    using CEntity::CEntity;
    /// The outline; the first point is not repeated at the end.
    std::span<const Point> GetRing() const;
};

} // namespace Orvane::Topology
