// Whatever a text says, the command registry that was read from it can be listed, written
// and read again with the same content.
#include <cstdlib>

#include "platform/win/CodePage.h"
#include "workspacecore/commands/WsCommandRegistry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using Orvane::Workspace::CWsCommandRegistry;
    const std::wstring text = Utf8ToWide({reinterpret_cast<const char*>(data), size});
    CWsCommandRegistry registry;
    const int found = registry.ParseXML(text.c_str());
    if (!found && !registry.GetWsCommandVector()->empty()) {
        std::abort();
    }
    const CString written = registry.GetXML();
    CWsCommandRegistry again;
    if (again.ParseXML(written) != 1 || again.GetXML() != written) {
        std::abort();
    }
    for (const auto& command : *registry.GetWsCommandVector()) {
        if (registry.GetWsCommandById(command->GetId()) != command ||
            registry.GetWsCommandByMenuId(command->GetMenuCmdId()) != command) {
            std::abort();
        }
    }
    return 0;
}
