// Base class of dialogs that work alongside a drawing.
#pragma once

#include "platform/mfc/Dialog.h"

/// The host asks with WM_ACAD_KEEPFOCUS whether the dialog keeps the keyboard focus while the
/// cursor is over the drawing; by default, a dialog gives it up.
class PLATFORM_API CAdUiBaseDialog : public CDialog {
public:
    explicit CAdUiBaseDialog(UINT templateId = 0, CWnd* pParent = nullptr,
                             HINSTANCE module = nullptr)
        : CDialog(templateId, pParent, module) {}

protected:
    const MessageMap* GetMessageMap() const override;

    /// Hides a modal dialog so that the user can pick in the drawing.
    void BeginEditorCommand();
    /// Shows the dialog again.
    void CompleteEditorCommand(bool restore = true);
};
