#include "platform/arx/ApDocManager.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

#include "tests/support/TestHost.h"

namespace {

using Log = std::vector<CString>;

/// Writes down what it is told.
class Reactor final : public AcApDocManagerReactor {
public:
    Reactor(AcApDocManager& manager, Log& log, const wchar_t* name)
        : m_manager(manager), m_log(log), m_strName(name) {
        manager.addReactor(this);
    }
    ~Reactor() override { m_manager.removeReactor(this); }
    Reactor(const Reactor&) = delete;
    Reactor& operator=(const Reactor&) = delete;

    void documentToBeDestroyed(AcApDocument* pDoc) override { Note(L"dying", pDoc->fileName()); }
    void documentDestroyed(const wchar_t* fileName) override { Note(L"gone", fileName); }
    void documentBecameCurrent(AcApDocument* pDoc) override {
        Note(L"current", pDoc ? pDoc->fileName() : L"none");
        if (m_onCurrent) {
            m_onCurrent();
        }
    }
    void documentToBeDeactivated(AcApDocument* pDoc) override { Note(L"left", pDoc->fileName()); }

    std::function<void()> m_onCurrent;

private:
    void Note(const wchar_t* event, const wchar_t* document) {
        m_log.push_back(m_strName + L" " + event + L" " + document);
    }
    AcApDocManager& m_manager;
    Log& m_log;
    CString m_strName;
};

AcDbDatabase* WorkingDatabase() {
    return acdbHostApplicationServices()->workingDatabase();
}

} // namespace

TEST(Documents, EveryReactorHearsWhatAnotherOneThrowsAt) {
    struct Thrower final : AcApDocManagerReactor {
        void documentToBeDestroyed(AcApDocument*) override { throw std::runtime_error("going"); }
        void documentDestroyed(const wchar_t*) override { throw 42; }
    } thrower;
    const TestHost host;
    AcApDocManager manager;
    manager.addReactor(&thrower);
    Log log;
    const Reactor reactor(manager, log, L"2");
    AcApDocument* const pDoc = manager.newDocument(L"a");
    log.clear();
    EXPECT_TRUE(manager.closeDocument(pDoc));
    EXPECT_EQ(log, (Log{L"2 left a", L"2 dying a", L"2 gone a", L"2 current none"}));
    EXPECT_NE(host.Output().find("document event failed: going"), std::string::npos);
}

TEST(Documents, ReactorsHearEverythingInTheirOrder) {
    AcApDocManager manager;
    Log log;
    const Reactor first(manager, log, L"1");
    const Reactor second(manager, log, L"2");
    AcApDocument* const pA = manager.newDocument(L"a");
    EXPECT_EQ(log, (Log{L"1 current a", L"2 current a"}));
    log.clear();

    AcApDocument* const pB = manager.newDocument(L"b");
    EXPECT_EQ(log, (Log{L"1 left a", L"2 left a", L"1 current b", L"2 current b"}));
    EXPECT_EQ(WorkingDatabase(), pB->database());
    log.clear();

    manager.closeDocument(pB);
    EXPECT_EQ(log, (Log{L"1 left b", L"2 left b", L"1 dying b", L"2 dying b", L"1 gone b",
                        L"2 gone b", L"1 current a", L"2 current a"}));
    EXPECT_EQ(manager.curDocument(), pA);
    EXPECT_EQ(WorkingDatabase(), pA->database());
}

TEST(Documents, WithTheLastDocumentGoesTheDatabase) {
    AcApDocManager manager;
    Log log;
    AcApDocument* const pA = manager.newDocument(L"a");
    const Reactor reactor(manager, log, L"1");
    manager.closeDocument(pA);
    EXPECT_EQ(log.back().Str(), L"1 current none");
    EXPECT_EQ(WorkingDatabase(), nullptr);
    EXPECT_EQ(manager.documentCount(), 0);
    manager.closeDocument(pA); // not one of its documents any more
    EXPECT_EQ(log.size(), 4U);
}

TEST(Documents, ADocumentInTheBackgroundGoesQuietly) {
    AcApDocManager manager;
    AcApDocument* const pA = manager.newDocument(L"a");
    AcApDocument* const pB = manager.newDocument(L"b");
    Log log;
    const Reactor reactor(manager, log, L"1");
    manager.closeDocument(pA);
    EXPECT_EQ(log, (Log{L"1 dying a", L"1 gone a"}));
    EXPECT_EQ(manager.curDocument(), pB);
}

TEST(Documents, AReactorThatGoesWhileOthersAreToldIsNotCalled) {
    AcApDocManager manager;
    Log log;
    Reactor first(manager, log, L"1");
    auto pSecond = std::make_unique<Reactor>(manager, log, L"2");
    std::unique_ptr<Reactor> pLate;
    first.m_onCurrent = [&] {
        pLate = std::make_unique<Reactor>(manager, log, L"late");
        pSecond.reset();
    };
    manager.newDocument(L"a");
    EXPECT_EQ(log, (Log{L"1 current a"}));
}

TEST(Documents, NewDrawingsGetNamesThatNoneHas) {
    AcApDocManager manager;
    manager.newDocument(L"Drawing2");
    EXPECT_STREQ(manager.newDocument()->fileName(), L"Drawing1");
    AcApDocument* const pThird = manager.newDocument();
    EXPECT_STREQ(pThird->fileName(), L"Drawing3");
    EXPECT_FALSE(pThird->hasFile());
    EXPECT_TRUE(pThird->path().IsEmpty());
    manager.closeDocument(pThird);
    EXPECT_STREQ(manager.newDocument()->fileName(), L"Drawing4") << "no name comes twice";
}

TEST(Documents, TheResourcesPushedLastAreCurrent) {
    AcApDocManager manager;
    int first = 0;
    int second = 0;
    manager.popResourceHandle();
    EXPECT_EQ(manager.resourceHandle(), nullptr);
    manager.pushResourceHandle(&first);
    manager.pushResourceHandle(&second);
    EXPECT_EQ(manager.resourceHandle(), &second);
    manager.popResourceHandle();
    EXPECT_EQ(manager.resourceHandle(), &first);
}
