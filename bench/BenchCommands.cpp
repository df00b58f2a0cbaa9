// Command look-up compared with bare containers, a disabled trace site compared with the one call
// it makes, and an order through the command runner compared with a bare execution.
#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

#include "platform/arx/ApDocManager.h"
#include "siblings/logging/LogEngine.h"
#include "workspacecore/commands/WsCommandRegistry.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/core/WsOrder.h"
#include "workspacecore/trace/Trace.h"

namespace {

using namespace Orvane::Workspace;

std::vector<std::wstring> Ids(int count) {
    std::vector<std::wstring> ids;
    for (int i = 0; i < count; ++i) {
        ids.push_back(FormatText(L"COMMAND_%d_EDIT", i * 7919 % count));
    }
    return ids;
}

CWsCommandRegistry Registry(const std::vector<std::wstring>& ids, int groups = 23) {
    CWsCommandRegistry registry;
    int number = 0;
    for (const std::wstring& id : ids) {
        boost::shared_ptr<CWsCommand> command(new CWsCommand);
        command->SetId(id.c_str());
        command->SetCmdGroup(static_cast<enmCommandGroup>(1 + number++ % groups));
        command->SetWsItemTypes(WsItemSystem);
        registry.AddWsCommand(command);
    }
    return registry;
}

void BM_ById_Registry(benchmark::State& state) {
    const auto ids = Ids(10000);
    const CWsCommandRegistry registry = Registry(ids);
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(registry.GetWsCommandById(ids[next].c_str()).get());
        next = next + 1 == ids.size() ? 0 : next + 1;
    }
}
BENCHMARK(BM_ById_Registry);

void BM_ById_BareMap(benchmark::State& state) {
    const auto ids = Ids(10000);
    std::map<std::wstring, boost::shared_ptr<CWsCommand>, std::less<>> map;
    for (const std::wstring& id : ids) {
        map.emplace(id, new CWsCommand);
    }
    std::size_t next = 0;
    for (auto _ : state) {
        const boost::shared_ptr<CWsCommand> found = map.find(ids[next].c_str())->second;
        benchmark::DoNotOptimize(found.get());
        next = next + 1 == ids.size() ? 0 : next + 1;
    }
}
BENCHMARK(BM_ById_BareMap);

/// The group keeps its 100 commands as the registry grows.
void BM_ByGroup(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const CWsCommandRegistry registry = Registry(Ids(count), count / 100);
    for (auto _ : state) {
        benchmark::DoNotOptimize(registry.GetWsCommandByGroup(
            CommandGroupAdd, static_cast<Orvane::enmTopologyType>(-1), 0, WsItemSystem, L""));
    }
}
BENCHMARK(BM_ByGroup)->Arg(1000)->Arg(10000)->Arg(100000);

/// A command that does nothing, on an unchanged drawing.
class Idle final : public IWsCommandExecutor {
public:
    boost::shared_ptr<CExecutorReturnValue>
    Execute(const wchar_t*, Orvane::Query::CQueryDefinition*, CWsTreeItemData*) override {
        return m_result;
    }
    boost::shared_ptr<CExecutorReturnValue> m_result{
        new CExecutorReturnValue(1, L"", L"", L"", L"", -1, L"", Orvane::EntityNone)};
};

CWsCommandManager& WithIdleCommand() {
    static Idle executor;
    static CWsCommandManager& commands = [&]() -> CWsCommandManager& {
        CWsManager& workspace = *CWsManager::Instance();
        acDocManagerPtr()->newDocument();
        const boost::shared_ptr<CWsCommand> command(new CWsCommand);
        command->SetId(L"IDLE");
        command->SetCmdExecutor(&executor);
        workspace.RegisterWsCommand(command);
        return *workspace.CmdMgr();
    }();
    return commands;
}

/// An order through the runner may take at most 2 microseconds longer than a bare execution.
void BM_Command_Runner(benchmark::State& state) {
    WithIdleCommand();
    const CommandOrder order = MakeCommandOrder({L"IDLE", OrderOrigin::Timer});
    if (acedRunner().Run(order) != CommandOutcome::Done) {
        state.SkipWithError("the command does not run");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(acedRunner().Run(order));
    }
}
BENCHMARK(BM_Command_Runner);

void BM_Command_Execute(benchmark::State& state) {
    CWsCommandManager& commands = WithIdleCommand();
    for (auto _ : state) {
        benchmark::DoNotOptimize(commands.Execute(L"IDLE", nullptr, nullptr).get());
    }
}
BENCHMARK(BM_Command_Execute);

void BM_TraceOff_Site(benchmark::State& state) {
    const wchar_t* text = L"a text that is not looked at";
    for (auto _ : state) {
        WS_TRACE_VALUE("name", text);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_TraceOff_Site);

void BM_TraceOff_OneCall(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(Orvane::CLogEngine::GetLoggingOnOff());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_TraceOff_OneCall);

} // namespace

BENCHMARK_MAIN();
