#include "platform/mfc/AdUiBaseDialog.h"

const MessageMap* CAdUiBaseDialog::GetMessageMap() const {
    static const MessageMap kMap{CDialog::GetMessageMap(), {}};
    return &kMap;
}

void CAdUiBaseDialog::BeginEditorCommand() {
    SetModalWindowHidden(true);
}

void CAdUiBaseDialog::CompleteEditorCommand(bool restore) {
    if (restore) {
        SetModalWindowHidden(false);
    }
}
