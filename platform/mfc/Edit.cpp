#include "platform/mfc/Edit.h"

#include <algorithm>

#include <QLineEdit>

#include "platform/mfc/toolkit/EditWidget.h"

bool CEdit::Create(UINT style, const CRect& rect, CWnd* pParent, UINT id) {
    return CreateControl(enmControlKind::Edit, style, rect, pParent, id);
}

void CEdit::SetReadOnly(bool readOnly) {
    if (auto* const pEdit = WidgetOf<EditWidget>(*this)) {
        pEdit->setReadOnly(readOnly);
    }
}

void CEdit::SetSel(int start, int end) {
    if (auto* const pEdit = WidgetOf<EditWidget>(*this)) {
        const int length = static_cast<int>(pEdit->text().size());
        const int last = end < 0 ? length : std::min(end, length);
        pEdit->setSelection(start, std::max(0, last - start));
    }
}

void CEdit::LimitText(int characters) {
    if (auto* const pEdit = WidgetOf<EditWidget>(*this)) {
        pEdit->setMaxLength(characters);
    }
}
