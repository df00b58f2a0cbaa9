// The user's order of the families of configurations in a tree.
#pragma once

#include "workspacecore/tree/WsTreeTemplate.h"

namespace Orvane::Workspace {

/// The tags of "workspaceRepositoryOrder.xml" in the folder "support", first to last. Empty
/// if the file cannot be read.
std::vector<CString> LoadFamilyOrder();

/// Brings the children of a template, not those below, into an order: tool groups first,
/// then the families in the order of their tags, then the others.
void SortByFamily(CWsTreeTemplate::Children& children, const std::vector<CString>& familyOrder);

} // namespace Orvane::Workspace
