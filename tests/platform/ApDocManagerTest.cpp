#include "platform/arx/ApDocManager.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

#include "tests/support/TestHost.h"

#include "tests/support/EventLog.h"

namespace {

/// Logs its name with each event.
class Reactor final : public AcApDocManagerReactor {
public:
    Reactor(AcApDocManager& manager, EventLog& log, const char* name)
        : m_manager(manager), m_log(log), m_name(name) {
        manager.addReactor(this);
    }
    ~Reactor() override { m_manager.removeReactor(this); }
    Reactor(const Reactor&) = delete;
    Reactor& operator=(const Reactor&) = delete;

    void documentToBeDestroyed(AcApDocument* p) override { m_log.Note(m_name + "dying", p); }
    void documentDestroyed(const wchar_t* name) override { m_log.Note(m_name + "gone", name); }
    void documentBecameCurrent(AcApDocument* p) override { m_log.Note(m_name + "current", p); }
    void documentToBeDeactivated(AcApDocument* p) override { m_log.Note(m_name + "left", p); }

private:
    AcApDocManager& m_manager;
    EventLog& m_log;
    std::string m_name;
};

AcDbDatabase* WorkingDatabase() {
    return acdbHostApplicationServices()->workingDatabase();
}

} // namespace

TEST(Documents, AReactorThatThrowsDoesNotHideEventsFromOthers) {
    struct Thrower final : AcApDocManagerReactor {
        void documentToBeDestroyed(AcApDocument*) override { throw std::runtime_error("going"); }
        void documentDestroyed(const wchar_t*) override { throw 42; }
    } thrower;
    const TestHost host;
    AcApDocManager manager;
    manager.addReactor(&thrower);
    EventLog log;
    const Reactor reactor(manager, log, "2");
    AcApDocument* const pDoc = manager.newDocument(L"a");
    log.Take();
    EXPECT_TRUE(manager.closeDocument(pDoc));
    EXPECT_EQ(log.Take(), "2left a;2dying a;2gone a;2current none;");
    EXPECT_NE(host.Output().find("document event failed: going"), std::string::npos);
}

TEST(Documents, ReactorsAreCalledInOrderOfRegistration) {
    AcApDocManager manager;
    EventLog log;
    const Reactor first(manager, log, "1");
    const Reactor second(manager, log, "2");
    AcApDocument* const pA = manager.newDocument(L"a");
    EXPECT_EQ(log.Take(), "1current a;2current a;");

    AcApDocument* const pB = manager.newDocument(L"b");
    EXPECT_EQ(log.Take(), "1left a;2left a;1current b;2current b;");
    EXPECT_EQ(WorkingDatabase(), pB->database());

    manager.closeDocument(pB);
    EXPECT_EQ(log.Take(),
              "1left b;2left b;1dying b;2dying b;1gone b;2gone b;1current a;2current a;");
    EXPECT_EQ(manager.curDocument(), pA);
    EXPECT_EQ(WorkingDatabase(), pA->database());
}

TEST(Documents, ClosingTheLastDocumentClearsTheWorkingDatabase) {
    AcApDocManager manager;
    EventLog log;
    AcApDocument* const pA = manager.newDocument(L"a");
    const Reactor reactor(manager, log, "1");
    manager.closeDocument(pA);
    EXPECT_EQ(log.Take(), "1left a;1dying a;1gone a;1current none;");
    EXPECT_EQ(WorkingDatabase(), nullptr);
    EXPECT_EQ(manager.documentCount(), 0);
    manager.closeDocument(pA); // no longer open
    EXPECT_EQ(log.Take(), "");
}

TEST(Documents, ClosingABackgroundDocumentKeepsTheCurrentOne) {
    AcApDocManager manager;
    AcApDocument* const pA = manager.newDocument(L"a");
    AcApDocument* const pB = manager.newDocument(L"b");
    EventLog log;
    const Reactor reactor(manager, log, "1");
    manager.closeDocument(pA);
    EXPECT_EQ(log.Take(), "1dying a;1gone a;");
    EXPECT_EQ(manager.curDocument(), pB);
}

TEST(Documents, AReactorRemovedDuringACallIsSkipped) {
    AcApDocManager manager;
    EventLog log;
    const Reactor first(manager, log, "1");
    auto pSecond = std::make_unique<Reactor>(manager, log, "2");
    std::unique_ptr<Reactor> pLate;
    log.on["1current"] = [&] {
        pLate = std::make_unique<Reactor>(manager, log, "late");
        pSecond.reset();
    };
    manager.newDocument(L"a");
    EXPECT_EQ(log.Take(), "1current a;");
}

TEST(Documents, NewDrawingsGetUnusedNames) {
    AcApDocManager manager;
    manager.newDocument(L"Drawing2");
    EXPECT_STREQ(manager.newDocument()->fileName(), L"Drawing1");
    AcApDocument* const pThird = manager.newDocument();
    EXPECT_STREQ(pThird->fileName(), L"Drawing3");
    EXPECT_FALSE(pThird->hasFile());
    EXPECT_TRUE(pThird->path().IsEmpty());
    manager.closeDocument(pThird);
    EXPECT_STREQ(manager.newDocument()->fileName(), L"Drawing4") << "names are not reused";
}
