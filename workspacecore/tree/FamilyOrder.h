// User-defined order of configuration families in a tree.
#pragma once

#include "workspacecore/tree/WsTreeTemplate.h"

namespace Orvane::Workspace {

/// The tags in "workspaceRepositoryOrder.xml" in the folder "support", in order. Empty if the
/// file cannot be read.
std::vector<CString> LoadFamilyOrder();

/// Sorts the direct children of a template: tool groups first, then the families in the order of
/// the tags, then the others.
void SortByFamily(CWsTreeTemplate::Children& children, const std::vector<CString>& familyOrder);

} // namespace Orvane::Workspace
