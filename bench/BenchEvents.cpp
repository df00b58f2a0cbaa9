// Delivery of one event to a thousand listeners, compared with a bare loop of virtual calls and two
// signal libraries.
#include <QObject>
#include <benchmark/benchmark.h>
#include <boost/signals2.hpp>
#include <memory>
#include <vector>

#include "bench/BareLoop.h"
#include "workspacecore/core/WsManager.h"

namespace {

using namespace Orvane;
using namespace Orvane::Workspace;

constexpr int kListeners = 1000;

class Counter final : public IWsListener {
public:
    void OnSystemBecomeShown(System::CGisSystem* pSystem) override {
        m_nCalls += pSystem == nullptr;
    }
    int m_nCalls = 0;
};

std::vector<std::unique_ptr<Counter>> Counters() {
    std::vector<std::unique_ptr<Counter>> counters;
    for (int i = 0; i < kListeners; ++i) {
        counters.push_back(std::make_unique<Counter>());
    }
    return counters;
}

/// The same objects for both loops: their memory layout matters as much as the code.
const std::vector<std::unique_ptr<Counter>>& RegisteredCounters() {
    static const auto counters = [] {
        auto made = Counters();
        for (const auto& counter : made) {
            CWsManager::Instance()->RegisterWsListener(counter.get());
        }
        return made;
    }();
    return counters;
}

void BM_Manager(benchmark::State& state) {
    RegisteredCounters();
    CWsManager* const pManager = CWsManager::Instance();
    for (auto _ : state) {
        pManager->Raise_OnSystemBecomeShown(nullptr);
    }
}
BENCHMARK(BM_Manager)->Repetitions(7)->ReportAggregatesOnly();

void BM_BareLoop(benchmark::State& state) {
    std::vector<IWsListener*> listeners;
    for (const auto& counter : RegisteredCounters()) {
        listeners.push_back(counter.get());
    }
    for (auto _ : state) {
        BareLoop(listeners, nullptr);
    }
}
BENCHMARK(BM_BareLoop)->Repetitions(7)->ReportAggregatesOnly();

void BM_BoostSignals2(benchmark::State& state) {
    const auto counters = Counters();
    boost::signals2::signal<void(System::CGisSystem*)> signal;
    for (const auto& counter : counters) {
        signal.connect([&](System::CGisSystem* p) { counter->OnSystemBecomeShown(p); });
    }
    for (auto _ : state) {
        signal(nullptr);
    }
}
BENCHMARK(BM_BoostSignals2);

class Sender : public QObject {
    Q_OBJECT
signals:
    void Shown(void* pSystem);
};

void BM_QtSignal(benchmark::State& state) {
    const auto counters = Counters();
    Sender sender;
    for (const auto& counter : counters) {
        QObject::connect(&sender, &Sender::Shown, [&](void* p) {
            counter->OnSystemBecomeShown(static_cast<System::CGisSystem*>(p));
        });
    }
    for (auto _ : state) {
        emit sender.Shown(nullptr);
    }
}
BENCHMARK(BM_QtSignal);

} // namespace

#include "BenchEvents.moc"

BENCHMARK_MAIN();
