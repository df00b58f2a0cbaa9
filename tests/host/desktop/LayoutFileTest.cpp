#include "host/desktop/LayoutFile.h"

#include <chrono>

#include <gtest/gtest.h>

#include "host/desktop/LayoutKeeper.h"
#include "platform/mfc/WinApp.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"

namespace Tessaly {
namespace {

Layout SomeLayout() {
    Layout layout;
    layout.window = {-1200, 30, 1000, 700};
    layout.isMaximized = true;
    layout.panes = std::string("\0\xFF=\n", 4);
    layout.recent = {L"OPEN", L"NETWORK_IMPORT"};
    layout.history = {L"a line\nwith an end", L"Größe = 5", L""};
    layout.theme = L"dark";
    return layout;
}

TEST(LayoutFile, GivesBackWhatWasWritten) {
    const TempFolder folder;
    const CString path = folder.Wide("layout");
    CString problem;
    EXPECT_FALSE(ReadLayout(path, problem));
    EXPECT_TRUE(problem.IsEmpty());
    for (const Layout& layout : {SomeLayout(), Layout{{0, 0, 1, 1}, false, {}, {}, {}, {}}}) {
        EXPECT_TRUE(WriteLayout(path, layout).IsEmpty());
        EXPECT_EQ(ReadLayout(path, problem), layout);
    }
    EXPECT_FALSE(WriteLayout(folder.Wide("none/layout"), SomeLayout()).IsEmpty());
}

TEST(LayoutFile, APartOfALayoutIsNoLayout) {
    const TempFolder folder;
    const CString path = folder.Wide("layout");
    CString problem;
    WriteLayout(path, SomeLayout());
    const std::string whole = folder.Read("layout");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        folder.Write("layout", whole.substr(0, length));
        EXPECT_FALSE(ReadLayout(path, problem)) << length;
        EXPECT_EQ(problem.Find(path.View()), 0);
    }
    const std::pair<const char*, const char*> damages[] = {
        {"layout 1", "layout 2"},
        {"-1200 30 1000", "-1200 30 0"},
        {"-1200 30 1000 700", "1 2 3 4 5"},
        {"-1200 30 1000 700", "2147483647 0 2147483647 500"},
        {"-1200 30 1000 700", "99999999999 0 10 10"},
        {"maximized=1", "maximized"},
        {"panes=", "panes=0"},
        {"recent=", "recent=xy"},
        {"end\n", "end\nend\n"},
    };
    for (const auto& [from, to] : damages) {
        std::string damaged = whole;
        damaged.replace(damaged.find(from), std::string(from).size(), to);
        folder.Write("layout", damaged);
        EXPECT_FALSE(ReadLayout(path, problem)) << to;
    }
}

TEST(LayoutFile, TwoProgramsKeepWhatTheOtherOneChanged) {
    const TempFolder folder;
    const CString path = folder.Wide("layout");
    CString problem;
    Layout before = SomeLayout();
    before.history.assign(500, L"old");
    WriteLayout(path, before);
    Layout a = before;
    Layout b = before;
    AfxStartToolkit();
    LayoutKeeper ofA(path, [&] { return a; });
    LayoutKeeper ofB(path, [&] { return b; });
    const auto report = [](const CString& text) { ADD_FAILURE() << text.GetString(); };
    ofA.Start(report);
    ofB.Start(report);

    a.theme = L"light";
    a.recent.insert(a.recent.begin(), L"ZOOM");
    a.history.erase(a.history.begin());
    a.history.push_back(L"of a");
    EXPECT_TRUE(ofA.Save().IsEmpty());
    EXPECT_EQ(ReadLayout(path, problem), a);
    b.window.left = 7;
    b.isMaximized = false;
    b.recent = {L"QUIT", L"OPEN", L"NETWORK_IMPORT"};
    b.history.erase(b.history.begin(), b.history.begin() + 2);
    b.history.insert(b.history.end(), {L"of b", L"of b"});
    EXPECT_TRUE(ofB.Save().IsEmpty());
    Layout both = b;
    both.theme = a.theme;
    both.recent = {L"QUIT", L"OPEN", L"NETWORK_IMPORT", L"ZOOM"};
    both.history = a.history;
    both.history.insert(both.history.end(), {L"of b", L"of b"});
    both.history.erase(both.history.begin(), both.history.begin() + 2);
    EXPECT_EQ(ReadLayout(path, problem), both);
    EXPECT_TRUE(ofA.Save().IsEmpty());
    EXPECT_EQ(ReadLayout(path, problem), both) << "a has nothing new";

    a.panes = "moved";
    both.panes = a.panes;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (ReadLayout(path, problem) != both && std::chrono::steady_clock::now() < end) {
        AfxPumpMessages();
    }
    EXPECT_EQ(ReadLayout(path, problem), both);
}

TEST(LayoutFile, WindowsStayWhereTheyCanBeCaught) {
    const std::vector<ScreenRect> two = {{0, 30, 1920, 1050}, {-1280, 0, 1280, 1024}};
    const Rows<const char*, ScreenRect, std::vector<ScreenRect>, ScreenRect> cases = {
        {"inside", {100, 100, 800, 600}, two, {100, 100, 800, 600}},
        {"on the second screen", {-1200, 10, 800, 600}, two, {-1200, 10, 800, 600}},
        {"over the edge, but caught", {1800, 900, 800, 600}, two, {1800, 900, 800, 600}},
        {"only a rim", {1890, 100, 800, 600}, two, {1120, 100, 800, 600}},
        {"title behind the task bar", {100, 0, 800, 600}, two, {100, 30, 800, 600}},
        {"the screen was unplugged", {-1200, 10, 800, 600}, {two[0]}, {0, 30, 800, 600}},
        {"too large for what is left", {-1200, 10, 5000, 3000}, {two[0]}, {0, 30, 1920, 1050}},
        {"larger than the screens now", {10, 40, 2560, 1000}, {two[0]}, {0, 40, 1920, 1000}},
        {"far away", {2000000000, 2000000000, 100, 100}, {two[0]}, {1820, 980, 100, 100}},
        {"no screen", {5, 5, 10, 10}, {}, {5, 5, 10, 10}},
    };
    for (const auto& [what, window, areas, expected] : cases) {
        EXPECT_EQ(OnScreen(window, areas), expected) << what;
    }
}

} // namespace
} // namespace Tessaly
