#include "plugins/panels/StatisticsDialog.h"

#include "plugins/panels/DrawingReports.h"
#include "plugins/panels/PanelTexts.h"
#include "siblings/giscore/systems/SystemManager.h"

namespace Orvane::Panels {

CStatisticsDialog::CStatisticsDialog(CWnd* pParent)
    : CModuleDialog(kStatisticsDialogId, Workspace::enmDialogFixed, pParent) {
    Create(kStatisticsDialog, pParent);
}

const MessageMap* CStatisticsDialog::GetMessageMap() const {
    static constexpr MessageEntry kEntries[] = {
        MapCommand<&CStatisticsDialog::OnCloseButton>(kClose),
    };
    static const MessageMap kMap{CModuleDialog::GetMessageMap(), kEntries};
    return &kMap;
}

bool CStatisticsDialog::OnInitDialog() {
    CModuleDialog::OnInitDialog();
    SetWindowText(Text(Msg::Statistics));
    SetText(kClose, Text(Msg::Close));
    MakeColumns({{Text(Msg::ColumnProperty), 110}, {Text(Msg::ColumnValue), 70, LVCFMT_RIGHT}});
    RefreshContent();
    return true;
}

void CStatisticsDialog::RefreshContent() {
    const System::CGisSystem* const pSystem = System::CSystemManager::Instance()->GetActiveSystem();
    SetText(kTitle,
            pSystem ? Text(Msg::FiguresOf, pSystem->GetSystemName()) : Text(Msg::NoActiveSystem));
    m_list.DeleteAllItems();
    if (!pSystem) {
        return;
    }
    int row = 0;
    for (const Figure& figure : FiguresOf(*pSystem)) {
        m_list.InsertItem(row, figure.label);
        m_list.SetItemText(row++, 1, figure.value);
    }
}

} // namespace Orvane::Panels
