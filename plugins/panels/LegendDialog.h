// What the colours of the drawing stand for.
#pragma once

#include "plugins/panels/ModuleDialog.h"

namespace Orvane::Panels {

inline constexpr const wchar_t* kLegendDialogId = L"DLG_LEGEND";

/// Lives in a docking pane.
class CLegendDialog final : public CModuleDialog {
public:
    explicit CLegendDialog(CWnd* pParent);

    void OnSystemBecomeHidden(System::CGisSystem*) override { RefreshContent(); }
    void OnSystemBecomeShown(System::CGisSystem*) override { RefreshContent(); }
    /// Nothing happens while nobody sees it: the whole drawing is read.
    void RefreshContent() override;

protected:
    bool OnInitDialog() override;
    void OnCancel() override {}
};

/// Shows it in its pane. False without a desktop.
bool ShowLegend();

} // namespace Orvane::Panels
