// The dialog that finds and shows entities.
#pragma once

#include "platform/mfc/ComboBox.h"
#include "platform/mfc/Edit.h"
#include "plugins/panels/EntitySearch.h"
#include "plugins/panels/ModuleDialog.h"

namespace Orvane::Panels {

inline constexpr const wchar_t* kFindDialogId = L"DLG_FIND_ENTITY";

/// The search text and scope are restored in the next run. Results are cleared when the drawing
/// changes.
class CFindDialog final : public CModuleDialog {
public:
    explicit CFindDialog(CWnd* pParent);

    bool PreTranslateMessage(MSG* pMsg) override;

    void OnAcadDocumentBecomeCurrent(AcApDocument* pDoc) override;
    void OnAcadDocumentToBeDestroyed(AcApDocument* pDoc) override;

protected:
    const MessageMap* GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pExchange) override;
    bool OnInitDialog() override;
    void RefreshContent() override;
    void Remember() override;

private:
    void OnFind();
    void OnShow();
    void OnProperties();
    void OnActivate(NMHDR* pHeader, LRESULT* pResult);
    void OnSelection(NMHDR* pHeader, LRESULT* pResult);

    void FillPlaces();
    void FillSystems(int chosen);
    int ChosenSystem() const;
    void ShowResult(SearchResult result);
    void ForgetResult();
    void EnableButtons() const;
    std::vector<AcDbObjectId> Selected() const;

    CEdit m_text;
    CComboBox m_systems;              ///< item data: system id, 0 for all
    CComboBox m_where;                ///< in the order of SearchIn
    std::vector<FoundEntity> m_found; ///< in the list's order
};

} // namespace Orvane::Panels
