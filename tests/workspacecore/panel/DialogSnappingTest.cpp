// Dialogs snap to edges while the user moves them, but not when the program does.
#include <QPointer>

#include "tests/support/Rows.h"
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
    for (const int mouse : {200, 31, 30, 0, -30, -31, 12, 200}) {
        drag.To({mouse, 400});
        EXPECT_EQ(Corner(), CPoint(std::abs(mouse) <= 30 ? 0 : mouse, 400));
    }
    // The size at the moment counts, and the reach at each step.
    m_pDialog->MoveWindow({200, 400, 450, 500});
    drag.To({1651, 500});
    EXPECT_EQ(Corner(), CPoint(1670, 500));
    m_pDialog->SetXOffset(10);
    m_pDialog->SetYOffset(50);
    drag.To({11, 50});
    EXPECT_EQ(Corner(), CPoint(11, 0));
}

TEST_F(DialogSnapping, TheTaskBarIsAnEdgeOfThePrimaryScreenAlone) {
    m_desktop.monitors = {{{0, 0, 1920, 1080}, {0, 0, 1920, 1040}},
                          {{1920, 0, 3200, 1024}, {1920, 0, 3200, 984}}};
    Drag drag(*m_pDialog);
    for (const auto& [mouse, place] : {std::pair(CPoint(500, 915), CPoint(500, 940)),
                                       {{500, 980}, {500, 980}},
                                       {{3180, 880}, {3180, 880}},
                                       {{2110, 500}, {2110, 500}}}) {
        drag.To(mouse);
        EXPECT_EQ(Corner(), place);
    }
}

TEST_F(DialogSnapping, OnlyVisibleCascadedOthersOfAnotherIdAttract) {
    const auto attracts = [this] {
        Drag drag(*m_pDialog);
        drag.To({885, 470});
        return Corner() == CPoint(900, 450);
    };
    for (const auto type :
         {enmDialogFixed, enmDialogSizable, enmDialogFixedCascaded, enmDialogSizableCascaded,
          enmDialogFixedHosted, enmDialogSizableHosted}) {
        WsTestDialog other(L"OTHER", type);
        other.Show({900, 300, 1200, 450});
        EXPECT_EQ(attracts(), type == enmDialogFixedCascaded || type == enmDialogSizableCascaded)
            << type;
    }
    const WsTestDialog withoutWindow(L"NONE");
    (*Manager().GetDialogRegistryMap())[L"NULL"] = nullptr;
    WsTestDialog other(L"moved"); // case tells ids apart
    other.Show({900, 300, 1200, 450});
    EXPECT_TRUE(attracts());
    other.CloseWindow();
    EXPECT_FALSE(attracts()) << "minimised";
    other.ShowWindow(SW_HIDE);
    EXPECT_FALSE(attracts());
    other.ShowWindow(SW_SHOW);
    EXPECT_TRUE(attracts());
    // Two of one id: the one that is registered is taken for the one that moves.
    WsTestDialog twin(L"moved", enmDialogSizable);
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

TEST_F(DialogSnapping, ADialogMayGoWhileItIsDragged) {
    Drag drag(*m_pDialog);
    m_pDialog->onPlace = [this] { m_pDialog.reset(); };
    drag.To({200, 200});
    EXPECT_EQ(m_pDialog, nullptr);
    EXPECT_FALSE(Manager().IsDialogCreated(L"MOVED"));
}

} // namespace
} // namespace Orvane::Workspace
