#include <gtest/gtest.h>

#include "platform/arx/EdEditor.h"
#include "siblings/cadwrapper/DictionaryPtr.h"
#include "siblings/cadwrapper/DocLock.h"
#include "siblings/giscore/notification/Publisher.h"
#include "siblings/giscore/notification/Subscriber.h"
#include "siblings/logging/LogEngine.h"
#include "tests/support/ListenerLog.h"
#include "tests/support/TestHost.h"
#include "workspacecore/core/DocumentReactorWorkspace.h"
#include "workspacecore/core/EditorReactor.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Workspace {
namespace {

class HostReactorsTest : public testing::Test {
protected:
    HostReactorsTest() {
        acedEditor();
        ORVZWorkspaceCore_EditorReactor::rxInit();
        acrxBuildClassHierarchy();
        CWsManager::Instance()->RegisterWsListener(&m_listener);
    }
    AcApDocManager& Documents() { return *acDocManagerPtr(); }

    std::string Heard() { return m_log.Take(); }

    TestHost m_host;
    EventLog m_log;
    ListenerLog m_listener{m_log};
};

TEST_F(HostReactorsTest, ADocumentIsSetUpOnceForEachChange) {
    AcApDocument* const pFirst = Documents().newDocument(L"a");
    EXPECT_EQ(Heard(), "Current a;Active none;");
    Documents().setCurDocument(pFirst);
    EXPECT_EQ(Heard(), "") << "the same document again";
    EXPECT_EQ(CWsManager::Instance()->CmdMgr()->GetAllowStopCommand(), 1);

    AcApDocument* const pSecond = Documents().newDocument(L"b");
    EXPECT_EQ(Heard(), "ToBeDeactivated a;Current b;Active none;");
    EXPECT_TRUE(Documents().closeDocument(pSecond));
    EXPECT_EQ(Heard(), "ToBeDeactivated b;ToBeDestroyed b;Destroyed b;Current a;Active none;");
    EXPECT_TRUE(Documents().closeDocument(pFirst));
    EXPECT_EQ(Heard(), "ToBeDeactivated a;ToBeDestroyed a;Destroyed a;")
        << "no document is no news to listeners";
    EXPECT_EQ(CWsManager::Instance()->CmdMgr()->GetAllowStopCommand(), 0);
}

TEST_F(HostReactorsTest, ADrawingBehindOneThatAListenerThrewAtIsSetUp) {
    struct Thrower final : IWsListener {
        void OnAcadDocumentDestroyed(const wchar_t*) override { throw 42; }
    } thrower;
    CWsManager::Instance()->RegisterWsListener(&thrower);
    for (int i = 0; i < 20; ++i) { // until one is created at the same address
        AcApDocument* const pDoc = Documents().newDocument(L"a");
        EXPECT_EQ(Heard(), "Current a;Active none;");
        EXPECT_TRUE(Documents().closeDocument(pDoc));
        EXPECT_EQ(Heard(), "ToBeDeactivated a;ToBeDestroyed a;Destroyed a;");
    }
    EXPECT_NE(m_host.Output().find("OnAcadDocumentDestroyed failed"), std::string::npos);
    CWsManager::Instance()->UnregisterWsListener(&thrower);
}

TEST_F(HostReactorsTest, PanelsRefreshEvenWhenTheHostIsClosing) {
    struct Counter final : Notification::CSubscriber {
        Counter() : CSubscriber(1) {}
        void Update(Notification::CPublisher*, void*, void*) override { ++m_nCalls; }
        int m_nCalls = 0;
    } counter;
    CWsManager::Instance()->GetRefreshAllPbl()->RegisterSubscriber(&counter);
    CWsManager::Instance()->Raise_OnBeforeAcadWillClose();
    Documents().newDocument(L"a");
    EXPECT_EQ(counter.m_nCalls, 1);
    EXPECT_EQ(Heard(), "BeforeClose;");
}

TEST_F(HostReactorsTest, ASaveIsStampedBeforeAnybodyHearsOfIt) {
    AcApDocument* const pDoc = Documents().newDocument(L"a");
    Heard();
    m_log.on["BeginSave"] = [] {
        CString value;
        EXPECT_EQ(CORVCDictionaryPtr(AcDb::kForRead).dctReadBigString(L"__HV__", L"ACVER", value),
                  Acad::eOk);
    };
    acedEditor()->fireBeginSave(pDoc->database(), L"a.gpkg");
    acedEditor()->fireSaveComplete(pDoc->database(), L"a.gpkg");
    EXPECT_EQ(Heard(), "BeginSave a.gpkg;Saved a.gpkg;");
    const Orvane::CORVCDictionaryPtr dictionary(AcDb::kForRead);
    for (const auto& [key, expected] :
         {std::pair(L"ACVER", CLogEngine::GetAcadVersion()),
          std::pair(L"APPVER", CLogEngine::GetTessalyVersion()),
          std::pair(L"WINVER", CLogEngine::GetWindowsVersion()),
          std::pair(L"ISAPP64", std::string("1")), std::pair(L"ISWIN64", std::string("1"))}) {
        CString value(L"none");
        EXPECT_EQ(dictionary.dctReadBigString(L"__HV__", key, value), Acad::eOk);
        EXPECT_EQ(WideToUtf8(value.View()), expected);
    }
    EXPECT_FALSE(pDoc->isLocked());
}

TEST_F(HostReactorsTest, TheEditorReactorIsOfItsClassAndComesAndGoes) {
    ORVZWorkspaceCore_EditorReactor reactor(false);
    EXPECT_FALSE(reactor.IsAttached());
    EXPECT_TRUE(reactor.isKindOf(AcEditorReactor::desc()));
    EXPECT_EQ(reactor.isA()->name(), L"ORVZWorkspaceCore_EditorReactor");
    reactor.Attach();
    reactor.Attach();
    EXPECT_TRUE(reactor.IsAttached());
    AcApDocument* const pDoc = Documents().newDocument(L"a");
    Heard();
    acedEditor()->fireSaveComplete(pDoc->database(), L"a");
    EXPECT_EQ(Heard(), "Saved a;Saved a;");
    reactor.Detach();
    acedEditor()->fireSaveComplete(pDoc->database(), L"a");
    EXPECT_EQ(Heard(), "Saved a;");
}

TEST_F(HostReactorsTest, DictionariesHoldLongTextsAndALockKeepsADocumentOpen) {
    AcApDocument* const pDoc = Documents().newDocument(L"a");
    const std::wstring text(200000, L'\u00E8');
    {
        const Orvane::CORVCDocLock lock;
        EXPECT_FALSE(Documents().closeDocument(pDoc));
        Orvane::CORVCDictionaryPtr dictionary(AcDb::kForWrite);
        EXPECT_EQ(dictionary.upgradeOpen(), Acad::eWasOpenForWrite);
        EXPECT_EQ(dictionary.dctWrite(L"D", L"r", L"x", false, false, 1), Acad::eKeyNotFound);
        EXPECT_EQ(dictionary.dctWriteBigString(L"D", L"r", text.c_str()), Acad::eOk);
        EXPECT_EQ(dictionary.dctWrite(L"D", L"r", L"x", true, false, 1), Acad::eOk);
        CString read(L"before");
        EXPECT_EQ(dictionary.dctReadBigString(L"D", L"none", read), Acad::eKeyNotFound);
        EXPECT_EQ(read, L"before");
        EXPECT_EQ(dictionary.dctReadBigString(L"D", L"r", read), Acad::eOk);
        EXPECT_EQ(read.Str(), text + L"x");
        EXPECT_EQ(dictionary.dctErase(L"D"), Acad::eOk);
        EXPECT_EQ(dictionary.dctReadBigString(L"D", L"r", read), Acad::eKeyNotFound);
    }
    EXPECT_TRUE(Documents().closeDocument(pDoc));
    EXPECT_EQ(Orvane::CORVCDictionaryPtr(AcDb::kForRead).openStatus(), Acad::eNoDatabase);
}

} // namespace
} // namespace Orvane::Workspace
