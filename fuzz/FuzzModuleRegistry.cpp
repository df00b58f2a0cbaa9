// Whatever a text says, the module registry that was read from it holds no run-time state,
// and can be written and read again with the same content.
#include <cstdlib>

#include "platform/win/CodePage.h"
#include "workspacecore/plugins/WsModuleRegistry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using Orvane::Workspace::CWsModuleRegistry;
    const std::wstring text = Utf8ToWide({reinterpret_cast<const char*>(data), size});
    CWsModuleRegistry registry;
    const int found = registry.ParseXML(text.c_str());
    if (!found && !registry.GetWsModuleVector()->empty()) {
        std::abort();
    }
    for (const auto& module : *registry.GetWsModuleVector()) {
        if (module->GetLoaded() || module->GetModuleDLLInstance() || module->GetPluginInfo() ||
            module->GetReleaseModule() || registry.DoesModuleExist(module->GetFileName())) {
            std::abort();
        }
    }
    const CString written = registry.GetXML();
    CWsModuleRegistry again;
    if (again.ParseXML(written) != 1 || again.GetXML() != written) {
        std::abort();
    }
    return 0;
}
