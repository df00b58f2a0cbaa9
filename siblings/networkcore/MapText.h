// A text on the map; its content is its name.
#pragma once

#include "siblings/networkcore/Entity.h"

namespace Orvane::Topology {

class NETWORKCORE_API CMapText : public CEntity {
public:
    using CEntity::CEntity;
    Point GetPosition() const { return Get<AcDbText>().position(); }
};

} // namespace Orvane::Topology
