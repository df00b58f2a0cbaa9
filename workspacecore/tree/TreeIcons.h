// Icons of the node types in the trees.
#pragma once

#include <array>
#include <map>

#include "platform/win/Types.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::Workspace {

/// Loaded on first use. An icon that cannot be found stays null, and the next call looks again.
class TreeIcons {
public:
    /// Icons that do not depend on a topology or an entity.
    enum enmIcon {
        SystemManagerIcon,
        DiskRepositoryIcon,
        SystemIcon,
        SystemToolIcon,
        DrawToolIcon,
        SetDataToolIcon,
        EditToolIcon,
        ManagerToolIcon,
        FastCommandIcon,
        IconCount
    };

    HICON Get(enmIcon icon);
    /// Icon of a system. Null for topologies other than lines, polygons and points.
    HICON Get(enmTopologyType type);
    HICON Get(enmEntityType type);

private:
    std::map<enmEntityType, HICON> m_entityIcons;
    std::map<enmTopologyType, HICON> m_topologyIcons;
    std::array<HICON, IconCount> m_icons{};
};

} // namespace Orvane::Workspace
