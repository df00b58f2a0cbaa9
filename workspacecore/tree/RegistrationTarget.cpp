#include "workspacecore/tree/RegistrationTarget.h"

namespace Orvane::Workspace {

namespace {
IRegistrationTarget* g_pTarget = nullptr;
}

void SetRegistrationTarget(IRegistrationTarget* pTarget) {
    g_pTarget = pTarget;
}

IRegistrationTarget& RegistrationTarget() {
    return *g_pTarget;
}

} // namespace Orvane::Workspace
