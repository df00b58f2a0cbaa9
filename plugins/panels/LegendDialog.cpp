#include "plugins/panels/LegendDialog.h"

#include "platform/arx/ColorTable.h"
#include "platform/arx/DbDatabase.h"
#include "platform/mfc/Gdi.h"
#include "platform/xtp/XTPDockingPaneManager.h"
#include "plugins/panels/DrawingReports.h"
#include "plugins/panels/PanelPanes.h"
#include "plugins/panels/PanelTexts.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Panels {

namespace {

constexpr std::size_t kSwatch = 16; // pixels
constexpr std::size_t kMargin = 2;
constexpr CRect kPaneSize(0, 0, 250, 200);
constexpr CSize kSmallest(120, 80);
/// Gray edges are visible on light and dark backgrounds.
constexpr std::uint32_t kEdge = 0xFF808080;

/// The view uses the same background colour as lists.
Tessaly::Background BackgroundNow() {
    constexpr int kMiddle = 3 * 128;
    const COLORREF color = GetSysColor(COLOR_WINDOW);
    const int sum = static_cast<int>((color & 0xFF) + (color >> 8 & 0xFF) + (color >> 16 & 0xFF));
    return sum < kMiddle ? Tessaly::Background::Dark : Tessaly::Background::Light;
}

CImage SwatchOf(int colorIndex) {
    const std::uint32_t color = Tessaly::AciColor(colorIndex, BackgroundNow());
    std::vector<std::uint32_t> pixels(kSwatch * kSwatch, 0);
    for (std::size_t y = kMargin; y < kSwatch - kMargin; ++y) {
        for (std::size_t x = kMargin; x < kSwatch - kMargin; ++x) {
            const bool isEdge = x == kMargin || y == kMargin || x == kSwatch - kMargin - 1 ||
                                y == kSwatch - kMargin - 1;
            pixels[y * kSwatch + x] = isEdge ? kEdge : color;
        }
    }
    return {static_cast<int>(kSwatch), static_cast<int>(kSwatch), pixels};
}

} // namespace

CLegendDialog::CLegendDialog(CWnd* pParent)
    : CModuleDialog(kLegendDialogId, Workspace::enmDialogSizableHosted, pParent) {
    Create(kLegendDialog, pParent);
}

bool CLegendDialog::OnInitDialog() {
    CModuleDialog::OnInitDialog();
    MakeColumns({{Text(Msg::ColumnLayer), 88}, {Text(Msg::ColumnCount), 42, LVCFMT_RIGHT}});
    m_resize.SetResize(kList, 0, 0, 1, 1);
    return true;
}

void CLegendDialog::RefreshContent() {
    if (!IsWindowVisible()) {
        return;
    }
    const AcDbDatabase* const pDrawing = acdbHostApplicationServices()->workingDatabase();
    const std::vector<LegendRow> rows = pDrawing ? LegendOf(*pDrawing) : std::vector<LegendRow>();
    CImageList swatches(CSize(static_cast<int>(kSwatch), static_cast<int>(kSwatch)));
    m_list.DeleteAllItems();
    for (const LegendRow& row : rows) {
        const int place = m_list.InsertItem(m_list.GetItemCount(), row.layer,
                                            swatches.Add(SwatchOf(row.colorIndex)));
        m_list.SetItemText(place, 1, std::to_wstring(row.count).c_str());
    }
    m_list.SetImageList(swatches);
}

bool ShowLegend() {
    CXTPDockingPaneManager* const pPanes = DockingPanes();
    auto* const pDialog = pPanes
                              ? dynamic_cast<CLegendDialog*>(
                                    Workspace::CWsManager::Instance()->GetDlgById(kLegendDialogId))
                              : nullptr;
    if (!pDialog) {
        return false;
    }
    if (CXTPDockingPane* const pPane =
            pPanes->CreatePane(kLegendPane, kPaneSize, xtpPaneDockRight)) {
        pPane->SetTitle(Text(Msg::Legend));
        pPane->SetMinTrackSize(kSmallest);
        pPane->Attach(pDialog);
    }
    pPanes->ShowPane(kLegendPane, 0);
    pDialog->RefreshContent();
    return true;
}

} // namespace Orvane::Panels
