#include "workspacecore/foundation/XmlRecord.h"

#include "platform/arx/EdPrompt.h"

namespace Orvane {

void SayNotImplemented() {
    AfxMessageBox(L"Not implemented");
}

} // namespace Orvane
