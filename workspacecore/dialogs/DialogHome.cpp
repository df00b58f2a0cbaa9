#include "workspacecore/dialogs/DialogHome.h"

namespace Orvane::Workspace {

namespace {
IDialogHome* g_pHome = nullptr;
}

void SetDialogHome(IDialogHome* pHome) {
    g_pHome = pHome;
}

IDialogHome& DialogHome() {
    return *g_pHome;
}

} // namespace Orvane::Workspace
