// What is open and selected in a tree, by the keys of nodes, so that it can be found again in
// a tree that was filled anew.
#pragma once

#include <functional>
#include <set>
#include <string>

#include "platform/mfc/TreeCtrl.h"

namespace Orvane::Panels {

class TreeState {
public:
    using KeyOfItem = std::function<CString(HTREEITEM)>;

    /// Notes what the tree shows now.
    TreeState(const CTreeCtrl& tree, const KeyOfItem& keyOf);
    /// Opens and selects the same nodes; where the selected one has gone, the one above it.
    void Restore(CTreeCtrl& tree, const KeyOfItem& keyOf) const;

private:
    std::set<std::wstring> m_open; ///< paths as one text
    std::wstring m_selected;
};

} // namespace Orvane::Panels
