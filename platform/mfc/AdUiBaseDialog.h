// The base of dialogs that live beside a drawing.
#pragma once

#include "platform/mfc/Dialog.h"

/// The host asks with WM_ACAD_KEEPFOCUS whether the dialog keeps the keyboard focus while the
/// cursor is over the drawing; without a handler of its own a dialog gives it away.
class PLATFORM_API CAdUiBaseDialog : public CDialog {
public:
    explicit CAdUiBaseDialog(UINT templateId = 0, CWnd* pParent = nullptr,
                             HINSTANCE module = nullptr)
        : CDialog(templateId, pParent, module) {}

protected:
    const MessageMap* GetMessageMap() const override;

    /// A modal dialog gives way to the drawing, so that the user can pick in it.
    void BeginEditorCommand();
    /// The dialog comes back.
    void CompleteEditorCommand(bool restore = true);
};
