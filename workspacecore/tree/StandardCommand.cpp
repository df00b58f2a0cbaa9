#include "workspacecore/tree/StandardCommand.h"

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "workspacecore/tree/RegistrationTarget.h"

namespace Orvane::Workspace {

namespace {

using TopologyDataVector = CWsTopologyDataSet::Vector;

TopologyDataVector ConfiguredTopologies() {
    TopologyDataVector all;
    const auto add = [&](const CTopology& topology, int function) {
        all.push_back(
            CWsTopologyDataSet::Ptr(new CWsTopologyData(topology.GetTopologyType(), function)));
    };
    for (const CTopology& topology :
         CModuleConfiguration::Instance()->GetTopologyConfiguration()->GetTopologyVector()) {
        for (const CTopologyFunction& function : topology.GetTopologyFunctionVector()) {
            add(topology, function.GetId());
        }
        if (!topology.GetHasFunctions()) {
            add(topology, 0);
        }
    }
    return all;
}

} // namespace

void RegisterStandardCommand(const StandardCommand& standard, IWsCommandExecutor* executor,
                             const wchar_t* repositoryTag, enmEntityType entityType,
                             const TopologyDataVector& topologies) {
    boost::shared_ptr<CWsCommand> command(new CWsCommand);
    command->SetId(standard.id);
    command->SetName(CModuleConfiguration::Instance()->GetMsg(standard.nameMessage));
    command->SetCmdGroup(standard.group);
    command->SetTreeCmdBehavior(standard.behavior);
    command->SetWsItemTypes(standard.itemTypes);
    command->SetCmdExecutor(executor);
    command->SetRepositoryTag(repositoryTag);
    command->SetEntityType(entityType);
    RegistrationTarget().RegisterWsCommand(command);
    for (const auto& data : topologies) {
        command->AddWsTopologyData(data);
    }
}

TopologyDataVector StandardTopologies(const TopologyDataVector* given, enmEntityType entityType) {
    TopologyDataVector wanted = given ? *given : ConfiguredTopologies();
    std::erase_if(wanted, [entityType](const CWsTopologyDataSet::Ptr& data) {
        return !data || !CModuleConfiguration::Instance()->DoesETbelongTT(entityType,
                                                                          data->GetTopologyType());
    });
    return wanted;
}

} // namespace Orvane::Workspace
