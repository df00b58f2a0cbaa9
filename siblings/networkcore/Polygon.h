// An area of a polygon system, such as a parcel.
#pragma once

#include "siblings/networkcore/Entity.h"

namespace Orvane::Topology {

class NETWORKCORE_API CPolygon : public CEntity {
public:
    using CEntity::CEntity;
    /// Outlines and holes; the first point of a ring is not repeated at its end.
    const std::vector<AcDbMPolygon::Ring>& GetRings() const { return Get<AcDbMPolygon>().rings(); }
    /// In the plane, without holes; self-intersecting rings count by their signed area.
    double GetArea() const;
};

} // namespace Orvane::Topology
