#include "plugins/common/Prompts.h"

#include "platform/arx/EdPrompt.h"

namespace Orvane::Plugins {

void PrintLine(const std::string& line) {
    acutPrintf(L"%s\n", line);
}

bool Refuse(const CString& reason) {
    acutPrintf(L"%s\n", reason);
    return false;
}

} // namespace Orvane::Plugins
