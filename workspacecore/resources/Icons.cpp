#include "workspacecore/resources/Icons.h"

#include <algorithm>
#include <iterator>

#include "platform/mfc/IIconSource.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane::Workspace {

namespace {

constexpr struct {
    enmModuleIcon number;
    const wchar_t* name;
} kIcons[] = {
    {IconSystemManager, L"ORV_SYSTEM_MANAGER"},     {IconSystem, L"ORV_SYSTEM"},
    {IconCaptionCollapse, L"ORV_CAPTION_COLLAPSE"}, {IconCaptionExpand, L"ORV_CAPTION_EXPAND"},
    {IconCaptionSettings, L"ORV_CAPTION_SETTINGS"}, {IconCaptionHelp, L"ORV_CAPTION_HELP"},
};

} // namespace

HICON ModuleIcon(UINT number) {
    const auto* const pIcon =
        std::find_if(std::begin(kIcons), std::end(kIcons),
                     [number](const auto& icon) { return icon.number == number; });
    return pIcon == std::end(kIcons) ? nullptr
                                     : CModuleConfiguration::Instance()->GetIcon(pIcon->name);
}

CImage ModuleImage(UINT number, CSize size) {
    return ImageOfIcon(ModuleIcon(number), size);
}

} // namespace Orvane::Workspace
