// The icons of the kinds of nodes in the trees.
#pragma once

#include <array>
#include <map>

#include "platform/win/Types.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::Workspace {

/// Each is looked for when it is first asked for. One that cannot be found stays null and is
/// looked for again the next time.
class TreeIcons {
public:
    /// Those that do not depend on a topology or an entity.
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
    /// Of a system. Null for other topologies than lines, polygons and points.
    HICON Get(enmTopologyType type);
    HICON Get(enmEntityType type);

private:
    std::map<enmEntityType, HICON> m_entityIcons;
    std::map<enmTopologyType, HICON> m_topologyIcons;
    std::array<HICON, IconCount> m_icons{};
};

} // namespace Orvane::Workspace
