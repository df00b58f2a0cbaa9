// What a command is given beside the item that it works on.
#pragma once

#include <memory>
#include <variant>

#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::Workspace {

/// Nothing, the new name of a rename, or the item that was dropped on the other one.
using ItemArgument = std::variant<std::monostate, CString, std::shared_ptr<const CWsTreeItemData>>;

/// Hands an executor the argument as the custom data of the item, which is all that its
/// interface has a place for. Null takes it away. Not owned.
inline void WrapArgument(CWsTreeItemData& item, ItemArgument* pArgument) {
    item.SetCustomData(pArgument);
}

/// The argument of a kind that an executor was handed with the item; null if there is none.
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
