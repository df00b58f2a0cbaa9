// The module registry read from any text contains no run-time state, and can be written and read
// again record by record.
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
    // References in a name are kept by writing and resolved by reading, so a name may change once;
    // the number of records may not. A name with a NUL ends there.
    const CString written = registry.GetXML();
    CWsModuleRegistry again;
    if (written.Find(L'\0') != -1) {
        return 0;
    }
    if (again.ParseXML(written) != 1 ||
        again.GetWsModuleVector()->size() != registry.GetWsModuleVector()->size()) {
        std::abort();
    }
    for (std::size_t i = 0; i < registry.GetWsModuleVector()->size(); ++i) {
        const auto& before = *(*registry.GetWsModuleVector())[i];
        const auto& after = *(*again.GetWsModuleVector())[i];
        if (before.GetMsgName() != after.GetMsgName() || before.GetOn() != after.GetOn()) {
            std::abort();
        }
    }
    return 0;
}
