#include "platform/arx/HostReactor.h"

#include <algorithm>
#include <vector>

#include "platform/arx/Guard.h"
#include "platform/win/PlatformTexts.h"

namespace {

constexpr PlatformMsg kEvent = PlatformMsg::ClosingEvent;

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
    return std::none_of(reactors.begin(), reactors.end(), [](AcApHostReactor* pReactor) {
        bool isVeto = false;
        // A reactor that throws must not keep the user from leaving.
        Guarded(kEvent,
                [&] { CallForeign(*pReactor, kEvent, [&] { isVeto = pReactor->hostToClose(); }); });
        return isVeto;
    });
}
