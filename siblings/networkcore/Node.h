// A node of a network.
#pragma once

#include "siblings/networkcore/Entity.h"

namespace Orvane::Topology {

class NETWORKCORE_API CNode : public CEntity {
public:
    using CEntity::CEntity;
    Point GetPosition() const;
};

} // namespace Orvane::Topology
