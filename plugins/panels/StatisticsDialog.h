// Shows statistics of the active system.
#pragma once

#include "plugins/panels/ModuleDialog.h"

namespace Orvane::Panels {

inline constexpr const wchar_t* kStatisticsDialogId = L"DLG_SYSTEM_STATISTICS";

class CStatisticsDialog final : public CModuleDialog {
public:
    explicit CStatisticsDialog(CWnd* pParent);

    void OnSystemBecomeActive(System::CGisSystem*) override { RefreshContent(); }
    void RefreshContent() override;

protected:
    const MessageMap* GetMessageMap() const override;
    bool OnInitDialog() override;

private:
    void OnCloseButton() { SendMessage(WM_CLOSE); }
};

} // namespace Orvane::Panels
