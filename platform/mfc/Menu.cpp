#include "platform/mfc/Menu.h"

#include <QMenu>
#include <QPointer>

#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/ScreenPlace.h"
#include "platform/mfc/toolkit/WindowCore.h"

namespace {

void FillMenu(QMenu& target, const CMenu& menu) {
    for (UINT place = 0; place < menu.GetMenuItemCount(); ++place) {
        const UINT state = menu.GetMenuState(place);
        const QString text = ToQString(menu.GetMenuString(place).View());
        if (const CMenu* const pSubMenu = menu.GetSubMenu(place)) {
            FillMenu(*target.addMenu(text), *pSubMenu);
            continue;
        }
        if (state & MF_SEPARATOR) {
            target.addSeparator();
            continue;
        }
        QAction* const pAction = target.addAction(text);
        pAction->setData(menu.GetMenuItemID(place));
        pAction->setEnabled(!(state & MF_GRAYED));
        pAction->setCheckable((state & MF_CHECKED) != 0);
        pAction->setChecked((state & MF_CHECKED) != 0);
    }
}

} // namespace

bool CMenu::CreatePopupMenu() {
    m_items.clear();
    return true;
}

bool CMenu::DestroyMenu() {
    m_items.clear();
    return true;
}

bool CMenu::AppendMenu(UINT flags, UINT id, const wchar_t* text) {
    const UINT shownId = flags & MF_SEPARATOR ? 0 : id;
    m_items.push_back({flags, shownId, text, nullptr});
    return true;
}

bool CMenu::AppendMenu(CMenu subMenu, const wchar_t* text) {
    m_items.push_back({MF_POPUP, 0, text, std::make_unique<CMenu>(std::move(subMenu))});
    return true;
}

UINT CMenu::GetMenuItemID(UINT place) const {
    return place < m_items.size() ? m_items[place].id : 0;
}

CString CMenu::GetMenuString(UINT place) const {
    return place < m_items.size() ? m_items[place].text : CString();
}

UINT CMenu::GetMenuState(UINT place) const {
    return place < m_items.size() ? m_items[place].flags : 0;
}

CMenu* CMenu::GetSubMenu(UINT place) const {
    return place < m_items.size() ? m_items[place].pSubMenu.get() : nullptr;
}

std::optional<UINT> CMenu::TrackPopupMenu(UINT, int x, int y, CWnd* pWnd) const {
    if (m_items.empty() || !AfxIsDesktopMode()) {
        return std::nullopt;
    }
    AfxStartToolkit();
    QWidget* const pOver = pWnd && pWnd->Core() ? pWnd->Core()->Outer() : nullptr;
    const QPointer<QMenu> menu = new QMenu(pOver);
    FillMenu(*menu, *this);
    // The result of exec misses items chosen by keyboard in a submenu.
    std::optional<UINT> chosen;
    QObject::connect(menu.data(), &QMenu::triggered, menu.data(),
                     [&chosen](const QAction* pAction) { chosen = pAction->data().toUInt(); });
    menu->exec(FromScreenPoint({x, y}));
    delete menu.data();
    return chosen;
}
