// Enumerations of dialogs. They are compared and part of the interface, so the values must not
// change.
#pragma once

namespace Orvane::Workspace {

/// How the framework handles a dialog's position. Single bits; a dialog has exactly one.
enum enmDialogType : int {
    enmDialogFixed = 1,         ///< restores the position
    enmDialogSizable = 2,       ///< restores position and size
    enmDialogFixedCascaded = 4, ///< as enmDialogFixed; new ones cascade, others snap to them
    enmDialogSizableCascaded = 8,
    enmDialogFixedHosted = 16, ///< embedded in a window that controls the position
    enmDialogSizableHosted = 32,
};

/// Positions of the main panel's buttons from top to bottom: 0 to 7.
enum enmPanelDialogPosition : int {};
inline constexpr int kPanelDialogPositions = 8;

} // namespace Orvane::Workspace
