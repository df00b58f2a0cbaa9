// The legend: layers and colours of the drawing.
#pragma once

#include "plugins/panels/ModuleDialog.h"

namespace Orvane::Panels {

inline constexpr const wchar_t* kLegendDialogId = L"DLG_LEGEND";

/// Shown in a docking pane.
class CLegendDialog final : public CModuleDialog {
public:
    explicit CLegendDialog(CWnd* pParent);

    void OnSystemBecomeHidden(System::CGisSystem*) override { RefreshContent(); }
    void OnSystemBecomeShown(System::CGisSystem*) override { RefreshContent(); }
    /// Does nothing while hidden, since it reads the whole drawing.
    void RefreshContent() override;

protected:
    bool OnInitDialog() override;
    void OnCancel() override {}
};

/// Shows the legend in its pane. False without a desktop.
bool ShowLegend();

} // namespace Orvane::Panels
