#include "siblings/giscore/systems/SystemManager.h"

#include <functional>
#include <gtest/gtest.h>

#include "platform/arx/ApDocManager.h"
#include "siblings/giscore/data/DataConfiguration.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "tests/support/TestHost.h"

using namespace Orvane;
using namespace Orvane::System;

namespace {

/// Writes the events down, with the drawing's active system at that moment.
class Observer final : public ISystemEvents {
public:
    Observer() { CGisEvents::Instance()->Register(this); }
    ~Observer() { CGisEvents::Instance()->Unregister(this); }
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

    void OnSystemChanged(CGisSystem* p) override { Note("changed", p); }
    void OnSystemBecomeActive(CGisSystem* p) override { Note("active", p); }
    void OnSystemBecomeInactive(CGisSystem* p) override {
        Note("inactive", p);
        if (m_onInactive) {
            m_onInactive();
        }
    }
    void OnSystemBecomeHidden(CGisSystem* p) override { Note("hidden", p); }
    void OnSystemBecomeShown(CGisSystem* p) override { Note("shown", p); }
    void OnBeforeSystemDelete(CGisSystem* p) override { Note("before delete", p); }
    void OnAfterSystemDelete() override { m_log += "after delete;"; }
    void OnNewSystemCreated(CGisSystem* p) override { Note("new", p); }
    void OnDropSystemContent(CGisSystem* p) override { Note("drop", p); }

    std::string Take() { return std::exchange(m_log, {}); }
    std::function<void()> m_onInactive;

private:
    static std::string Name(const CGisSystem* p) {
        return p ? WideToUtf8(p->GetSystemName().View()) : "none";
    }
    void Note(const char* event, const CGisSystem* p) {
        m_log += event + (" " + Name(p)) + " [" +
                 Name(CSystemManager::Instance()->GetActiveSystem()) + "];";
    }
    std::string m_log;
};

/// Every digit as "x".
std::string Shape(const CString& guid) {
    std::string shape = WideToUtf8(guid.View());
    for (char& c : shape) {
        c = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') ? 'x' : c;
    }
    return shape;
}

class SystemManagerTest : public testing::Test {
protected:
    SystemManagerTest() : m_pDoc(acDocManagerPtr()->newDocument(L"a.dwg")) {}
    ~SystemManagerTest() override {
        while (acDocManagerPtr()->documentCount() > 0) {
            acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
        }
    }
    static CSystemManager& Manager() { return *CSystemManager::Instance(); }
    CGisSystem* Create(const wchar_t* name) {
        return Manager().CreateSystem(name, TopologyLine, 1, &m_reason);
    }
    TestHost m_host;
    AcApDocument* m_pDoc;
    CString m_reason;
};

} // namespace

TEST_F(SystemManagerTest, ANewSystemIsKnownByEverythingItHas) {
    Observer observer;
    CGisSystem* const pA = Create(L"  Ä  ");
    ASSERT_NE(pA, nullptr);
    EXPECT_EQ(observer.Take(), "new Ä [none];");
    CGisSystem* const pB = Manager().CreateSystem(L"b", TopologyPolygon, 5);
    EXPECT_EQ(pA->GetSystemName().Str(), L"Ä");
    EXPECT_EQ(Manager().GetSystemByName(L"ä"), pA);
    EXPECT_EQ(Manager().GetSystemById(pB->GetSystemId()), pB);
    EXPECT_EQ(Manager().GetSystemByGuid(pB->GetGuid()), pB);
    EXPECT_EQ(Manager().GetSystemById(0), nullptr);
    EXPECT_EQ(Manager().GetSystemByGuid(L""), nullptr);
    EXPECT_EQ(pB->GetSystemFunction(), 0); // polygons have no functions
    EXPECT_EQ(pB->GetVisibility(), 1);
    EXPECT_EQ(pB->GetDatabase(), m_pDoc->database());
    EXPECT_EQ(Manager().GetSystems()->GetSystemList(), (std::vector<CGisSystem*>{pA, pB}));
    EXPECT_NE(pA->GetGuid(), pB->GetGuid());
    EXPECT_EQ(Shape(pA->GetGuid()), "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx");
    EXPECT_EQ(pA->GetGuid().GetAt(14), L'4');
}

TEST_F(SystemManagerTest, ASystemThatCannotBeSaysWhy) {
    Create(L"Water");
    struct Case {
        const wchar_t* name;
        enmTopologyType type;
        int function;
        const wchar_t* reason;
    };
    const Case cases[] = {
        {L"", TopologyLine, 1, L"A system needs a name."},
        {L" \t", TopologyLine, 1, L"A system needs a name."},
        {L"WATER", TopologyPoint, 0, L"The drawing already has a system \"Water\"."},
        {L"x", static_cast<enmTopologyType>(3), 1, L"The configuration has no topology 3."},
        {L"x", TopologyLine, 0, L"The topology has no function 0."},
        {L"x", TopologyLine, 99, L"The topology has no function 99."},
    };
    Observer observer;
    for (const Case& c : cases) {
        EXPECT_EQ(Manager().CreateSystem(c.name, c.type, c.function, &m_reason), nullptr);
        EXPECT_EQ(WideToUtf8(m_reason.View()), WideToUtf8(c.reason));
    }
    EXPECT_EQ(observer.Take(), "");
    EXPECT_EQ(Manager().GetSystems()->GetCount(), 1);
}

TEST_F(SystemManagerTest, RenamingKeepsNamesUnique) {
    CGisSystem* const pA = Create(L"a");
    Create(L"b");
    Observer observer;
    EXPECT_EQ(Manager().RenameSystem(pA, L"B", &m_reason), 0);
    EXPECT_NE(m_reason.Find(L"\"b\""), -1);
    EXPECT_EQ(Manager().RenameSystem(pA, L" a "), 1);
    EXPECT_EQ(observer.Take(), ""); // nothing has changed
    EXPECT_EQ(Manager().RenameSystem(pA, L"A"), 1);
    EXPECT_EQ(observer.Take(), "changed A [none];");
    EXPECT_EQ(Manager().RenameSystem(nullptr, L"c"), 0);
}

TEST_F(SystemManagerTest, ActivationTellsTheOldSystemFirstAndOnlyAChange) {
    CGisSystem* const pA = Create(L"a");
    CGisSystem* const pB = Create(L"b");
    Observer observer;
    Manager().SetSystemActive(pA);
    Manager().SetSystemActive(pA);
    EXPECT_EQ(observer.Take(), "active a [a];");
    Manager().SetSystemActive(pB);
    EXPECT_EQ(observer.Take(), "inactive a [b];active b [b];");
    EXPECT_NE(pB->GetActive(), 0);
    EXPECT_EQ(pA->GetActive(), 0);
    Manager().SetSystemActive(nullptr);
    EXPECT_EQ(observer.Take(), "inactive b [none];active none [none];");
}

TEST_F(SystemManagerTest, AnObserverMayActivateAnotherSystem) {
    CGisSystem* const pA = Create(L"a");
    CGisSystem* const pB = Create(L"b");
    CGisSystem* const pC = Create(L"c");
    Manager().SetSystemActive(pA);
    Observer observer;
    observer.m_onInactive = [&] {
        observer.m_onInactive = nullptr;
        Manager().SetSystemActive(pC);
    };
    Manager().SetSystemActive(pB);
    EXPECT_EQ(observer.Take(), "inactive a [b];inactive b [c];active c [c];");
}

TEST_F(SystemManagerTest, DeletionGoesStepByStep) {
    CGisSystem* const pA = Create(L"a");
    CGisSystem* const pB = Create(L"b");
    const int idOfB = pB->GetSystemId();
    Manager().SetSystemActive(pB);
    Observer observer;
    EXPECT_EQ(Manager().DeleteSystem(pA), 1);
    EXPECT_EQ(observer.Take(), "before delete a [b];drop a [b];after delete;");
    EXPECT_EQ(Manager().DeleteSystem(pB), 1);
    EXPECT_EQ(observer.Take(), "before delete b [b];inactive b [none];active none [none];"
                               "drop b [none];after delete;");
    EXPECT_EQ(Manager().DeleteSystem(nullptr), 0);
    EXPECT_GT(Create(L"b")->GetSystemId(), idOfB);
}

TEST_F(SystemManagerTest, VisibilityIsToldWhenItChanges) {
    CGisSystem* const pA = Create(L"a");
    Observer observer;
    Manager().SetSystemVisible(pA);
    Manager().SetSystemInvisible(pA);
    Manager().SetSystemInvisible(pA);
    Manager().SetSystemVisible(pA);
    EXPECT_EQ(observer.Take(), "hidden a [none];shown a [none];");
    EXPECT_EQ(Manager().SetSystemVisible(nullptr), 0);
}

TEST_F(SystemManagerTest, EachDrawingHasItsOwnSystems) {
    CGisSystem* const pA = Create(L"a");
    Manager().SetSystemActive(pA);
    AcApDocument* const pOther = acDocManagerPtr()->newDocument(L"b.dwg");
    EXPECT_EQ(Manager().GetActiveSystem(), nullptr);
    EXPECT_EQ(Manager().GetSystemByName(L"a"), nullptr);
    CGisSystem* const pOwn = Create(L"a");
    ASSERT_NE(pOwn, nullptr);
    EXPECT_EQ(pOwn->GetSystemId(), pA->GetSystemId());
    // One of another drawing becomes active there.
    Manager().SetSystemActive(pOwn);
    acDocManagerPtr()->setCurDocument(m_pDoc);
    Manager().SetSystemActive(nullptr);
    EXPECT_NE(pOwn->GetActive(), 0);
    acDocManagerPtr()->closeDocument(pOther);
    EXPECT_EQ(Manager().GetSystems()->GetSystemList(), (std::vector<CGisSystem*>{pA}));
}

TEST_F(SystemManagerTest, SystemsLiveUntilTheirDocumentIsGone) {
    struct Reactor final : AcApDocManagerReactor {
        Reactor() { acDocManagerPtr()->addReactor(this); }
        ~Reactor() override { acDocManagerPtr()->removeReactor(this); }
        Reactor(const Reactor&) = delete;
        Reactor& operator=(const Reactor&) = delete;
        void documentToBeDestroyed(AcApDocument* pDoc) override {
            count = CSystemManager::Instance()->GetSystems(pDoc->database())->GetCount();
        }
        int count = -1;
    };
    Create(L"a");
    const Reactor reactor; // behind the manager's own
    acDocManagerPtr()->closeDocument(m_pDoc);
    EXPECT_EQ(reactor.count, 1);
}

TEST_F(SystemManagerTest, WithoutADrawingThereIsNothing) {
    acDocManagerPtr()->closeDocument(m_pDoc);
    EXPECT_EQ(Manager().GetSystems(), nullptr);
    EXPECT_EQ(Manager().GetActiveSystem(), nullptr);
    EXPECT_EQ(Manager().GetSystemById(1), nullptr);
    EXPECT_EQ(Manager().SetSystemActive(nullptr), 0);
    EXPECT_EQ(Create(L"a"), nullptr);
    EXPECT_EQ(m_reason.Str(), L"No drawing is open.");
}

TEST_F(SystemManagerTest, NamesOfEntityTypesFollowTheSystem) {
    const CTopologyConfiguration configuration(m_host.Support().Wide("none.ini"), [](int id) {
        CString text;
        text.Format(L"%d", id);
        return text;
    });
    const CGisSystem* const pPoints = Manager().CreateSystem(L"p", TopologyPoint, 0);
    EXPECT_EQ(configuration.GetEntityTypeName(EntityNode, nullptr).Str(), L"900220");
    EXPECT_EQ(configuration.GetEntityTypeName(EntityNode, pPoints).Str(), L"900224");
    EXPECT_EQ(configuration.GetEntityTypeName(EntitySection, pPoints).Str(), L"900221");
    EXPECT_EQ(configuration.GetEntityTypeName(EntityNone, pPoints).Str(), L"");
}

TEST(GisEvents, ObserversMayGoWhileOthersAreTold) {
    struct Leaver final : ISystemEvents {
        void OnTemporaryDataRefreshed() override {
            ++calls;
            CGisEvents::Instance()->Unregister(pOther);
        }
        int calls = 0;
        ISystemEvents* pOther = nullptr;
    };
    Leaver first;
    Leaver second;
    first.pOther = &second;
    second.pOther = &first;
    for (Leaver* pLeaver : {&first, &second, &first}) {
        CGisEvents::Instance()->Register(pLeaver);
    }
    const TestHost host;
    Data::CDataConfiguration::Instance()->RefreshTemporaryDataDefinitions();
    EXPECT_EQ(first.calls, 1);
    EXPECT_EQ(second.calls, 0);
    CGisEvents::Instance()->Unregister(&first);
}
