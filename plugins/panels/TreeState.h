// Expanded and selected nodes of a tree and its scroll position, by the keys of the nodes, so
// they can be restored after the tree was refilled.
#pragma once

#include <functional>
#include <set>
#include <string>

#include "platform/mfc/TreeCtrl.h"

namespace Orvane::Panels {

class TreeState {
public:
    using KeyOfItem = std::function<CString(HTREEITEM)>;

    /// Saves the tree's current state.
    TreeState(const CTreeCtrl& tree, const KeyOfItem& keyOf);
    /// Expands and selects the same nodes and scrolls to the same place; if the selected node no
    /// longer exists, selects its nearest existing ancestor.
    void Restore(CTreeCtrl& tree, const KeyOfItem& keyOf) const;

private:
    std::set<std::wstring> m_open; ///< paths of keys
    std::wstring m_selected;
    std::wstring m_first; ///< the uppermost one in view
};

} // namespace Orvane::Panels
