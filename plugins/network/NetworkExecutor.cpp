#include "plugins/network/NetworkExecutor.h"

#include "platform/arx/EdPrompt.h"
#include "plugins/common/CommandIds.h"
#include "plugins/common/Prompts.h"
#include "plugins/common/SystemNetwork.h"
#include "plugins/common/SystemTexts.h"
#include "plugins/common/Texts.h"
#include "plugins/network/ImportCommand.h"
#include "plugins/network/NetworkCheck.h"
#include "plugins/network/NetworkReport.h"
#include "plugins/network/NetworkStatistics.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/systems/GisSystems.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/giscore/topology/Topology.h"
#include "siblings/networkcore/TopologyMultiStorage.h"
#include "workspacecore/commands/CommandScope.h"

namespace Orvane::Network {

using Plugins::FunctionName;
using Plugins::Msg;
using Plugins::OwnCommandId;
using Plugins::PrintLine;
using Plugins::Refuse;
using Plugins::Text;
using Workspace::CommandScope;

namespace {

/// The systems of the current drawing. Requires an open drawing.
std::vector<System::CGisSystem*> Systems() {
    return System::CSystemManager::Instance()->GetSystems()->GetSystemList();
}

/// Calls `call` for each network system.
template <class Call>
bool ForEachNetwork(Call call) {
    int count = 0;
    for (System::CGisSystem* const pSystem : Systems()) {
        if (pSystem->GetTopologyType() == TopologyLine) {
            ++count;
            call(*pSystem,
                 SystemNetwork(*Topology::CTopologyMultiStorage::Instance()->GetTopology(),
                               *pSystem));
        }
    }
    return count > 0 || Refuse(Text(Msg::NoNetworks));
}

/// Count and extents of a polygon system.
void PrintPolygons(const System::CGisSystem& system) {
    const auto& storage = *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    std::size_t count = 0;
    std::vector<Point> points;
    for (const auto id : storage.GetSystemPolygons(system.GetSystemId())) {
        ++count;
        for (const AcDbMPolygon::Ring& ring : storage.GetPolygonById(id).GetRings()) {
            for (const Topology::Point& point : ring.points) {
                points.push_back({point.x, point.y});
            }
        }
    }
    acutPrintf(L"%s (%s)\n", system.GetSystemName(), FunctionName(system));
    for (const std::string& line : PolygonLines(count, points)) {
        PrintLine(line);
    }
}

bool PrintStatistics() {
    for (const System::CGisSystem* const pSystem : Systems()) {
        if (pSystem->GetTopologyType() == TopologyPolygon) {
            PrintPolygons(*pSystem);
        }
    }
    return ForEachNetwork([](const System::CGisSystem& system, const SystemNetwork& network) {
        acutPrintf(L"%s (%s)\n", system.GetSystemName(), FunctionName(system));
        for (const std::string& line : StatisticsLines(ComputeStatistics(network.Geometry()))) {
            PrintLine(line);
        }
    });
}

bool PrintFindings() {
    return ForEachNetwork([](const System::CGisSystem& system, const SystemNetwork& network) {
        const CheckResult result = CheckNetwork(network.Geometry());
        for (const Finding& finding : result.findings) {
            PrintLine(FindingText(finding, network));
        }
        acutPrintf(L"%s (%s)\n", system.GetSystemName(), CheckSummary(result));
    });
}

bool ListSystems() {
    const System::CGisSystem* const pActive = System::CSystemManager::Instance()->GetActiveSystem();
    for (const System::CGisSystem* const pSystem : Systems()) {
        acutPrintf(L"%c %s (%s)%s\n", pSystem == pActive ? L'*' : L' ', pSystem->GetSystemName(),
                   FunctionName(*pSystem), pSystem->GetVisibility() ? CString() : Text(Msg::IsOff));
    }
    if (Systems().empty()) {
        acutPrintf(L"%s\n", Text(Msg::NoSystems));
    }
    return true;
}

bool ActivateSystem() {
    const CString name = acedAskText(Text(Msg::SystemName)).value_or(CString());
    System::CSystemManager& systems = *System::CSystemManager::Instance();
    System::CGisSystem* const pSystem = systems.GetSystemByName(name);
    if (!pSystem) {
        return Refuse(Text(Msg::UnknownSystem, name));
    }
    systems.SetSystemActive(pSystem);
    acutPrintf(L"%s\n", Text(Msg::IsActive, pSystem->GetSystemName()));
    return true;
}

constexpr NetworkCommand kCommands[] = {
    {L"NETWORK_IMPORT", 900101, 900102, ImportNetwork},
    {L"NETWORK_STATS", 900103, 900104, PrintStatistics},
    {L"NETWORK_CHECK", 900105, 900106, PrintFindings},
    {L"SYSTEM_LIST", 900107, 900108, ListSystems},
    {L"SYSTEM_ACTIVATE", 900109, 900110, ActivateSystem},
};

/// Null if the id is not one of these.
const NetworkCommand* FindCommand(const wchar_t* lpszCommandId) {
    const CString id = OwnCommandId(lpszCommandId);
    for (const NetworkCommand& entry : kCommands) {
        if (id == entry.id) {
            return &entry;
        }
    }
    return nullptr;
}

} // namespace

std::span<const NetworkCommand> NetworkCommands() {
    return kCommands;
}

boost::shared_ptr<Workspace::CExecutorReturnValue>
CNetworkExecutor::Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition*,
                          Workspace::CWsTreeItemData*) {
    auto result = Workspace::NeutralReturnValue();
    if (const NetworkCommand* const pCommand = FindCommand(lpszCommandId)) {
        CommandScope::Run(pCommand->id, [&] {
            const bool hasDrawing = acdbHostApplicationServices()->workingDatabase() != nullptr;
            const bool isDone = hasDrawing ? pCommand->run() : Refuse(Text(Msg::NoDrawing));
            result->m_nStatus = isDone ? 1 : 0;
        });
    }
    return result;
}

} // namespace Orvane::Network
