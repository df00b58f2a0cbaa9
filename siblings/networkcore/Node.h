// A node of a network.
#pragma once

#include "siblings/networkcore/Entity.h"

namespace Orvane::Topology {

class NETWORKCORE_API CNode : public CEntity {
public:
    using CEntity::CEntity;
    /// Not numbers if it has no place.
    Point GetPosition() const { return Get<AcDbPoint>().position(); }
    /// False for one whose position is not known.
    bool HasPlace() const;

    /// Whether it belongs to more systems than one, as the manhole of a sewer and a storm
    /// water drain.
    bool IsMultiSystem() const;
    /// Ids of all its systems, the one of GetSystemId first.
    std::vector<int> GetSystems() const;
};

} // namespace Orvane::Topology
