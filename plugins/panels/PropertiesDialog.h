// Shows and edits the properties of an entity.
#pragma once

#include "platform/mfc/Edit.h"
#include "plugins/panels/EntityProperties.h"
#include "plugins/panels/ModuleDialog.h"

namespace Orvane::Panels {

inline constexpr const wchar_t* kPropertiesDialogId = L"DLG_ENTITY_PROPERTIES";

/// The last selected property is selected again for the next entity and in the next run.
class CPropertiesDialog final : public CModuleDialog {
public:
    explicit CPropertiesDialog(CWnd* pParent);

    bool PreTranslateMessage(MSG* pMsg) override;
    /// Shows nothing for a null id or an entity without a system.
    void ShowEntity(AcDbObjectId id);

    void OnAcadDocumentBecomeCurrent(AcApDocument*) override { ShowEntity({}); }
    void OnAcadDocumentToBeDestroyed(AcApDocument* pDoc) override;

protected:
    const MessageMap* GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pExchange) override;
    bool OnInitDialog() override;
    void RefreshContent() override;
    void Remember() override;

private:
    void OnPick();
    void OnSet();
    void OnSelection(NMHDR* pHeader, LRESULT* pResult);
    void OnActivate(NMHDR* pHeader, LRESULT* pResult);

    void FillList();
    void SelectProperty();
    void FollowSelection();
    const EntityProperty* Chosen() const;

    CEdit m_value;
    AcDbObjectId m_id;
    std::vector<EntityProperty> m_properties; ///< in the list's order
    CString m_strChosen;                      ///< label of the last selected property
};

/// Shows the dialog for an entity. Does nothing without a desktop.
void ShowProperties(AcDbObjectId id);

} // namespace Orvane::Panels
