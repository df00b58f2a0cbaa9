// Delivery of messages to handlers and to the toolkit's defaults.
#include "tests/mfc/WindowTest.h"

#include <functional>
#include <memory>
#include <stdexcept>

#include "platform/mfc/AdUiBaseDialog.h"
#include "platform/mfc/Button.h"
#include "platform/mfc/DC.h"
#include "platform/mfc/TreeCtrl.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"

namespace {

using Log = std::vector<std::string>;

/// Logs its messages and its destruction.
class LoggingWnd : public CWnd {
public:
    LoggingWnd(std::string name, Log& log) : m_name(std::move(name)), m_log(log) {}

    std::function<void()> duringSize;
    std::function<void(UINT)> onCommand;
    std::function<void(DWORD_PTR)> onTimer;
    bool sizeBaseFirst = false;
    bool deleteSelf = false;

protected:
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageEntry kEntries[] = {
            MapMessage<&LoggingWnd::OnSize>(WM_SIZE),
            MapMessage<&LoggingWnd::OnTimer>(WM_TIMER),
            MapMessage<&LoggingWnd::OnDestroy>(WM_DESTROY),
            MapMessage<&LoggingWnd::OnPrivate>(WM_USER + 2),
            MapMessage<&LoggingWnd::OnRButtonUp>(WM_RBUTTONUP),
            MapCommandRange<&LoggingWnd::OnAnyCommand>(100, 102),
        };
        static const MessageMap kMap{CWnd::GetMessageMap(), kEntries};
        return &kMap;
    }
    void PostNcDestroy() override {
        m_log.push_back(m_name + " gone");
        if (deleteSelf) {
            delete this;
        }
    }

    void OnSize(UINT type, int cx, int cy) {
        if (sizeBaseFirst) {
            CWnd::OnSize(type, cx, cy);
        }
        m_log.push_back(m_name + " size " + std::to_string(cx) + "x" + std::to_string(cy));
        if (duringSize) {
            duringSize();
        }
    }
    void OnTimer(DWORD_PTR id) {
        m_log.push_back(m_name + " timer " + std::to_string(id));
        if (onTimer) {
            onTimer(id);
        }
    }
    void OnDestroy() {
        CWnd::OnDestroy();
        m_log.push_back(m_name + " destroy " + std::to_string(GetWindowRect().Width()));
    }
    LRESULT OnPrivate(WPARAM wParam, LPARAM lParam) {
        m_log.push_back(m_name + " private");
        return static_cast<LRESULT>(wParam) - lParam;
    }
    void OnRButtonUp(UINT, CPoint point) {
        m_log.push_back(m_name + " right " + std::to_string(point.x));
    }
    void OnAnyCommand() { m_log.push_back(m_name + " command"); }

private:
    std::string m_name;
    Log& m_log;
};

class MessagesTest : public WindowTest {
protected:
    Log m_log;
};

TEST_F(MessagesTest, ExceptionsOfHandlersAreCaughtAndReported) {
    struct Thrower final : CWnd {
        const MessageMap* GetMessageMap() const override {
            static constexpr MessageEntry kEntries[] = {
                MapNotify<&Thrower::OnDoubleClick>(NM_DBLCLK, 7),
                MapMessage<&Thrower::OnPosted>(WM_USER + 2)};
            static const MessageMap kMap{CWnd::GetMessageMap(), kEntries};
            return &kMap;
        }
        void OnDoubleClick(NMHDR*, LRESULT*) { throw std::runtime_error("double click"); }
        LRESULT OnPosted(WPARAM, LPARAM) { throw 42; }
    } window;
    TestHost host;
    window.Create(WS_POPUP, CRect(0, 0, 200, 200), nullptr);
    CTreeCtrl tree;
    tree.Create(WS_VISIBLE, CRect(0, 0, 200, 200), &window, 7);
    const CRect label = tree.GetItemRect(tree.InsertItem(L"node", 0, 0), true);
    window.ShowWindow(SW_SHOW);
    QTest::mouseDClick(WidgetOf(tree), Qt::LeftButton, {}, {label.left + 4, label.top + 4});
    EXPECT_NE(host.TakeOutput().find("window message failed: double click\n"), std::string::npos);
    window.PostMessage(WM_USER + 2);
    AfxPumpMessages();
    EXPECT_NE(host.TakeOutput().find("failed: unknown exception\n"), std::string::npos);
    window.DestroyWindow();
}

TEST_F(MessagesTest, SentMessagesReturnResultsAndPostedOnesWait) {
    LoggingWnd wnd("w", m_log);
    EXPECT_EQ(wnd.SendMessage(WM_USER + 2, 9, 4), 0) << "without a window";
    EXPECT_FALSE(wnd.PostMessage(WM_USER + 2));
    ASSERT_TRUE(wnd.Create(WS_POPUP, {0, 0, 50, 40}, nullptr));
    m_log.clear();
    EXPECT_EQ(wnd.SendMessage(WM_USER + 2, 9, -4), 13);
    EXPECT_EQ(wnd.SendMessage(WM_USER + 3, 9, 4), 0) << "there is no handler";
    EXPECT_TRUE(wnd.PostMessage(WM_USER + 2));
    EXPECT_EQ(m_log, Log{"w private"});
    AfxPumpMessages();
    EXPECT_EQ(m_log, (Log{"w private", "w private"}));

    const HWND handle = wnd.GetSafeHwnd();
    EXPECT_EQ(CWnd::FromHandle(handle), &wnd);
    wnd.PostMessage(WM_USER + 2);
    wnd.DestroyWindow();
    m_log.clear();
    AfxPumpMessages();
    EXPECT_EQ(m_log, Log()) << "a posted message outlived its window";
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_EQ(CWnd::FromHandle(handle), nullptr);
}

TEST_F(MessagesTest, CommandsAreMappedByCodeAndRange) {
    LoggingWnd wnd("w", m_log);
    wnd.Create(WS_POPUP, {0, 0, 50, 40}, nullptr);
    m_log.clear();
    const Rows<UINT, UINT, bool> cases = {
        {99, 0, false}, {100, 0, true}, {102, 0, true}, {103, 0, false}, {101, 1, false}};
    for (const auto& [id, code, handled] : cases) {
        m_log.clear();
        EXPECT_EQ(wnd.SendMessage(WM_COMMAND, PackCommand(id, code)), handled ? 1 : 0);
        EXPECT_EQ(m_log.size(), handled ? 1U : 0U) << id << " " << code;
    }
}

TEST_F(MessagesTest, WindowsAreNotifiedOuterFirstAndDestroyedInnerFirst) {
    LoggingWnd outer("outer", m_log);
    LoggingWnd inner("inner", m_log);
    LoggingWnd innermost("innermost", m_log);
    outer.Create(WS_POPUP, {0, 0, 50, 40}, nullptr);
    inner.Create(WS_CHILD, {0, 0, 20, 20}, &outer, 5);
    innermost.Create(WS_CHILD, {0, 0, 10, 10}, &inner, 6);
    EXPECT_EQ(outer.GetDlgItem(5), &inner);
    EXPECT_EQ(outer.GetDlgItem(6), nullptr);
    EXPECT_EQ(innermost.GetParent(), &inner);
    m_log.clear();
    outer.DestroyWindow();
    EXPECT_EQ(m_log, (Log{"outer destroy 50", "inner destroy 20", "innermost destroy 10",
                          "innermost gone", "inner gone", "outer gone"}));
    EXPECT_EQ(inner.GetSafeHwnd(), nullptr);
    EXPECT_FALSE(outer.DestroyWindow());
    EXPECT_TRUE(outer.Create(WS_POPUP, {0, 0, 30, 30}, nullptr)) << "the object can be reused";
}

TEST_F(MessagesTest, HiddenWindowsGetSizeMessagesAtOnce) {
    LoggingWnd wnd("w", m_log);
    wnd.Create(WS_POPUP, {0, 0, 50, 40}, nullptr);
    EXPECT_EQ(m_log, Log{"w size 50x40"});
    wnd.SetWindowPos(nullptr, 7, 9, 60, 30, SWP_NOZORDER);
    EXPECT_EQ(m_log.back(), "w size 60x30");
    EXPECT_EQ(wnd.GetWindowRect(), CRect(7, 9, 67, 39));
    const std::size_t before = m_log.size();
    wnd.ShowWindow(SW_SHOW);
    AfxPumpMessages();
    EXPECT_EQ(m_log.size(), before) << "notified twice";
}

TEST_F(MessagesTest, TimersRepeatUntilKilled) {
    LoggingWnd wnd("w", m_log);
    wnd.Create(WS_POPUP, {0, 0, 50, 40}, nullptr);
    m_log.clear();
    int calls = 0;
    wnd.onTimer = [&](DWORD_PTR id) {
        if (++calls == 3) {
            EXPECT_TRUE(wnd.KillTimer(id));
        }
    };
    EXPECT_EQ(wnd.SetTimer(4096, 100000), 4096U);
    wnd.SetTimer(4096, 1); // restarts it
    QTest::qWait(50);
    EXPECT_EQ(m_log, (Log{"w timer 4096", "w timer 4096", "w timer 4096"}));
    EXPECT_FALSE(wnd.KillTimer(4096));
}

TEST_F(MessagesTest, AWindowMayBeDestroyedInItsOwnHandlers) {
    const auto make = [this] {
        auto* const pWnd = new LoggingWnd("w", m_log);
        pWnd->deleteSelf = true;
        pWnd->Create(WS_POPUP | WS_VISIBLE, {0, 0, 50, 40}, nullptr);
        m_log.clear();
        return pWnd;
    };
    LoggingWnd* pWnd = make();
    pWnd->duringSize = [pWnd] { pWnd->DestroyWindow(); };
    pWnd->MoveWindow({0, 0, 60, 40});
    EXPECT_EQ(m_log, (Log{"w size 60x40", "w destroy 60", "w gone"})) << "while it was moved";

    pWnd = make();
    pWnd->onTimer = [pWnd](DWORD_PTR) { pWnd->DestroyWindow(); };
    pWnd->SetTimer(1, 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_log.size() == 3; }));
    EXPECT_EQ(m_log, (Log{"w timer 1", "w destroy 50", "w gone"})) << "in its timer";

    pWnd = make();
    FrameOf(*pWnd)->close();
    EXPECT_EQ(m_log, (Log{"w destroy 50", "w gone"})) << "by its close box";
}

/// Clicks a button whose handler destroys the window.
TEST_F(MessagesTest, AButtonMayDestroyItsParent) {
    class Parent : public LoggingWnd {
    public:
        using LoggingWnd::LoggingWnd;
        bool OnCommand(WPARAM, LPARAM) override {
            DestroyWindow();
            return true;
        }
    };
    Parent parent("w", m_log);
    CButton button;
    parent.Create(WS_POPUP | WS_VISIBLE, {0, 0, 80, 40}, nullptr);
    button.Create(L"Close", WS_VISIBLE, {0, 0, 60, 20}, &parent, 100);
    QTest::mouseClick(WidgetOf(button), Qt::LeftButton);
    EXPECT_EQ(button.GetSafeHwnd(), nullptr);
    EXPECT_EQ(parent.GetSafeHwnd(), nullptr);
}

/// A base handler runs the toolkit's default at the point where it is called, and only once.
TEST_F(MessagesTest, BaseHandlersRunWhereTheyAreCalled) {
    enum class Call { Never, First, Last, Twice };
    class Check : public CButton {
    public:
        explicit Check(Call call) : m_call(call) {}
        int before = -1;
        int after = -1;

    protected:
        const MessageMap* GetMessageMap() const override {
            static constexpr MessageEntry kEntries[] = {
                MapMessage<&Check::OnLButtonUp>(WM_LBUTTONUP)};
            static const MessageMap kMap{CButton::GetMessageMap(), kEntries};
            return &kMap;
        }
        void OnLButtonUp(UINT flags, CPoint point) {
            if (m_call == Call::First || m_call == Call::Twice) {
                CButton::OnLButtonUp(flags, point);
            }
            before = GetCheck();
            if (m_call == Call::Last || m_call == Call::Twice) {
                CButton::OnLButtonUp(flags, point);
            }
            after = GetCheck();
        }

    private:
        Call m_call;
    };
    const Rows<Call, int, int> cases = {
        {Call::Never, 0, 0}, {Call::First, 1, 1}, {Call::Last, 0, 1}, {Call::Twice, 1, 1}};
    for (const auto& [itsCall, itsBefore, itsAfter] : cases) {
        CWnd parent;
        parent.Create(WS_POPUP | WS_VISIBLE, {0, 0, 100, 50}, nullptr);
        Check box(itsCall);
        box.Create(L"", WS_VISIBLE | BS_AUTOCHECKBOX | BS_PUSHLIKE, {0, 0, 60, 20}, &parent, 1);
        QTest::mouseClick(WidgetOf(box), Qt::LeftButton);
        EXPECT_EQ(box.before, itsBefore) << static_cast<int>(itsCall);
        EXPECT_EQ(box.after, itsAfter) << static_cast<int>(itsCall);
    }
}

TEST_F(MessagesTest, MouseEventsAreNotPassedToParents) {
    LoggingWnd outer("outer", m_log);
    LoggingWnd inner("inner", m_log);
    outer.Create(WS_POPUP | WS_VISIBLE, {0, 0, 100, 50}, nullptr);
    inner.Create(WS_CHILD | WS_VISIBLE, {10, 10, 60, 40}, &outer, 5);
    m_log.clear();
    QTest::mouseClick(WidgetOf(inner), Qt::RightButton, {}, {3, 4});
    EXPECT_EQ(m_log, Log{"inner right 3"});
}

} // namespace
