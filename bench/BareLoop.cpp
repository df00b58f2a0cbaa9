#include "bench/BareLoop.h"

void BareLoop(const std::vector<Orvane::Workspace::IWsListener*>& listeners,
              Orvane::System::CGisSystem* pSystem) {
    for (Orvane::Workspace::IWsListener* pListener : listeners) {
        pListener->OnSystemBecomeShown(pSystem);
    }
}
