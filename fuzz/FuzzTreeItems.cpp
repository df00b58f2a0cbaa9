// The definitions read from any text can be written and read again, and no templates are built from
// them.
#include <cstdlib>

#include "platform/win/CodePage.h"
#include "workspacecore/tree/WsTreeItemDefinitionList.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using Orvane::Workspace::CWsTreeItemDefinitionList;
    const std::wstring text = Utf8ToWide({reinterpret_cast<const char*>(data), size});
    CWsTreeItemDefinitionList list;
    const int found = list.ParseXML(text.c_str());
    const std::size_t count = list.GetWsTreeItemDefinitionVector()->size();
    if (!found && count != 0) {
        std::abort();
    }
    const CString written = list.GetXML();
    CWsTreeItemDefinitionList again;
    if (written.Find(L'\0') == -1 &&
        (again.ParseXML(written) != 1 || again.GetWsTreeItemDefinitionVector()->size() != count)) {
        std::abort();
    }
    for (const auto& definition : *list.GetWsTreeItemDefinitionVector()) {
        for (const auto& topology : *definition->GetWsTopologyDataVector()) {
            if (definition->DoesTopologyDataExist(topology.get())) {
                std::abort();
            }
        }
    }
    return 0;
}
