#include "platform/arx/HostReactor.h"

#include <algorithm>
#include <vector>

namespace {

std::vector<AcApHostReactor*>& Reactors() {
    static auto* const reactors = new std::vector<AcApHostReactor*>;
    return *reactors;
}

} // namespace

void acedAddHostReactor(AcApHostReactor* pReactor) {
    Reactors().push_back(pReactor);
}

void acedRemoveHostReactor(AcApHostReactor* pReactor) {
    std::erase(Reactors(), pReactor);
}

bool acedAskToClose() {
    const std::vector<AcApHostReactor*> reactors = Reactors();
    return std::none_of(reactors.begin(), reactors.end(),
                        [](AcApHostReactor* pReactor) { return pReactor->hostToClose(); });
}
