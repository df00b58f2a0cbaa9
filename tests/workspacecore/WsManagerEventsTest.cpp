#include <functional>
#include <gtest/gtest.h>
#include <sstream>

#include "platform/arx/ApDocManager.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/data/DataConfiguration.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/logging/LogEngine.h"
#include "siblings/networkcore/LinearDataManager.h"
#include "siblings/networkcore/TopologyMultiStorage.h"
#include "siblings/networkcore/TopologyStorage.h"
#include "tests/support/ListenerLog.h"
#include "tests/support/TestHost.h"
#include "workspacecore/commands/CommandScope.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Workspace {
namespace {

struct EventRow {
    std::function<void(CWsManager&)> raise;
    const char* heard;
    bool stopsWhenClosing;
    const char* traced; ///< with "{" and "}" for a scope, and "@" for an address
};

class EventsTest : public testing::Test {
protected:
    /// Every event once, with objects where there are any.
    std::vector<EventRow> AllEvents() {
        AcApDocument* const pDoc = m_pDoc;
        AcDbDatabase* const pDb = pDoc->database();
        System::CGisSystem* const pSys = m_pSystem;
        return {
            {[=](auto& m) { m.Raise_OnBeginSaveAcadDocument(pDb, L"a.dwg"); }, "BeginSave a.dwg;",
             false, "a.dwg|"},
            {[=](auto& m) { m.Raise_OnSaveCompletedAcadDocument(pDb, L"a.dwg"); }, "Saved a.dwg;",
             false, "a.dwg|"},
            {[=](auto& m) { m.Raise_OnAcadDocumentBecomeCurrent(pDoc); }, "Current Drawing1.dwg;",
             true, "{|pActivatedDoc = '@'|}|"},
            {[=](auto& m) { m.Raise_OnAcadDocumentToBeDeactivated(pDoc); },
             "ToBeDeactivated Drawing1.dwg;", true, ""},
            {[=](auto& m) { m.Raise_OnAcadDocumentToBeDestroyed(pDoc); },
             "ToBeDestroyed Drawing1.dwg;", true, "{|pDocToDestroy = '@'|}|"},
            {[=](auto& m) { m.Raise_OnAcadDocumentDestroyed(L"a.dwg"); }, "Destroyed a.dwg;", true,
             "{|lpszFileName = 'a.dwg'|}|"},
            {[=](auto& m) { m.Raise_OnSystemChanged(pSys); }, "Changed Water;", false,
             "{|Water|}|"},
            {[=](auto& m) { m.Raise_OnSystemBecomeActive(pSys); }, "Active Water;", true,
             "{|pSysToBecomeActive = '@'|Water|}|"},
            {[=](auto& m) { m.Raise_OnSystemBecomeInactive(pSys); }, "Inactive Water;", false, ""},
            {[=](auto& m) { m.Raise_OnSystemBecomeHidden(pSys); }, "Hidden Water;", false,
             "Water|"},
            {[=](auto& m) { m.Raise_OnSystemBecomeShown(pSys); }, "Shown Water;", false, "Water|"},
            {[=](auto& m) { m.Raise_OnBeforeSystemDelete(pSys); }, "BeforeDelete Water;", false,
             "{|Water|}|"},
            {[=](auto& m) { m.Raise_OnAfterSystemDelete(); }, "AfterDelete;", false, "Marker|"},
            {[=](auto& m) { m.Raise_OnNewSystemCreated(pSys); }, "Created Water;", false,
             "{|pNewSystem = '@'|Water|}|"},
            {[=](auto& m) { m.Raise_OnNewConfigDefinitionAdded(pSys, L"t", L"g"); },
             "DefinitionAdded Water t g;", false,
             "lpszRepositoryTag = 't'|lpszNewDefinitionGuid = 'g'|"},
            {[=](auto& m) { m.Raise_OnTemporaryDataRefreshed(); }, "TemporaryData;", true, ""},
            {[=](auto& m) { m.Raise_OnBeforeConfigDefinitionDeleted(pSys, L"t", L"g"); },
             "DefinitionToGo Water t g;", false,
             "lpszRepositoryTag = 't'|lpszDefinitionGuidToBeDeleted = 'g'|"},
            {[=](auto& m) { m.Raise_OnConfigDefinitionChanged(pSys, L"t", L"g"); },
             "DefinitionChanged Water t g;", false,
             "lpszRepositoryTag = 't'|lpsChangedDefinitionGuid = 'g'|"},
            {[=](auto& m) { m.Raise_OnConfigBecomeDefault(pSys, L"t", L"g"); },
             "Default Water t g;", false,
             "lpszRepositoryTag = 't'|lpszDefaultDefinitionGuid = 'g'|"},
            {[=](auto& m) { m.Raise_OnBeforeCommandActivated(L"ID"); }, "BeforeCommand ID;", true,
             "{|ID|}|"},
            {[=](auto& m) { m.Raise_OnAfterCommandCompleted(L"ID"); }, "AfterCommand ID;", true,
             "{|ID|}|"},
            {[=](auto& m) { m.Raise_OnAfterGeneralSettingsChanged(); }, "Settings;", false,
             "Marker|"},
        };
    }
    std::string Heard(const std::function<void(CWsManager&)>& raise) {
        m_log.Take();
        raise(*CWsManager::Instance());
        return m_log.Take();
    }
    /// Trace texts since the last call, with pointers as "@".
    std::string Traced() {
        std::istringstream lines(m_host.Support().Read("trace.log").substr(m_nTraceSeen));
        m_nTraceSeen = m_host.Support().Read("trace.log").size();
        std::string texts;
        for (std::string line; std::getline(lines, line);) {
            std::string text = line.substr(line.find("], ", line.find("): [")) + 3);
            if (const auto at = text.find("'0x"); at != std::string::npos) {
                text.replace(at, text.rfind('\'') - at, "'@");
            }
            texts += (text.find("tering function") != std::string::npos   ? "{"
                      : text.find("xiting function") != std::string::npos ? "}"
                                                                          : text) +
                     "|";
        }
        return texts;
    }

    TestHost m_host;
    AcApDocument* m_pDoc = acDocManagerPtr()->newDocument(L"Drawing1.dwg");
    System::CGisSystem* m_pSystem =
        System::CSystemManager::Instance()->CreateSystem(L"Water", TopologyLine, 1);
    EventLog m_log;
    std::size_t m_nTraceSeen = 0;
};

TEST_F(EventsTest, EveryEventReachesListenersInOrderAndSomeFallSilentAtTheEnd) {
    ListenerLog first(m_log, "1");
    ListenerLog second(m_log, "2");
    CWsManager::Instance()->RegisterWsListener(&first);
    CWsManager::Instance()->RegisterWsListener(&second);
    for (const EventRow& row : AllEvents()) {
        EXPECT_EQ(Heard(row.raise), std::string("1") + row.heard + "2" + row.heard);
    }
    EXPECT_EQ(CWsManager::Instance()->Raise_OnBeforeAcadWillClose(), 0);
    for (const EventRow& row : AllEvents()) {
        EXPECT_EQ(Heard(row.raise),
                  row.stopsWhenClosing ? "" : std::string("1") + row.heard + "2" + row.heard);
    }
}

TEST_F(EventsTest, TheFirstVetoEndsTheAsking) {
    ListenerLog first(m_log, "1");
    ListenerLog second(m_log, "2");
    ListenerLog third(m_log, "3");
    second.m_nVeto = 7;
    for (ListenerLog* notes : {&first, &second, &third}) {
        CWsManager::Instance()->RegisterWsListener(notes);
    }
    EXPECT_EQ(CWsManager::Instance()->Raise_OnBeforeAcadWillClose(), 1);
    EXPECT_EQ(m_log.Take(), "1BeforeClose;2BeforeClose;");
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnTemporaryDataRefreshed(); }),
              "1TemporaryData;2TemporaryData;3TemporaryData;");
    second.m_nVeto = 0;
    EXPECT_EQ(CWsManager::Instance()->Raise_OnBeforeAcadWillClose(), 0);
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnTemporaryDataRefreshed(); }), "");
}

TEST_F(EventsTest, ListenersAreUniqueAndKeepTheirOrder) {
    ListenerLog first(m_log, "1");
    ListenerLog second(m_log, "2");
    ListenerLog third(m_log, "3");
    for (ListenerLog* notes : {&first, &second, &third, &first}) {
        CWsManager::Instance()->RegisterWsListener(notes);
    }
    const auto raise = [](CWsManager& m) { m.Raise_OnAfterSystemDelete(); };
    EXPECT_EQ(Heard(raise), "1AfterDelete;2AfterDelete;3AfterDelete;");
    CWsManager::Instance()->UnregisterWsListener(&second);
    CWsManager::Instance()->UnregisterWsListener(&second);
    EXPECT_EQ(Heard(raise), "1AfterDelete;3AfterDelete;");
    CWsManager::Instance()->RegisterWsListener(&second);
    EXPECT_EQ(Heard(raise), "1AfterDelete;3AfterDelete;2AfterDelete;");
}

TEST_F(EventsTest, AnExceptionEndsTheDeliveryAndEventsNestDepthFirst) {
    ListenerLog first(m_log, "1");
    ListenerLog second(m_log, "2");
    CWsManager::Instance()->RegisterWsListener(&first);
    CWsManager::Instance()->RegisterWsListener(&second);
    m_log.on["1Active"] = [] { CWsManager::Instance()->Raise_OnAfterGeneralSettingsChanged(); };
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnSystemBecomeActive(nullptr); }),
              "1Active none;1Settings;2Settings;2Active none;");
    m_log.on["1Active"] = [] { throw std::runtime_error("listener"); };
    EXPECT_THROW(CWsManager::Instance()->Raise_OnSystemBecomeActive(m_pSystem), std::runtime_error);
    EXPECT_EQ(m_log.Take(), "1Active Water;");
}

TEST_F(EventsTest, ACommandHasItsEventsOnceHoweverItEnds) {
    struct Log final : IWsListener {
        void OnBeforeCommandActivated(const wchar_t* id) override { m_log += CString(id) + L"("; }
        void OnAfterCommandCompleted(const wchar_t* id) override {
            m_log += CString(L")");
            if (CString(id) == L"BAD") {
                throw std::runtime_error("listener");
            }
        }
        CString m_log;
    } log;
    CWsManager::Instance()->RegisterWsListener(&log);
    const auto nothing = [] {};
    const struct {
        const wchar_t* id;
        std::function<void()> work;
        const wchar_t* log;
        const char* thrown;
    } cases[] = {
        {L"A", nothing, L"A()", ""},
        {L"A", [&] { CommandScope::Run(L"A", nothing); }, L"A()", ""},
        {L"A", [&] { CommandScope::Run(L"B", [&] { CommandScope::Run(L"A", nothing); }); },
         L"A(B(A()))", ""},
        {L"A", [] { throw std::runtime_error("work"); }, L"A()", "work"},
        {L"BAD", nothing, L"BAD()", "listener"},
        {L"BAD", [] { throw std::runtime_error("work"); }, L"BAD()", "work"},
    };
    for (const auto& row : cases) {
        log.m_log.Empty();
        std::string thrown;
        try {
            CommandScope::Run(row.id, row.work);
        } catch (const std::runtime_error& error) {
            thrown = error.what();
        }
        EXPECT_EQ(log.m_log.Str(), row.log);
        EXPECT_EQ(thrown, row.thrown);
    }
    CWsManager::Instance()->UnregisterWsListener(&log);
}

TEST_F(EventsTest, AListenerThatBreaksItsContractLeadsNobodyIntoFreedMemory) {
    ListenerLog first(m_log, "1");
    ListenerLog second(m_log, "2");
    std::vector<std::unique_ptr<ListenerLog>> late;
    CWsManager::Instance()->RegisterWsListener(&first);
    CWsManager::Instance()->RegisterWsListener(&second);
    m_log.on["1Active"] = [&] {
        for (int i = 0; i < 100; ++i) {
            late.push_back(std::make_unique<ListenerLog>(m_log, "late"));
            CWsManager::Instance()->RegisterWsListener(late.back().get());
        }
    };
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnSystemBecomeActive(nullptr); }),
              "1Active none;2Active none;");
    m_log.on["1Active"] = [&] {
        for (const auto& listener : late) {
            CWsManager::Instance()->UnregisterWsListener(listener.get());
        }
    };
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnSystemBecomeActive(nullptr); }),
              "1Active none;2Active none;");
}

TEST_F(EventsTest, ABecomingDocumentSetsThePrecisionOfPoints) {
    auto* const pData = Data::CDataConfiguration::Instance();
    const int precision = CModuleConfiguration::Instance()->GetNodeIndexCoorPrecision();
    pData->SetFloatToStrPrecision_Point(precision + 5);
    CWsManager::Instance()->Raise_OnAcadDocumentBecomeCurrent(nullptr);
    EXPECT_EQ(pData->GetFloatToStrPrecision_Point(), precision + 5);
    CWsManager::Instance()->Raise_OnAcadDocumentBecomeCurrent(m_pDoc);
    EXPECT_EQ(pData->GetFloatToStrPrecision_Point(), precision);
    pData->SetFloatToStrPrecision_Point(precision + 5);
    CWsManager::Instance()->Raise_OnBeforeAcadWillClose();
    CWsManager::Instance()->Raise_OnAcadDocumentBecomeCurrent(m_pDoc);
    EXPECT_EQ(pData->GetFloatToStrPrecision_Point(), precision + 5);
}

TEST_F(EventsTest, ActivationRefreshesAndLoadsBeforeAnyListenerHears) {
    auto& linear = *Data::CLinearDataManager::Instance();
    auto& topology = *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    auto* const pOther =
        System::CSystemManager::Instance()->CreateSystem(L"Other", TopologyLine, 1);
    ListenerLog listener(m_log, "");
    CWsManager::Instance()->RegisterWsListener(&listener);
    const auto addNode = [&](System::CGisSystem& system) {
        return WideToUtf8(topology.GetNodeById(topology.AddNode(system, {})).GetName().View());
    };

    CWsManager::Instance()->Raise_OnSystemBecomeActive(nullptr);
    m_pSystem->SetCounters({{L"node", 41}});
    m_host.Support().Write("LinearData.ini", "[bedding]\nlabel=Bedding\ntype=text\n");
    m_host.Support().Write("NameRules.ini", "[line.1]\nnode=N-%d\n");
    const std::size_t definitions = linear.GetLinearDataDefinitions().size();
    std::string heard;
    m_log.on["Active"] = [&] {
        heard = addNode(*m_pSystem) + (linear.GetLinearDataDefinitions().size() == definitions
                                           ? " old definitions"
                                           : " new definitions");
    };
    CWsManager::Instance()->Raise_OnSystemBecomeActive(m_pSystem);
    EXPECT_EQ(heard, "N-42 new definitions");
    m_log.on["Active"] = nullptr;
    EXPECT_EQ(m_pSystem->GetCounters().at(L"node"), 41) << "the counters in use are the topology's";
    CWsManager::Instance()->Raise_OnSystemBecomeInactive(pOther);
    CWsManager::Instance()->Raise_OnSystemBecomeInactive(m_pSystem);
    EXPECT_EQ(m_pSystem->GetCounters().at(L"node"), 42);

    CWsManager::Instance()->Raise_OnBeforeAcadWillClose();
    m_host.Support().Write("NameRules.ini", "[line.1]\nnode=LATE-%d\n");
    CWsManager::Instance()->Raise_OnSystemBecomeActive(m_pSystem);
    EXPECT_EQ(addNode(*m_pSystem).substr(0, 2), "N-") << "nothing is refreshed at the end";
}

TEST_F(EventsTest, TracesOfEveryEvent) {
    CLogEngine::SetLogging(1, m_host.Support().Native("trace.log"));
    CWsManager::Instance();
    Traced();
    for (const EventRow& row : AllEvents()) {
        row.raise(*CWsManager::Instance());
        EXPECT_EQ(Traced(), row.traced) << row.heard;
    }

    m_pSystem = nullptr;
    for (const std::size_t i : {std::size_t{6}, std::size_t{9}, std::size_t{14}, std::size_t{18}}) {
        AllEvents()[i].raise(*CWsManager::Instance());
    }
    EXPECT_EQ(Traced(), "{|}|") << "a null system silences its traces";
    CWsManager::Instance()->Raise_OnSystemBecomeActive(nullptr);
    EXPECT_EQ(Traced(), "{|pSysToBecomeActive = '0'|Failed verification:  "
                        "'pSysToBecomeActive'|}|");

    CWsManager::Instance()->Raise_OnBeforeAcadWillClose();
    CWsManager::Instance()->Raise_OnSystemBecomeActive(nullptr);
    CWsManager::Instance()->Raise_OnBeforeCommandActivated(L"ID");
    EXPECT_EQ(Traced(), "CAD will close|{|pSysToBecomeActive = '0'|}|{|}|");
}

} // namespace
} // namespace Orvane::Workspace
