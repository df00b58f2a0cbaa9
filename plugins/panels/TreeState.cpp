#include "plugins/panels/TreeState.h"

#include <map>

namespace Orvane::Panels {

namespace {

/// Separates keys; no key contains it.
constexpr wchar_t kBetween = L'\n';

/// Calls `call` for each node with its path, parents first.
template <class Call>
void Walk(const CTreeCtrl& tree, const TreeState::KeyOfItem& keyOf, HTREEITEM first,
          const std::wstring& above, const Call& call) {
    std::map<std::wstring, int> twins;
    for (HTREEITEM item = first; item; item = tree.GetNextSiblingItem(item)) {
        const CString key = keyOf(item);
        std::wstring path = above + kBetween + key.Str();
        if (const int twin = twins[key.Str()]++; twin > 0) {
            path += L"#" + std::to_wstring(twin);
        }
        call(item, path);
        Walk(tree, keyOf, tree.GetChildItem(item), path, call);
    }
}

bool StartsWithPath(const std::wstring& path, const std::wstring& start) {
    return path.starts_with(start) &&
           (path.size() == start.size() || path[start.size()] == kBetween);
}

} // namespace

TreeState::TreeState(const CTreeCtrl& tree, const KeyOfItem& keyOf) {
    Walk(tree, keyOf, tree.GetRootItem(), {}, [&](HTREEITEM item, const std::wstring& path) {
        if (tree.IsExpanded(item)) {
            m_open.insert(path);
        }
        if (item == tree.GetSelectedItem()) {
            m_selected = path;
        }
        if (item == tree.GetFirstVisibleItem()) {
            m_first = path;
        }
    });
}

void TreeState::Restore(CTreeCtrl& tree, const KeyOfItem& keyOf) const {
    HTREEITEM selected = nullptr;
    HTREEITEM first = nullptr;
    Walk(tree, keyOf, tree.GetRootItem(), {}, [&](HTREEITEM item, const std::wstring& path) {
        if (m_open.contains(path)) {
            tree.Expand(item, TVE_EXPAND);
        }
        // Parents come first, so the last match is the nearest.
        if (!m_selected.empty() && StartsWithPath(m_selected, path)) {
            selected = item;
        }
        if (path == m_first) {
            first = item;
        }
    });
    if (selected) {
        tree.SelectItem(selected);
    }
    tree.SelectSetFirstVisible(first);
}

} // namespace Orvane::Panels
