// Dialog templates and control ids of the module.
#pragma once

#include "platform/mfc/DialogTemplate.h"

namespace Orvane::Panels {

inline constexpr UINT kTreePanelDialog = 6700;
inline constexpr UINT kPropertiesDialog = 6701;
inline constexpr UINT kFindDialog = 6702;
inline constexpr UINT kStatisticsDialog = 6703;
inline constexpr UINT kLegendDialog = 6704;

// Control ids.
inline constexpr UINT kTree = 101;
inline constexpr UINT kList = 102;
inline constexpr UINT kValue = 103;
inline constexpr UINT kSet = 104;
inline constexpr UINT kPick = 105;
inline constexpr UINT kTitle = 106;
inline constexpr UINT kText = 107;
inline constexpr UINT kSystem = 108;
inline constexpr UINT kWhere = 109;
inline constexpr UINT kFind = 110;
inline constexpr UINT kShow = 111;
inline constexpr UINT kProperties = 112;
inline constexpr UINT kSummary = 113;
inline constexpr UINT kClose = 114;
inline constexpr UINT kTextLabel = 115;
inline constexpr UINT kSystemLabel = 116;
inline constexpr UINT kWhereLabel = 117;

/// Registers the dialog templates; later calls do nothing.
void AddPanelTemplates();

} // namespace Orvane::Panels
