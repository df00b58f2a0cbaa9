#include "platform/mfc/DialogTemplate.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

using ModuleTemplates = std::pair<HINSTANCE, std::span<const DialogTemplate>>;

std::vector<ModuleTemplates>& KnownTemplates() {
    static std::vector<ModuleTemplates> known;
    return known;
}

const DialogTemplate* FindIn(std::span<const DialogTemplate> templates, UINT id) {
    const auto found = std::find_if(templates.begin(), templates.end(),
                                    [id](const DialogTemplate& t) { return t.id == id; });
    return found == templates.end() ? nullptr : &*found;
}

} // namespace

void AddDialogTemplates(HINSTANCE module, std::span<const DialogTemplate> templates) {
    KnownTemplates().emplace_back(module, templates);
}

const DialogTemplate* FindDialogTemplate(HINSTANCE module, UINT id) {
    const DialogTemplate* pOther = nullptr;
    for (auto known = KnownTemplates().rbegin(); known != KnownTemplates().rend(); ++known) {
        const DialogTemplate* const pFound = FindIn(known->second, id);
        if (pFound && known->first == module) {
            return pFound;
        }
        pOther = pOther ? pOther : pFound;
    }
    return pOther;
}
