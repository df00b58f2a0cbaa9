#include "workspacecore/commands/WsTopologyDataSet.h"

#include <algorithm>

namespace Orvane::Workspace {

void CWsTopologyDataSet::Add(const Ptr& data) {
    if (data) {
        vector.push_back(data);
        map.emplace(data->GetMapKey(), data);
    }
}

void CWsTopologyDataSet::Remove(const Ptr& data) {
    if (!data) {
        return;
    }
    const auto hit = std::find(vector.begin(), vector.end(), data);
    // Before erasing, since the vector may hold the only reference.
    const CString key = data->GetMapKey();
    if (hit != vector.end()) {
        vector.erase(hit);
    }
    map.erase(key);
}

} // namespace Orvane::Workspace
