// Templates of many definitions, menus of many commands, and large trees, compared with plain
// traversals of as many records.
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
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/panel/TreeMenus.h"

namespace {

using namespace Orvane;
using namespace Orvane::Workspace;

/// Everything a configuration can offer, each with two functions.
constexpr struct {
    enmTopologyType type;
    const char* section;
} kTopologies[] = {{TopologyLine, "line"},
                   {TopologyPolygon, "polygon"},
                   {TopologyPoint, "point"},
                   {TopologyScheme, "scheme"}};
constexpr int kFunctions[] = {1, 2};
constexpr enmEntityType kEntityTypes[] = {EntityNode, EntitySection, EntityPolygon,
                                          EntityPolygonNode, EntityLongitudinalSection};

double Milliseconds(auto&& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
        .count();
}

template <class Record>
void AddTopologies(Record& record) {
    for (const auto& topology : kTopologies) {
        for (const int function : kFunctions) {
            record.AddWsTopologyData(boost::make_shared<CWsTopologyData>(topology.type, function));
        }
    }
}

/// Families with a folder, five entity folders and five configurations in each tree.
void AddFamilies(CWsTreeItemDefinitionList& list, int definitions) {
    const auto add = [&](enmWSTreeItemType type, const CString& tag, enmEntityType entityType) {
        auto definition = boost::make_shared<CWsTreeItemDefinition>();
        definition->SetId(tag);
        definition->SetRepositoryTag(tag);
        definition->SetWsItemType(type);
        definition->SetEntityType(entityType);
        AddTopologies(*definition);
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
        for (const auto& topology : kTopologies) {
            for (const int function : kFunctions) {
                nodes += Nodes(*list.GetSystemTreeTemplate(topology.type, function));
            }
        }
        double bare = 1e9;
        for (int run = 0; run < 10; ++run) {
            bare = std::min(bare, Milliseconds([&] {
                                std::vector<CWsTreeTemplate::Ptr> made;
                                for (std::size_t i = 0; i < nodes; ++i) {
                                    made.push_back(CWsTreeTemplate::Ptr(new CWsTreeTemplate));
                                }
                            }));
        }
        std::cout << "templates of " << definitions << " definitions: " << all << " ms for "
                  << nodes << " nodes, " << all / bare << " times creating as many bare nodes\n";
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
        AddTopologies(*command);
        registry.AddWsCommand(command);
    }
    CWsTreeItemDefinition definition;
    definition.SetWsItemType(WsItemSystemConfiguration);
    definition.SetRepositoryTag(L"QUERY");
    MenuTopology topology;
    topology.type = TopologyPoint;
    topology.function = 1;
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
              << best / bare << " times one traversal comparing the tags\n";
}

constexpr DialogTemplate kDialog[] = {{900, 250, 115, L"Trees", WS_POPUP | WS_CAPTION, {}}};

/// Number of nodes in a branch, including its root.
constexpr std::size_t kBranch = 10;

void Views() {
    CWsManager& manager = *CWsManager::Instance();
    AddDialogTemplates(nullptr, kDialog);
    CDialog dialog(900, nullptr);
    dialog.Create(900, nullptr);
    dialog.ShowWindow(SW_SHOW);
    for (const int count : {25'000, 50'000, 100'000, 200'000}) {
        CTreeCtrl view;
        view.Create(WS_VISIBLE, CRect(0, 0, 300, 400), &dialog, 1);
        manager.RegisterTreeControl(&view);
        std::vector<CWsTreeItemData> data(static_cast<std::size_t>(count));
        HTREEITEM root = nullptr;
        const double fill = Milliseconds([&] {
            root = view.InsertItem(L"root");
            HTREEITEM branch = root;
            for (std::size_t i = 0; i < data.size(); ++i) {
                const bool begins = i % kBranch == 0;
                const HTREEITEM node = view.InsertItem(L"node", -1, -1, begins ? root : branch);
                branch = begins ? node : branch;
                data[i].SetTreeItem(node);
                view.SetItemData(node, reinterpret_cast<DWORD_PTR>(&data[i]));
            }
            view.Expand(root, TVE_EXPAND);
            AfxPumpMessages();
        });
        const double remove = Milliseconds([&] {
            manager.TreeMgr()->DeleteTreeItem(root);
            AfxPumpMessages();
        });
        if (view.GetCount() != 1) {
            std::cout << view.GetCount() << " nodes left instead of one\n";
        }
        std::cout << "tree of " << count << " nodes: filled in " << fill << " ms, emptied in "
                  << remove << " ms\n";
        manager.RegisterTreeControl(nullptr);
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
    for (const auto& topology : kTopologies) {
        file << "[" << topology.section << "]\n";
        for (const enmEntityType type : kEntityTypes) {
            file << "entity." << type << "=E" << type << "\n";
        }
        for (const int function : kFunctions) {
            file << "function." << function << "=F" << function << "\n";
        }
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
