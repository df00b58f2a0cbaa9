// A node of a network.
#pragma once

#include "siblings/networkcore/Entity.h"

namespace Orvane::Topology {

class NETWORKCORE_API CNode : public CEntity {
public:
    using CEntity::CEntity;
    /// NaN coordinates if it has no position.
    Point GetPosition() const { return Get<AcDbPoint>().position(); }
    /// False if its position is unknown.
    bool HasPlace() const;

    /// True if it belongs to several systems, e.g. a manhole shared by a sewer and a storm drain.
    bool IsMultiSystem() const;
    /// Ids of all its systems, starting with GetSystemId().
    std::vector<int> GetSystems() const;
};

} // namespace Orvane::Topology
