// A section of a network: the line between two nodes.
#pragma once

#include "siblings/networkcore/Node.h"

namespace Orvane::Topology {

class NETWORKCORE_API CSection : public CEntity {
public:
    using CEntity::CEntity;

    /// Null if there is no such node.
    AcDbObjectId GetStartNodeId() const;
    AcDbObjectId GetEndNodeId() const;
    CNode GetStartNode() const { return {m_pStorage, GetStartNodeId()}; }
    CNode GetEndNode() const { return {m_pStorage, GetEndNodeId()}; }
    /// The name given for a start node that does not exist; UTF-8, empty if it exists.
    std::string_view GetMissingStart() const;
    std::string_view GetMissingEnd() const;

    /// Vertices between the nodes, from start to end.
    std::span<const Point> GetInnerVertices() const;
    /// Length of the drawn line in the plane; ends whose node is missing do not contribute.
    double GetDrawnLength() const;

private:
    AcDbObjectId NodeAt(AcDbNameId end) const;
};

} // namespace Orvane::Topology
