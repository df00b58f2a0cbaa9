#include "siblings/giscore/notification/NotificationFramework.h"

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

#include "siblings/giscore/notification/SetActiveCommand.h"
#include "siblings/giscore/notification/Subscriber.h"

using namespace Orvane::Notification;

namespace {

class Subscriber final : public CSubscriber {
public:
    explicit Subscriber(std::string& log, char name) : m_log(log), m_name(name) {}
    void Update(CPublisher* pPublisher, void* pHint1, void* pHint2) override {
        m_log += m_name;
        m_pLast = pPublisher;
        m_pHint1 = pHint1;
        m_pHint2 = pHint2;
        if (m_onUpdate) {
            m_onUpdate();
        }
    }
    std::function<void()> m_onUpdate;
    CPublisher* m_pLast = nullptr;
    void* m_pHint1 = nullptr;
    void* m_pHint2 = nullptr;

private:
    std::string& m_log;
    char m_name;
};

class PublisherTest : public testing::Test {
protected:
    void Register(std::initializer_list<Subscriber*> subscribers) {
        for (Subscriber* pSubscriber : subscribers) {
            m_publisher.RegisterSubscriber(pSubscriber);
        }
    }
    std::string Notified() {
        m_log.clear();
        m_publisher.Notify(nullptr, nullptr);
        return m_log;
    }
    std::string m_log;
    CPublisher m_publisher{L"P"};
    Subscriber m_a{m_log, 'a'};
    Subscriber m_b{m_log, 'b'};
    Subscriber m_c{m_log, 'c'};
};

} // namespace

TEST_F(PublisherTest, TellsEachOnceInTheOrderOfRegistration) {
    Register({&m_b, &m_a, &m_b, nullptr});
    int hint = 0;
    m_publisher.Notify(&hint, nullptr);
    EXPECT_EQ(m_log, "ba");
    EXPECT_EQ(m_a.m_pLast, &m_publisher);
    EXPECT_EQ(m_a.m_pHint1, &hint);
    EXPECT_EQ(m_a.m_pHint2, nullptr);
    m_publisher.UnregisterSubscriber(&m_c);
    m_publisher.UnregisterSubscriber(&m_b);
    EXPECT_EQ(Notified(), "a");
}

TEST_F(PublisherTest, WhoGoesWhileOthersAreToldIsNotToldAnyMore) {
    Register({&m_a, &m_b, &m_c});
    m_a.m_onUpdate = [&] {
        m_publisher.UnregisterSubscriber(&m_a);
        m_publisher.UnregisterSubscriber(&m_b);
    };
    EXPECT_EQ(Notified(), "ac");
    EXPECT_EQ(Notified(), "c");
}

TEST_F(PublisherTest, WhoComesIsToldFromTheNextTimeOn) {
    Register({&m_a});
    m_a.m_onUpdate = [&] { Register({&m_b, &m_c}); };
    EXPECT_EQ(Notified(), "a");
    EXPECT_EQ(Notified(), "abc");
}

TEST_F(PublisherTest, WhoGoesAndComesBackIsToldFromTheNextTimeOn) {
    Register({&m_a, &m_b});
    m_a.m_onUpdate = [&] {
        m_publisher.UnregisterSubscriber(&m_b);
        Register({&m_b});
    };
    EXPECT_EQ(Notified(), "a");
    m_a.m_onUpdate = nullptr;
    EXPECT_EQ(Notified(), "ab");
}

TEST_F(PublisherTest, CallsMayNest) {
    Register({&m_a, &m_b});
    m_a.m_onUpdate = [&] {
        m_a.m_onUpdate = nullptr;
        m_publisher.UnregisterSubscriber(&m_a);
        m_publisher.Notify(nullptr, nullptr);
    };
    EXPECT_EQ(Notified(), "abb");
}

TEST_F(PublisherTest, AnExceptionPassesOutAndLeavesThePublisherWhole) {
    Register({&m_a, &m_b, &m_c});
    m_b.m_onUpdate = [&] {
        m_publisher.UnregisterSubscriber(&m_a);
        throw std::runtime_error("b");
    };
    EXPECT_THROW(m_publisher.Notify(nullptr, nullptr), std::runtime_error);
    EXPECT_EQ(m_log, "ab");
    m_b.m_onUpdate = nullptr;
    EXPECT_EQ(Notified(), "bc");
    m_publisher.UnregisterSubscriber(&m_b);
    EXPECT_EQ(Notified(), "c");
}

TEST(NotificationFramework, EverybodyGetsTheSamePublisherOfAName) {
    CNotificationFramework& framework = *CNotificationFramework::Instance();
    CPublisher* const pTree = framework.GetPublisher(L"REFRESH_TREE");
    for (int i = 0; i < 100; ++i) {
        CString name;
        name.Format(L"OTHER_%d", i);
        EXPECT_NE(framework.GetPublisher(name), pTree);
    }
    EXPECT_EQ(framework.GetPublisher(L"REFRESH_TREE"), pTree);
    EXPECT_EQ(pTree->GetName().Str(), L"REFRESH_TREE");
}

TEST(NotificationFramework, ASubscriberLeavesAllPublishersAtOnce) {
    std::string log;
    Subscriber subscriber(log, 'x');
    CNotificationFramework& framework = *CNotificationFramework::Instance();
    framework.GetPublisher(L"A")->RegisterSubscriber(&subscriber);
    framework.GetPublisher(L"B")->RegisterSubscriber(&subscriber);
    CNotificationFramework::UnregisterSubscriber(&subscriber);
    framework.GetPublisher(L"A")->Notify(nullptr, nullptr);
    framework.GetPublisher(L"B")->Notify(nullptr, nullptr);
    EXPECT_EQ(log, "");
}

TEST(NotificationFramework, CommandsAreActiveWhileTheirMarkLives) {
    EXPECT_EQ(CNotificationFramework::IsCommandActive(), 0);
    try {
        const SetActiveCommand outer(L"OUTER");
        {
            const SetActiveCommand inner(L"INNER");
            EXPECT_EQ(CNotificationFramework::GetActiveCommand().Str(), L"INNER");
        }
        EXPECT_EQ(CNotificationFramework::GetActiveCommand().Str(), L"OUTER");
        EXPECT_NE(CNotificationFramework::IsCommandActive(), 0);
        throw std::runtime_error("a command that fails");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(CNotificationFramework::IsCommandActive(), 0);
    EXPECT_EQ(CNotificationFramework::GetActiveCommand().Str(), L"");
}
