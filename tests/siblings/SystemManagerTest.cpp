#include "siblings/giscore/systems/SystemManager.h"
#include "platform/arx/ApDocManager.h"
#include "siblings/giscore/data/DataConfiguration.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "tests/support/Rows.h"
#include "tests/support/SystemEventLog.h"
#include "tests/support/TestDrawing.h"
#include "tests/support/TestHost.h"
#include <functional>
#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::System;

namespace {

/// Every digit as "x".
std::string Shape(const CString& guid) {
    std::string shape = WideToUtf8(guid.View());
    for (char& c : shape) {
        c = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') ? 'x' : c;
    }
    return shape;
}

class SystemManagerTest : public TestDrawing {
protected:
    static CSystemManager& Manager() { return *CSystemManager::Instance(); }
    CGisSystem* Create(const wchar_t* name) {
        return Manager().CreateSystem(name, TopologyLine, 1, &m_reason);
    }
    AcApDocument* const m_pDoc = Document();
    CString m_reason;
};

} // namespace

TEST_F(SystemManagerTest, ANewSystemIsKnownByEverythingItHas) {
    SystemEventLog log;
    CGisSystem* const pA = Create(L"  Ä  ");
    ASSERT_NE(pA, nullptr);
    EXPECT_EQ(log.Take(), "new Ä;");
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
    const Rows<const wchar_t*, enmTopologyType, int, const wchar_t*> cases = {
        {L"", TopologyLine, 1, L"A system needs a name."},
        {L" \t", TopologyLine, 1, L"A system needs a name."},
        {L"WATER", TopologyPoint, 0, L"The drawing already has a system \"Water\"."},
        {L"x", static_cast<enmTopologyType>(3), 1, L"The configuration has no topology 3."},
        {L"x", TopologyLine, 0, L"The topology has no function 0."},
        {L"x", TopologyLine, 99, L"The topology has no function 99."},
    };
    SystemEventLog log;
    for (const auto& [name, type, function, reason] : cases) {
        EXPECT_EQ(Manager().CreateSystem(name, type, function, &m_reason), nullptr);
        EXPECT_EQ(WideToUtf8(m_reason.View()), WideToUtf8(reason));
    }
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(Manager().GetSystems()->GetCount(), 1);
}

TEST_F(SystemManagerTest, RenamingKeepsNamesUnique) {
    CGisSystem* const pA = Create(L"a");
    Create(L"b");
    SystemEventLog log;
    EXPECT_EQ(Manager().RenameSystem(pA, L"B", &m_reason), 0);
    EXPECT_NE(m_reason.Find(L"\"b\""), -1);
    EXPECT_EQ(Manager().RenameSystem(pA, L" a "), 1);
    EXPECT_EQ(log.Take(), ""); // nothing has changed
    EXPECT_EQ(Manager().RenameSystem(pA, L"A"), 1);
    EXPECT_EQ(log.Take(), "changed A;");
    EXPECT_EQ(Manager().RenameSystem(nullptr, L"c"), 0);
}

TEST_F(SystemManagerTest, ActivationTellsTheOldSystemFirstAndOnlyAChange) {
    CGisSystem* const pA = Create(L"a");
    CGisSystem* const pB = Create(L"b");
    SystemEventLog log;
    Manager().SetSystemActive(pA);
    Manager().SetSystemActive(pA);
    EXPECT_EQ(log.Take(), "active a a;");
    Manager().SetSystemActive(pB);
    EXPECT_EQ(log.Take(), "inactive a b;active b b;");
    EXPECT_NE(pB->GetActive(), 0);
    EXPECT_EQ(pA->GetActive(), 0);
    Manager().SetSystemActive(nullptr);
    EXPECT_EQ(log.Take(), "inactive b none;active none none;");
}

TEST_F(SystemManagerTest, AnObserverMayActivateAnotherSystem) {
    CGisSystem* const pA = Create(L"a");
    CGisSystem* const pB = Create(L"b");
    CGisSystem* const pC = Create(L"c");
    Manager().SetSystemActive(pA);
    SystemEventLog log;
    log.on["inactive"] = [&] {
        log.on.clear();
        Manager().SetSystemActive(pC);
    };
    Manager().SetSystemActive(pB);
    EXPECT_EQ(log.Take(), "inactive a b;inactive b c;active c c;");
}

TEST_F(SystemManagerTest, DeletionGoesStepByStep) {
    CGisSystem* const pA = Create(L"a");
    CGisSystem* const pB = Create(L"b");
    const int idOfB = pB->GetSystemId();
    Manager().SetSystemActive(pB);
    SystemEventLog log;
    EXPECT_EQ(Manager().DeleteSystem(pA), 1);
    EXPECT_EQ(log.Take(), "gone a b;drop a b;after;");
    EXPECT_EQ(Manager().DeleteSystem(pB), 1);
    EXPECT_EQ(log.Take(), "gone b b;inactive b none;active none none;drop b none;after;");
    EXPECT_EQ(Manager().DeleteSystem(nullptr), 0);
    EXPECT_GT(Create(L"b")->GetSystemId(), idOfB);
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
    // Each drawing keeps its own active system.
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
    const Reactor reactor; // called after the manager's own
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

TEST_F(SystemManagerTest, ObserversMayGoWhileOthersAreTold) {
    SystemEventLog first;
    SystemEventLog second;
    first.on["new"] = [&] { CGisEvents::Instance()->Unregister(&second); };
    Create(L"a");
    EXPECT_EQ(first.Take() + second.Take(), "new a;");
    CGisEvents::Instance()->Register(&first);
    Create(L"b");
    EXPECT_EQ(first.Take() + second.Take(), "new b;") << "registered twice, told once";
}
