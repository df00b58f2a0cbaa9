#include "plugins/panels/Resources.h"

namespace Orvane::Panels {

namespace {

using enum enmControlKind;

// Dialogs set their texts from the message catalogue when they open.

constexpr DialogItem kTreeItems[] = {
    {TreeView, kTree, 0, 0, 150, 200, L"", TVS_HASBUTTONS | TVS_EDITLABELS},
};

constexpr DialogItem kPropertiesItems[] = {
    {Static, kTitle, 7, 9, 160, 8},
    {Button, kPick, 173, 6, 60, 14},
    {ListView, kList, 7, 24, 226, 150, L"", LVS_SINGLESEL | LVS_SHOWSELALWAYS},
    {Edit, kValue, 7, 180, 160, 14},
    {Button, kSet, 173, 180, 60, 14},
};

constexpr DialogItem kFindItems[] = {
    {Static, kTextLabel, 7, 9, 50, 8},
    {Edit, kText, 60, 6, 130, 14},
    {Button, kFind, 196, 6, 60, 14, L"", BS_DEFPUSHBUTTON},
    {Static, kSystemLabel, 7, 27, 50, 8},
    {ComboBox, kSystem, 60, 24, 130, 100},
    {Static, kWhereLabel, 7, 45, 50, 8},
    {ComboBox, kWhere, 60, 42, 130, 100},
    {ListView, kList, 7, 62, 249, 120, L"", LVS_SHOWSELALWAYS},
    {Static, kSummary, 7, 191, 116, 8},
    {Button, kShow, 130, 188, 60, 14},
    {Button, kProperties, 196, 188, 60, 14},
};

constexpr DialogItem kStatisticsItems[] = {
    {Static, kTitle, 7, 7, 186, 8},
    {ListView, kList, 7, 19, 186, 120, L"", LVS_SINGLESEL},
    {Button, kClose, 133, 145, 60, 14},
};

constexpr DialogItem kLegendItems[] = {
    {ListView, kList, 0, 0, 150, 120, L"", LVS_SINGLESEL},
};

constexpr UINT kDialogStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;

constexpr DialogTemplate kTemplates[] = {
    {kTreePanelDialog, 150, 200, L"", WS_CHILD, kTreeItems},
    {kPropertiesDialog, 240, 201, L"", kDialogStyle | WS_THICKFRAME, kPropertiesItems},
    {kFindDialog, 263, 209, L"", kDialogStyle | WS_THICKFRAME, kFindItems},
    {kStatisticsDialog, 200, 166, L"", kDialogStyle, kStatisticsItems},
    {kLegendDialog, 150, 120, L"", WS_CHILD, kLegendItems},
};

} // namespace

void AddPanelTemplates() {
    [[maybe_unused]] static const bool added = [] {
        AddDialogTemplates(nullptr, kTemplates);
        return true;
    }();
}

} // namespace Orvane::Panels
