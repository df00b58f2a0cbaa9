// Dialogs under the user's hand stick to edges; where the program puts them they stay.
#include <QPointer>

#include "tests/workspacecore/panel/WsTestDialog.h"

namespace Orvane::Workspace {
namespace {

class DialogSnapping : public WsDialogTest {
protected:
    void SetUp() override {
        WsDialogTest::SetUp();
        m_pDialog = std::make_unique<WsTestDialog>(L"MOVED", enmDialogFixed);
        m_pDialog->Show({500, 500, 700, 600});
    }
    void TearDown() override {
        m_pDialog.reset();
        WsDialogTest::TearDown();
    }
    CPoint Corner() const { return m_pDialog->GetWindowRect().TopLeft(); }

    std::unique_ptr<WsTestDialog> m_pDialog;
};

TEST_F(DialogSnapping, EveryStepIsWhereTheMouseIsOrAtTheEdge) {
    Drag drag(*m_pDialog);
    for (const auto& [mouse, x] : std::vector<std::pair<int, int>>{{200, 200},
                                                                   {32, 32},
                                                                   {31, 31},
                                                                   {30, 0},
                                                                   {12, 0},
                                                                   {0, 0},
                                                                   {-30, 0},
                                                                   {-31, -31},
                                                                   {-60, -60},
                                                                   {-30, 0},
                                                                   {30, 0},
                                                                   {31, 31},
                                                                   {200, 200}}) {
        drag.To({mouse, 400});
        EXPECT_EQ(Corner(), CPoint(x, 400)) << mouse;
    }
    drag.To({1690, 1010});
    EXPECT_EQ(Corner(), CPoint(1720, 980)) << "the far corner";
    EXPECT_EQ(m_pDialog->GetWindowRect().Size(), CSize(200, 100));
}

TEST_F(DialogSnapping, TheTaskBarIsAnEdgeOfThePrimaryScreen) {
    const struct {
        const char* what;
        CRect work;
        CPoint mouse;
        CPoint expected;
    } cases[] = {
        {"bottom", {0, 0, 1920, 1040}, {500, 915}, {500, 940}},
        {"bottom, the screen's edge below it", {0, 0, 1920, 1040}, {500, 980}, {500, 980}},
        {"right", {0, 0, 1860, 1080}, {1650, 500}, {1660, 500}},
        {"left", {60, 0, 1920, 1080}, {85, 500}, {60, 500}},
        {"top", {0, 40, 1920, 1080}, {500, 70}, {500, 40}},
        {"top, on it", {0, 40, 1920, 1080}, {500, 3}, {500, 40}},
        {"top, beyond it", {0, 40, 1920, 1080}, {500, -31}, {500, -31}},
    };
    Drag drag(*m_pDialog);
    for (const auto& row : cases) {
        m_desktop.monitors = {{{0, 0, 1920, 1080}, row.work},
                              {{1920, 0, 3200, 1024}, {1920, 0, 3200, 984}}};
        drag.To(row.mouse);
        EXPECT_EQ(Corner(), row.expected) << row.what;
    }
    // A second monitor has no edges of its own.
    drag.To({3180, 880});
    EXPECT_EQ(Corner(), CPoint(3180, 880));
    drag.To({2110, 500});
    EXPECT_EQ(Corner(), CPoint(2110, 500));
}

TEST_F(DialogSnapping, WhichDialogsAttractOthers) {
    const struct {
        enmDialogType type;
        bool attracts;
    } cases[] = {
        {enmDialogFixed, false},        {enmDialogSizable, false},
        {enmDialogFixedCascaded, true}, {enmDialogSizableCascaded, true},
        {enmDialogFixedHosted, false},  {enmDialogSizableHosted, false},
    };
    for (const auto& row : cases) {
        WsTestDialog other(L"OTHER", row.type);
        other.Show({900, 300, 1200, 450});
        Drag drag(*m_pDialog);
        const CPoint below = row.attracts ? CPoint(900, 450) : CPoint(885, 470);
        const CPoint above = row.attracts ? CPoint(900, 200) : CPoint(915, 215);
        const CPoint left = row.attracts ? CPoint(700, 300) : CPoint(690, 320);
        const CPoint right = row.attracts ? CPoint(1200, 300) : CPoint(1190, 290);
        drag.To({885, 470});
        EXPECT_EQ(Corner(), below) << row.type;
        drag.To({915, 215});
        EXPECT_EQ(Corner(), above) << row.type;
        drag.To({690, 320});
        EXPECT_EQ(Corner(), left) << row.type;
        drag.To({1190, 290});
        EXPECT_EQ(Corner(), right) << row.type;
        drag.To({869, 470});
        EXPECT_EQ(Corner(), CPoint(869, 470)) << row.type;
    }
}

TEST_F(DialogSnapping, OnlyVisibleOthersOfAnotherIdAttract) {
    WsTestDialog hidden(L"HIDDEN");
    hidden.Show({900, 300, 1200, 450});
    hidden.ShowWindow(SW_HIDE);
    const WsTestDialog withoutWindow(L"NONE");
    (*Manager().GetDialogRegistryMap())[L"NULL"] = nullptr;
    Drag drag(*m_pDialog);
    drag.To({885, 470});
    EXPECT_EQ(Corner(), CPoint(885, 470));
    hidden.ShowWindow(SW_SHOW);
    drag.To({885, 470});
    EXPECT_EQ(Corner(), CPoint(900, 450));

    hidden.CloseWindow();
    drag.To({885, 470});
    EXPECT_EQ(Corner(), CPoint(885, 470)) << "minimised";

    WsTestDialog sameInOtherCase(L"moved");
    sameInOtherCase.Show({1300, 300, 1500, 450});
    drag.To({1290, 440});
    EXPECT_EQ(Corner(), CPoint(1300, 450)) << "case tells ids apart";
    // Two of one id: the one that is registered is taken for the one that moves.
    WsTestDialog twin(L"HIDDEN", enmDialogSizable);
    twin.Show({300, 300, 400, 400});
    Drag dragTwin(twin);
    dragTwin.To({885, 470});
    EXPECT_EQ(twin.GetWindowRect().TopLeft(), CPoint(885, 470));
    Manager().GetDialogRegistryMap()->erase(L"NULL");
}

TEST_F(DialogSnapping, OthersComeInTheOrderOfTheirIds) {
    WsTestDialog late(L"Z");
    WsTestDialog early(L"A");
    late.Show({590, 770, 800, 900});
    early.Show({600, 400, 900, 650});
    Drag drag(*m_pDialog);
    drag.To({610, 660});
    EXPECT_EQ(Corner(), CPoint(590, 670)) << "Z overrules A";
    late.ShowWindow(SW_HIDE);
    drag.To({610, 660});
    EXPECT_EQ(Corner(), CPoint(600, 650));
}

TEST_F(DialogSnapping, TheReachIsAskedForAtEachStep) {
    EXPECT_EQ(m_pDialog->GetXOffset(), 30);
    EXPECT_EQ(m_pDialog->GetYOffset(), 30);
    Drag drag(*m_pDialog);
    m_pDialog->SetXOffset(10);
    m_pDialog->SetYOffset(50);
    drag.To({11, 50});
    EXPECT_EQ(Corner(), CPoint(11, 0));
    m_pDialog->SetXOffset(11);
    m_pDialog->SetYOffset(49);
    drag.To({11, 50});
    EXPECT_EQ(Corner(), CPoint(0, 50));
}

TEST_F(DialogSnapping, TheSizeAtTheMomentCounts) {
    Drag drag(*m_pDialog);
    drag.To({1650, 500});
    EXPECT_EQ(Corner(), CPoint(1650, 500));
    m_pDialog->MoveWindow({1650, 500, 1900, 600});
    drag.To({1651, 500});
    EXPECT_EQ(Corner(), CPoint(1670, 500));
}

TEST_F(DialogSnapping, WhatTheProgramSetsStands) {
    WsTestDialog other(L"OTHER");
    other.Show({900, 300, 1200, 450});
    for (const CPoint place : {CPoint(5, 5), CPoint(-20, 1000), CPoint(890, 460)}) {
        m_pDialog->SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        EXPECT_EQ(Corner(), place);
        m_pDialog->MoveWindow(CRect(place, CSize(300, 200)));
        EXPECT_EQ(m_pDialog->GetWindowRect(), CRect(place, CSize(300, 200)));
    }
}

TEST_F(DialogSnapping, AnEdgeThatTheUserDragsSizesFreely) {
    m_pDialog->MoveWindow({20, 20, 320, 220});
    QWidget* const pFrame = FrameOf(*m_pDialog);
    const auto send = [pFrame](QEvent::Type type, QPoint onScreen) {
        QMouseEvent event(type, pFrame->mapFromGlobal(onScreen), onScreen, Qt::LeftButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(pFrame, &event);
    };
    send(QEvent::MouseButtonPress, {319, 219});
    send(QEvent::MouseMove, {340, 230});
    EXPECT_EQ(m_pDialog->GetWindowRect(), CRect(20, 20, 341, 231));
    send(QEvent::MouseButtonRelease, {340, 230});
    send(QEvent::MouseButtonPress, {20, 20});
    send(QEvent::MouseMove, {10, 12});
    EXPECT_EQ(m_pDialog->GetWindowRect(), CRect(10, 12, 341, 231));
}

TEST_F(DialogSnapping, ADialogMayGoWhileItIsDragged) {
    Drag drag(*m_pDialog);
    m_pDialog->onPlace = [this] { m_pDialog.reset(); };
    drag.To({200, 200});
    EXPECT_EQ(m_pDialog, nullptr);
    EXPECT_FALSE(Manager().IsDialogCreated(L"MOVED"));
}

} // namespace
} // namespace Orvane::Workspace
