// Maps kinds of controls to their widgets.
#include "platform/mfc/toolkit/ButtonWidgets.h"
#include "platform/mfc/toolkit/ComboWidget.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/EditWidget.h"
#include "platform/mfc/toolkit/ListBoxWidget.h"
#include "platform/mfc/toolkit/ListWidget.h"
#include "platform/mfc/toolkit/StaticWidget.h"
#include "platform/mfc/toolkit/TreeWidget.h"

namespace {

QWidget* MakeWidget(enmControlKind kind, UINT style, QWidget* pParent) {
    switch (kind) {
    case enmControlKind::Button: {
        const UINT type = style & BS_TYPEMASK;
        const bool box = type == BS_CHECKBOX || type == BS_AUTOCHECKBOX;
        if (box && !(style & BS_PUSHLIKE)) {
            return new CheckBoxWidget(pParent, style);
        }
        return new PushButtonWidget(pParent, style);
    }
    case enmControlKind::Static:
        return new StaticWidget(pParent, style);
    case enmControlKind::Edit:
        return new EditWidget(pParent, style);
    case enmControlKind::ComboBox:
        return new ComboWidget(pParent);
    case enmControlKind::ListBox:
        return new ListBoxWidget(pParent, style);
    case enmControlKind::ListView:
        return new ListWidget(pParent, style);
    case enmControlKind::TreeView:
        return new TreeWidget(pParent, style);
    }
    return nullptr;
}

} // namespace

bool CWnd::CreateControl(enmControlKind kind, UINT style, const CRect& rect, CWnd* pParent,
                         UINT id) {
    if (m_pCore || !pParent || !pParent->Core()) {
        return false;
    }
    QWidget* const pWidget = MakeWidget(kind, style, pParent->Core()->Client());
    QRect place = ToQRect(rect);
    if (kind == enmControlKind::ComboBox) {
        // The given height includes the open list.
        place.setHeight(pWidget->sizeHint().height());
    }
    const auto* const pArea = qobject_cast<QAbstractScrollArea*>(pWidget);
    QWidget* const pClient = pArea ? pArea->viewport() : pWidget;
    const auto core = WindowCore::Bind(*this, pWidget, pClient, pParent, id, style | WS_CHILD);
    ApplyGeometry(pWidget, place);
    pWidget->setEnabled(!(style & WS_DISABLED));
    pWidget->setVisible((style & WS_VISIBLE) != 0);
    return core->Object() != nullptr;
}
