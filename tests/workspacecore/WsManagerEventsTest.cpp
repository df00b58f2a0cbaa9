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
#include "tests/support/TestHost.h"
#include "workspacecore/commands/CommandScope.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Workspace {
namespace {

/// Notes every event by name and arguments.
class Notes final : public IWsListener {
public:
    Notes(std::string name, std::string& log) : m_name(std::move(name)), m_log(log) {}

    int OnBeforeAcadWillClose() override {
        Note("BeforeClose", {});
        return m_nVeto;
    }
    void OnBeginSaveAcadDocument(AcDbDatabase* p, const wchar_t* t) override {
        Note("BeginSave", {Text(p), Text(t)});
    }
    void OnSaveCompletedAcadDocument(AcDbDatabase* p, const wchar_t* t) override {
        Note("SaveCompleted", {Text(p), Text(t)});
    }
    void OnAcadDocumentBecomeCurrent(AcApDocument* p) override { Note("Current", {Text(p)}); }
    void OnAcadDocumentToBeDeactivated(AcApDocument* p) override {
        Note("ToBeDeactivated", {Text(p)});
    }
    void OnAcadDocumentToBeDestroyed(AcApDocument* p) override { Note("ToBeDestroyed", {Text(p)}); }
    void OnAcadDocumentDestroyed(const wchar_t* t) override { Note("Destroyed", {Text(t)}); }
    void OnSystemChanged(System::CGisSystem* p) override { Note("Changed", {Text(p)}); }
    void OnSystemBecomeActive(System::CGisSystem* p) override {
        Note("Active", {Text(p)});
        if (m_whenActive) {
            m_whenActive();
        }
    }
    void OnSystemBecomeInactive(System::CGisSystem* p) override { Note("Inactive", {Text(p)}); }
    void OnSystemBecomeHidden(System::CGisSystem* p) override { Note("Hidden", {Text(p)}); }
    void OnSystemBecomeShown(System::CGisSystem* p) override { Note("Shown", {Text(p)}); }
    void OnBeforeSystemDelete(System::CGisSystem* p) override { Note("BeforeDelete", {Text(p)}); }
    void OnAfterSystemDelete() override { Note("AfterDelete", {}); }
    void OnNewSystemCreated(System::CGisSystem* p) override { Note("Created", {Text(p)}); }
    void OnNewConfigDefinitionAdded(System::CGisSystem* p, const wchar_t* t,
                                    const wchar_t* g) override {
        Note("DefinitionAdded", {Text(p), Text(t), Text(g)});
    }
    void OnTemporaryDataRefreshed() override { Note("TemporaryData", {}); }
    void OnBeforeConfigDefinitionDeleted(System::CGisSystem* p, const wchar_t* t,
                                         const wchar_t* g) override {
        Note("DefinitionToGo", {Text(p), Text(t), Text(g)});
    }
    void OnConfigDefinitionChanged(System::CGisSystem* p, const wchar_t* t,
                                   const wchar_t* g) override {
        Note("DefinitionChanged", {Text(p), Text(t), Text(g)});
    }
    void OnConfigBecomeDefault(System::CGisSystem* p, const wchar_t* t, const wchar_t* g) override {
        Note("Default", {Text(p), Text(t), Text(g)});
    }
    void OnBeforeCommandActivated(const wchar_t* t) override { Note("BeforeCommand", {Text(t)}); }
    void OnAfterCommandCompleted(const wchar_t* t) override { Note("AfterCommand", {Text(t)}); }
    void OnAfterGeneralSettingsChanged() override { Note("Settings", {}); }

    int m_nVeto = 0;
    std::function<void()> m_whenActive;

private:
    static std::string Text(const void* pointer) { return pointer ? "object" : "null"; }
    static std::string Text(const wchar_t* text) { return text ? WideToUtf8(text) : "null"; }
    void Note(const char* event, std::initializer_list<std::string> arguments) {
        m_log += m_name + event;
        for (const std::string& argument : arguments) {
            m_log += "," + argument;
        }
        m_log += " ";
    }

    std::string m_name;
    std::string& m_log;
};

/// Raises every event once, with objects where there are any, and gives what reached the
/// listeners.
struct EventRow {
    std::function<void(CWsManager&)> raise;
    std::string heard;
    bool stopsWhenClosing;
};

class EventsTest : public testing::Test {
protected:
    std::vector<EventRow> AllEvents() {
        AcApDocument* const pDoc = m_pDoc;
        AcDbDatabase* const pDb = pDoc->database();
        System::CGisSystem* const pSys = m_pSystem;
        return {
            {[=](auto& m) { m.Raise_OnBeginSaveAcadDocument(pDb, L"a.dwg"); },
             "BeginSave,object,a.dwg ", false},
            {[=](auto& m) { m.Raise_OnSaveCompletedAcadDocument(pDb, L"a.dwg"); },
             "SaveCompleted,object,a.dwg ", false},
            {[=](auto& m) { m.Raise_OnAcadDocumentBecomeCurrent(pDoc); }, "Current,object ", true},
            {[=](auto& m) { m.Raise_OnAcadDocumentToBeDeactivated(pDoc); },
             "ToBeDeactivated,object ", true},
            {[=](auto& m) { m.Raise_OnAcadDocumentToBeDestroyed(pDoc); }, "ToBeDestroyed,object ",
             true},
            {[=](auto& m) { m.Raise_OnAcadDocumentDestroyed(L"a.dwg"); }, "Destroyed,a.dwg ", true},
            {[=](auto& m) { m.Raise_OnSystemChanged(pSys); }, "Changed,object ", false},
            {[=](auto& m) { m.Raise_OnSystemBecomeActive(pSys); }, "Active,object ", true},
            {[=](auto& m) { m.Raise_OnSystemBecomeInactive(pSys); }, "Inactive,object ", false},
            {[=](auto& m) { m.Raise_OnSystemBecomeHidden(pSys); }, "Hidden,object ", false},
            {[=](auto& m) { m.Raise_OnSystemBecomeShown(pSys); }, "Shown,object ", false},
            {[=](auto& m) { m.Raise_OnBeforeSystemDelete(pSys); }, "BeforeDelete,object ", false},
            {[=](auto& m) { m.Raise_OnAfterSystemDelete(); }, "AfterDelete ", false},
            {[=](auto& m) { m.Raise_OnNewSystemCreated(pSys); }, "Created,object ", false},
            {[=](auto& m) { m.Raise_OnNewConfigDefinitionAdded(pSys, L"t", L"g"); },
             "DefinitionAdded,object,t,g ", false},
            {[=](auto& m) { m.Raise_OnTemporaryDataRefreshed(); }, "TemporaryData ", true},
            {[=](auto& m) { m.Raise_OnBeforeConfigDefinitionDeleted(pSys, L"t", L"g"); },
             "DefinitionToGo,object,t,g ", false},
            {[=](auto& m) { m.Raise_OnConfigDefinitionChanged(pSys, L"t", L"g"); },
             "DefinitionChanged,object,t,g ", false},
            {[=](auto& m) { m.Raise_OnConfigBecomeDefault(pSys, L"t", L"g"); },
             "Default,object,t,g ", false},
            {[=](auto& m) { m.Raise_OnBeforeCommandActivated(L"ID"); }, "BeforeCommand,ID ", true},
            {[=](auto& m) { m.Raise_OnAfterCommandCompleted(L"ID"); }, "AfterCommand,ID ", true},
            {[=](auto& m) { m.Raise_OnAfterGeneralSettingsChanged(); }, "Settings ", false},
        };
    }
    std::string Heard(const std::function<void(CWsManager&)>& raise) {
        m_log.clear();
        raise(*CWsManager::Instance());
        return m_log;
    }
    /// Texts of the trace since the last call, with pointers as "@".
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
    std::string m_log;
    std::size_t m_nTraceSeen = 0;
};

TEST_F(EventsTest, EveryEventReachesListenersInOrderAndSomeFallSilentAtTheEnd) {
    Notes first("1", m_log);
    Notes second("2", m_log);
    CWsManager::Instance()->RegisterWsListener(&first);
    CWsManager::Instance()->RegisterWsListener(&second);
    for (const EventRow& row : AllEvents()) {
        EXPECT_EQ(Heard(row.raise), "1" + row.heard + "2" + row.heard);
    }
    EXPECT_EQ(CWsManager::Instance()->Raise_OnBeforeAcadWillClose(), 0);
    for (const EventRow& row : AllEvents()) {
        EXPECT_EQ(Heard(row.raise), row.stopsWhenClosing ? "" : "1" + row.heard + "2" + row.heard);
    }
}

TEST_F(EventsTest, TheFirstVetoEndsTheAsking) {
    Notes first("1", m_log);
    Notes second("2", m_log);
    Notes third("3", m_log);
    second.m_nVeto = 7;
    for (Notes* notes : {&first, &second, &third}) {
        CWsManager::Instance()->RegisterWsListener(notes);
    }
    EXPECT_EQ(CWsManager::Instance()->Raise_OnBeforeAcadWillClose(), 1);
    EXPECT_EQ(m_log, "1BeforeClose 2BeforeClose ");
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnTemporaryDataRefreshed(); }),
              "1TemporaryData 2TemporaryData 3TemporaryData ");
    second.m_nVeto = 0;
    EXPECT_EQ(CWsManager::Instance()->Raise_OnBeforeAcadWillClose(), 0);
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnTemporaryDataRefreshed(); }), "");
}

TEST_F(EventsTest, ListenersAreUniqueAndKeepTheirOrder) {
    Notes first("1", m_log);
    Notes second("2", m_log);
    Notes third("3", m_log);
    for (Notes* notes : {&first, &second, &third, &first}) {
        CWsManager::Instance()->RegisterWsListener(notes);
    }
    const auto raise = [](CWsManager& m) { m.Raise_OnAfterSystemDelete(); };
    EXPECT_EQ(Heard(raise), "1AfterDelete 2AfterDelete 3AfterDelete ");
    CWsManager::Instance()->UnregisterWsListener(&second);
    CWsManager::Instance()->UnregisterWsListener(&second);
    EXPECT_EQ(Heard(raise), "1AfterDelete 3AfterDelete ");
    CWsManager::Instance()->RegisterWsListener(&second);
    EXPECT_EQ(Heard(raise), "1AfterDelete 3AfterDelete 2AfterDelete ");
}

TEST_F(EventsTest, AnExceptionEndsTheDeliveryAndEventsNestDepthFirst) {
    Notes first("1", m_log);
    Notes second("2", m_log);
    CWsManager::Instance()->RegisterWsListener(&first);
    CWsManager::Instance()->RegisterWsListener(&second);
    first.m_whenActive = [] { CWsManager::Instance()->Raise_OnAfterGeneralSettingsChanged(); };
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnSystemBecomeActive(nullptr); }),
              "1Active,null 1Settings 2Settings 2Active,null ");
    first.m_whenActive = [] { throw std::runtime_error("listener"); };
    m_log.clear();
    EXPECT_THROW(CWsManager::Instance()->Raise_OnSystemBecomeActive(m_pSystem), std::runtime_error);
    EXPECT_EQ(m_log, "1Active,object ");
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
    Notes first("1", m_log);
    Notes second("2", m_log);
    std::vector<std::unique_ptr<Notes>> late;
    CWsManager::Instance()->RegisterWsListener(&first);
    CWsManager::Instance()->RegisterWsListener(&second);
    first.m_whenActive = [&] {
        for (int i = 0; i < 100; ++i) {
            late.push_back(std::make_unique<Notes>("late", m_log));
            CWsManager::Instance()->RegisterWsListener(late.back().get());
        }
    };
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnSystemBecomeActive(nullptr); }),
              "1Active,null 2Active,null ");
    first.m_whenActive = [&] {
        for (const auto& listener : late) {
            CWsManager::Instance()->UnregisterWsListener(listener.get());
        }
    };
    EXPECT_EQ(Heard([&](auto& m) { m.Raise_OnSystemBecomeActive(nullptr); }),
              "1Active,null 2Active,null ");
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
    Notes listener("", m_log);
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
    listener.m_whenActive = [&] {
        heard = addNode(*m_pSystem) + (linear.GetLinearDataDefinitions().size() == definitions
                                           ? " old definitions"
                                           : " new definitions");
    };
    CWsManager::Instance()->Raise_OnSystemBecomeActive(m_pSystem);
    EXPECT_EQ(heard, "N-42 new definitions");
    listener.m_whenActive = nullptr;
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
    const char* const expected[] = {"a.dwg|",
                                    "a.dwg|",
                                    "{|pActivatedDoc = '@'|}|",
                                    "",
                                    "{|pDocToDestroy = '@'|}|",
                                    "{|lpszFileName = 'a.dwg'|}|",
                                    "{|Water|}|",
                                    "{|pSysToBecomeActive = '@'|Water|}|",
                                    "",
                                    "Water|",
                                    "Water|",
                                    "{|Water|}|",
                                    "Marker|",
                                    "{|pNewSystem = '@'|Water|}|",
                                    "lpszRepositoryTag = 't'|lpszNewDefinitionGuid = 'g'|",
                                    "",
                                    "lpszRepositoryTag = 't'|lpszDefinitionGuidToBeDeleted = 'g'|",
                                    "lpszRepositoryTag = 't'|lpsChangedDefinitionGuid = 'g'|",
                                    "lpszRepositoryTag = 't'|lpszDefaultDefinitionGuid = 'g'|",
                                    "{|ID|}|",
                                    "{|ID|}|",
                                    "Marker|"};
    const auto events = AllEvents();
    ASSERT_EQ(events.size(), std::size(expected));
    for (std::size_t i = 0; i < events.size(); ++i) {
        events[i].raise(*CWsManager::Instance());
        EXPECT_EQ(Traced(), expected[i]) << events[i].heard;
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
