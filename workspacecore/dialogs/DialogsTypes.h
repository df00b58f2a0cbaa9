// Numbers of the dialogs. They are compared and travel through interfaces, so the values stand.
#pragma once

namespace Orvane::Workspace {

/// What the framework does with a dialog's place. Single bits, of which a dialog has one.
enum enmDialogType : int {
    enmDialogFixed = 1,         ///< place restored
    enmDialogSizable = 2,       ///< place and size restored
    enmDialogFixedCascaded = 4, ///< the same; new ones cascade, others stick to them
    enmDialogSizableCascaded = 8,
    enmDialogFixedHosted = 16, ///< lives in something that owns its place
    enmDialogSizableHosted = 32,
};

/// Places of the main panel's buttons, from the top of the column down: 0 to 7.
enum enmPanelDialogPosition : int {};
inline constexpr int kPanelDialogPositions = 8;

} // namespace Orvane::Workspace
