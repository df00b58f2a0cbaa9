// The command registry read from any text can be listed, written and read again.
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
    // References in an id are kept by writing and resolved by reading, so two ids may become equal.
    // An id with a NUL ends there.
    const CString written = registry.GetXML();
    CWsCommandRegistry again;
    if (written.Find(L'\0') == -1 &&
        (again.ParseXML(written) != 1 ||
         again.GetWsCommandVector()->size() > registry.GetWsCommandVector()->size() ||
         again.GetWsCommandVector()->empty() != registry.GetWsCommandVector()->empty())) {
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
