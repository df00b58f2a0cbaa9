// An extra argument of a command, besides its item.
#pragma once

#include <memory>
#include <variant>

#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::Workspace {

/// Nothing, the new name for a rename, or the item that was dropped.
using ItemArgument = std::variant<std::monostate, CString, std::shared_ptr<const CWsTreeItemData>>;

/// Passes an argument to an executor as the item's custom data, the only channel its interface
/// offers. Null clears it. Not owned.
inline void WrapArgument(CWsTreeItemData& item, ItemArgument* pArgument) {
    item.SetCustomData(pArgument);
}

/// The argument of this type passed with the item; null if there is none.
template <class Kind>
const Kind* UnwrapArgument(const CWsTreeItemData* pItem) {
    return pItem ? std::get_if<Kind>(static_cast<const ItemArgument*>(pItem->GetCustomData()))
                 : nullptr;
}

inline const CString* NewNameOf(const CWsTreeItemData* pItem) {
    return UnwrapArgument<CString>(pItem);
}

inline const CWsTreeItemData* DroppedItemOf(const CWsTreeItemData* pItem) {
    const auto* const pDropped = UnwrapArgument<std::shared_ptr<const CWsTreeItemData>>(pItem);
    return pDropped ? pDropped->get() : nullptr;
}

} // namespace Orvane::Workspace
