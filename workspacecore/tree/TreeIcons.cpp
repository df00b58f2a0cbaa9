#include "workspacecore/tree/TreeIcons.h"

#include <algorithm>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/resources/Icons.h"
#include "workspacecore/resources/ModuleResources.h"

namespace Orvane::Workspace {

namespace {

/// Either a name in the configuration or a resource id of this module.
struct IconSource {
    const wchar_t* name;
    UINT number = 0;
};

HICON Find(const IconSource& source) {
    return source.name ? CModuleConfiguration::Instance()->GetIcon(source.name)
                       : ModuleIcon(source.number);
}

/// \param kept stays null until the icon is found, so the next call retries
HICON FindOnce(HICON& kept, const IconSource& source) {
    if (!kept) {
        kept = Find(source);
    }
    return kept;
}

template <class Key>
HICON FindOnce(std::map<Key, HICON>& kept, Key key, const IconSource& source) {
    const auto known = kept.find(key);
    if (known != kept.end()) {
        return known->second;
    }
    const HICON icon = Find(source);
    if (icon) {
        kept.emplace(key, icon);
    }
    return icon;
}

constexpr struct {
    enmEntityType type;
    const wchar_t* name;
} kEntityIcons[] = {{EntityNode, L"IDI_NODE"},
                    {EntitySection, L"IDI_SECTION"},
                    {EntityPolygon, L"ORV_IDI_POLYGON_16X16"},
                    {EntityPolygonNode, L"ORV_IDI_POLYGONNODE_16X16"}};
constexpr const wchar_t* kUnknownEntityIcon = L"ORV_IDI_UNKNOWNENTITY";

} // namespace

HICON TreeIcons::Get(enmIcon icon) {
    static constexpr IconSource kSources[IconCount] = {
        {nullptr, IconSystemManager}, {L"IDI_DISKDATA"},   {nullptr, IconSystem},
        {L"ORV_IDI_TOOLBOX"},         {L"IDI_PENCIL"},     {L"IDI_DATA_EDIT"},
        {L"IDI_WINDOW_EDIT"},         {L"ORV_ID_MANAGER"}, {L"IDI_FLASH"}};
    return FindOnce(m_icons[icon], kSources[icon]);
}

HICON TreeIcons::Get(enmTopologyType type) {
    const ModuleResources resources;
    const bool hasIcon = type == TopologyLine || type == TopologyPolygon || type == TopologyPoint;
    return hasIcon ? FindOnce(m_topologyIcons, type, {nullptr, IconSystem}) : nullptr;
}

HICON TreeIcons::Get(enmEntityType type) {
    const ModuleResources resources;
    const auto* const pRow = std::find_if(std::begin(kEntityIcons), std::end(kEntityIcons),
                                          [type](const auto& row) { return row.type == type; });
    return FindOnce(m_entityIcons, type,
                    {pRow == std::end(kEntityIcons) ? kUnknownEntityIcon : pRow->name});
}

} // namespace Orvane::Workspace
