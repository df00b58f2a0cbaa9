// Popup menus.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/Api.h"
#include "platform/win/String.h"
#include "platform/win/Types.h"

class CWnd;

inline constexpr UINT MF_STRING = 0x0000;
inline constexpr UINT MF_GRAYED = 0x0001;
inline constexpr UINT MF_CHECKED = 0x0008;
inline constexpr UINT MF_POPUP = 0x0010;
inline constexpr UINT MF_SEPARATOR = 0x0800;

inline constexpr UINT TPM_RIGHTBUTTON = 0x0002;
inline constexpr UINT TPM_RETURNCMD = 0x0100;

/// A menu as data; only TrackPopupMenu creates a widget for it. Positions start at 0.
class PLATFORM_API CMenu {
public:
    CMenu() = default;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;
    CMenu(CMenu&&) = default;
    CMenu& operator=(CMenu&&) = default;

    /// Clears the menu, like DestroyMenu.
    bool CreatePopupMenu();
    bool DestroyMenu();

    /// \param flags MF_STRING or MF_SEPARATOR, with MF_GRAYED and MF_CHECKED
    bool AppendMenu(UINT flags, UINT id = 0, const wchar_t* text = L"");
    /// Adds another menu as a submenu and takes ownership.
    bool AppendMenu(CMenu subMenu, const wchar_t* text);

    UINT GetMenuItemCount() const { return static_cast<UINT>(m_items.size()); }
    UINT GetMenuItemID(UINT place) const; ///< 0 for a separator
    CString GetMenuString(UINT place) const;
    UINT GetMenuState(UINT place) const; ///< the item's flags
    CMenu* GetSubMenu(UINT place) const; ///< null if it is not a submenu

    /// Shows the menu and waits for a choice.
    /// \return the chosen id, which may be 0; nothing if the menu is dismissed or empty, or without
    /// a desktop
    std::optional<UINT> TrackPopupMenu(UINT flags, int x, int y, CWnd* pWnd) const;

private:
    struct Item {
        UINT flags;
        UINT id;
        CString text;
        std::unique_ptr<CMenu> pSubMenu;
    };
    std::vector<Item> m_items;
};
