#include "plugins/panels/LentItems.h"

#include <vector>

namespace Orvane::Panels {

namespace {

std::vector<std::weak_ptr<Workspace::CWsTreeItemData>>& Lent() {
    static std::vector<std::weak_ptr<Workspace::CWsTreeItemData>> lent;
    return lent;
}

} // namespace

LentItem LendItem(const Workspace::CWsTreeItemData& item) {
    std::erase_if(Lent(), [](const auto& lent) { return lent.expired(); });
    auto copy = std::make_shared<Workspace::CWsTreeItemData>(item);
    Lent().push_back(copy);
    return copy;
}

void ForEachLentItem(const std::function<void(Workspace::CWsTreeItemData&)>& call) {
    for (const auto& lent : Lent()) {
        if (const LentItem item = lent.lock()) {
            call(*item);
        }
    }
}

} // namespace Orvane::Panels
