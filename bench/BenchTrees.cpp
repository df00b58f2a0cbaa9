// Templates of many definitions, menus of many commands, and large trees, beside plain walks
// of as many records.
#include <boost/make_shared.hpp>
#include <chrono>
#include <fstream>
#include <iostream>
#include <unistd.h>

#include "platform/arx/HostOptions.h"
#include "platform/mfc/Dialog.h"
#include "platform/mfc/Menu.h"
#include "platform/mfc/TreeCtrl.h"
#include "platform/mfc/WinApp.h"
#include "platform/win/CodePage.h"
#include "siblings/giscore/ModuleConfiguration.h"
#include "workspacecore/panel/TreeMenus.h"
#include "workspacecore/panel/WsTreeManager.h"

namespace {

using namespace Orvane;
using namespace Orvane::Workspace;

constexpr int kFunctions = 8;
constexpr enmEntityType kEntityTypes[] = {EntityNode, EntitySection, EntityPolygon,
                                          EntityPolygonNode, EntityLongitudinalSection};

double Milliseconds(auto&& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
        .count();
}

/// Families of a folder, five entity folders and five configurations in each tree.
void AddFamilies(CWsTreeItemDefinitionList& list, int definitions) {
    const auto add = [&](enmWSTreeItemType type, const CString& tag, enmEntityType entityType) {
        auto definition = boost::make_shared<CWsTreeItemDefinition>();
        definition->SetId(tag);
        definition->SetRepositoryTag(tag);
        definition->SetWsItemType(type);
        definition->SetEntityType(entityType);
        for (int function = 1; function <= kFunctions; ++function) {
            definition->AddWsTopologyData(
                boost::make_shared<CWsTopologyData>(TopologyLine, function));
        }
        list.AddWsTreeItemDefinition(definition);
    };
    add(WsItemSystem, L"SYSTEM", EntityNone);
    for (int family = 0; family < definitions / 22; ++family) {
        CString tag;
        tag.Format(L"FAMILY_%d", family);
        add(WsItemSystemRepository, tag, EntityNone);
        add(WsItemRepository, tag, EntityNone);
        for (const enmEntityType type : kEntityTypes) {
            add(WsItemSystemEntityFolder, tag, type);
            add(WsItemSystemConfiguration, tag, type);
            add(WsItemRepositoryEntityFolder, tag, type);
            add(WsItemRepositoryConfiguration, tag, type);
        }
    }
}

std::size_t Nodes(const CWsTreeTemplate& root) {
    std::size_t count = 1;
    for (const auto& child : *root.GetChildren()) {
        count += Nodes(*child);
    }
    return count;
}

void Templates() {
    for (const int definitions : {1'250, 2'500, 5'000, 10'000}) {
        CWsTreeItemDefinitionList list;
        AddFamilies(list, definitions);
        const double all = Milliseconds([&] {
            list.InitializeSystemTreeTemplate();
            list.InitializeDiskTreeTemplate();
            list.InitializeNetTreeTemplate();
        });
        std::size_t nodes = Nodes(*list.GetDiskTreeTemplate()) + Nodes(*list.GetNetTreeTemplate());
        for (int function = 1; function <= kFunctions; ++function) {
            nodes += Nodes(*list.GetSystemTreeTemplate(TopologyLine, function));
        }
        const double bare = Milliseconds([&] {
            std::vector<CWsTreeTemplate::Ptr> made;
            for (std::size_t i = 0; i < nodes; ++i) {
                made.push_back(CWsTreeTemplate::Ptr(new CWsTreeTemplate));
            }
        });
        std::cout << "templates of " << definitions << " definitions: " << all << " ms for "
                  << nodes << " nodes, " << all / bare << " times making as many bare nodes\n";
    }
}

void Menus() {
    CWsCommandRegistry registry;
    for (int i = 0; i < 10'000; ++i) {
        auto command = boost::make_shared<CWsCommand>();
        CString id;
        id.Format(L"COMMAND_%d", i);
        command->SetId(id);
        command->SetName(id);
        command->SetRepositoryTag(i % 100 == 0 ? L"QUERY" : L"OTHER");
        command->SetCmdGroup(static_cast<enmCommandGroup>(1 + i % 23));
        command->SetWsItemTypes(WsItemSystemConfiguration);
        for (int function = 1; function <= kFunctions; ++function) {
            command->AddWsTopologyData(boost::make_shared<CWsTopologyData>(TopologyLine, function));
        }
        registry.AddWsCommand(command);
    }
    CWsTreeItemDefinition definition;
    definition.SetWsItemType(WsItemSystemConfiguration);
    definition.SetRepositoryTag(L"QUERY");
    MenuTopology topology;
    topology.type = TopologyLine;
    topology.function = 5;
    double best = 1e9;
    std::size_t entries = 0;
    for (int run = 0; run < 50; ++run) {
        best =
            std::min(best, Milliseconds([&] {
                         CMenu menu;
                         menu.CreatePopupMenu();
                         AppendMenuEntries(menu, TreeMenuEntries(registry, topology, definition));
                         entries = menu.GetMenuItemCount();
                     }));
    }
    double bare = 1e9;
    for (int run = 0; run < 50; ++run) {
        bare = std::min(bare, Milliseconds([&] {
                            std::size_t count = 0;
                            for (const auto& command : *registry.GetWsCommandVector()) {
                                count += command->GetRepositoryTag() == L"QUERY";
                            }
                            entries += count > entries;
                        }));
    }
    std::cout << "menu among 10000 commands: " << best << " ms, " << entries << " entries, "
              << best / bare << " times one walk comparing the tags\n";
}

constexpr DialogTemplate kDialog[] = {{900, 250, 115, L"Trees", WS_POPUP | WS_CAPTION, {}}};

void Views() {
    AddDialogTemplates(nullptr, kDialog);
    CDialog dialog(900, nullptr);
    dialog.Create(900, nullptr);
    dialog.ShowWindow(SW_SHOW);
    for (const int count : {25'000, 50'000, 100'000, 200'000}) {
        CTreeCtrl view;
        view.Create(WS_VISIBLE, CRect(0, 0, 300, 400), &dialog, 1);
        std::vector<CWsTreeItemData> data(static_cast<std::size_t>(count));
        HTREEITEM root = nullptr;
        const double fill = Milliseconds([&] {
            root = view.InsertItem(L"root");
            for (CWsTreeItemData& record : data) {
                record.SetTreeItem(view.InsertItem(L"node", -1, -1, root));
                view.SetItemData(record.GetTreeItem(), reinterpret_cast<DWORD_PTR>(&record));
            }
            view.Expand(root, TVE_EXPAND);
            AfxPumpMessages();
        });
        const double remove = Milliseconds([&] {
            // As the tree manager does it, from the first child on.
            while (const HTREEITEM child = view.GetChildItem(root)) {
                view.DeleteItem(child);
            }
            AfxPumpMessages();
        });
        std::cout << "tree of " << count << " nodes: filled in " << fill << " ms, emptied in "
                  << remove << " ms\n";
        view.DestroyWindow();
    }
    dialog.DestroyWindow();
}

} // namespace

int main() {
    char folder[] = "/tmp/bench-trees-XXXXXX";
    if (!mkdtemp(folder)) {
        return 1;
    }
    std::ofstream file(std::string(folder) + "/TopologyConfiguration.ini");
    file << "[line]\n";
    for (const enmEntityType type : kEntityTypes) {
        file << "entity." << type << "=E" << type << "\n";
    }
    for (int function = 1; function <= kFunctions; ++function) {
        file << "function." << function << "=F" << function << "\n";
    }
    file.close();
    SetHostOption(kHostOptionSupport, Utf8ToWide(folder).c_str());
    SetHostOption(kHostOptionInstall, L"" TESSALY_STAGE_DIR "/");
    Templates();
    Menus();
    AfxSetDesktopMode(true);
    AfxStartToolkit();
    Views();
    AfxStopToolkit();
    return 0;
}
