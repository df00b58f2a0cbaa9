// Typing and clicking in the desktop's window.
#include <QAction>
#include <QDockWidget>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>

#include "host/desktop/CommandPalette.h"
#include "host/desktop/Theme.h"
#include "platform/arx/EdDisplay.h"
#include "platform/arx/EdPrompt.h"
#include "tests/host/desktop/FrameFixture.h"

namespace Tessaly {

TEST_F(FrameTest, CommandsAreTypedAndTheirPromptsAnswered) {
    Type("no_such");
    EXPECT_TRUE(Said("Unknown command \"no_such\""));
    m_folder.Write("a.geojson", R"({"type": "Point", "coordinates": [3, 4]})");
    Later([&] {
        EXPECT_TRUE(acedRunner().IsBusy());
        EXPECT_TRUE(m_pPort->IsPrompting());
        Type(m_folder.Native("a.geojson").c_str());
    });
    Type("import");
    EXPECT_FALSE(acedRunner().IsBusy());
    EXPECT_TRUE(Said("1 points"));
    EXPECT_TRUE(Tabs().tabText(0).endsWith('*'));
    EXPECT_TRUE(m_pFrame->isWindowModified());
    Later([&] { QTest::keyClick(m_pInput, Qt::Key_Escape); });
    Type("SAVE");
    EXPECT_TRUE(Said("*Cancel*"));
    QTest::keyClick(m_pInput, Qt::Key_Up);
    EXPECT_EQ(m_pInput->text(), "SAVE");
    QTest::keyClick(m_pInput, Qt::Key_Up);
    EXPECT_EQ(m_pInput->text(), "import");
    QTest::keyClick(m_pInput, Qt::Key_Escape);
    Type("undo");
    EXPECT_TRUE(Said("Undone: IMPORT"));
}

TEST_F(FrameTest, ACommandThatIsAskedForMeanwhileCancelsThePromptAndRunsThen) {
    Later([&] { acedRunner().Give({L"DRAWINGS", OrderOrigin::Menu}); });
    Type("OPEN");
    QApplication::processEvents();
    EXPECT_TRUE(Said("Nothing was opened."));
    EXPECT_TRUE(Said("> DRAWINGS"));
    EXPECT_TRUE(Said("*  1  Drawing1"));
    acedPostCommand(L"HELP");
    QApplication::processEvents();
    EXPECT_TRUE(Said("> HELP"));
}

TEST_F(FrameTest, DrawingsHaveTabsAndTheTabsFollow) {
    Type("NEW");
    EXPECT_EQ(Tabs().count(), 2);
    EXPECT_EQ(Tabs().currentIndex(), 1);
    AcApDocument* const pSecond = acDocManagerPtr()->curDocument();
    Tabs().setCurrentIndex(0);
    EXPECT_NE(acDocManagerPtr()->curDocument(), pSecond);
    EXPECT_TRUE(m_pFrame->windowTitle().startsWith("Drawing1"));
    // A running command keeps working on its drawing.
    Later([&] {
        Tabs().setCurrentIndex(1);
        EXPECT_EQ(Tabs().currentIndex(), 0);
        QTest::keyClick(m_pInput, Qt::Key_Escape);
    });
    Type("OPEN");
    Type("CLOSE");
    Type("CLOSE");
    EXPECT_EQ(Tabs().count(), 0);
    EXPECT_EQ(m_pFrame->windowTitle(), "Tessaly");
    EXPECT_EQ(m_pFrame->CurrentView(), nullptr);
    Type("ZOOM");
    EXPECT_TRUE(Said("No drawing is open."));
}

TEST_F(FrameTest, ClosingTheWindowAsksAboutChangesAndMayBeCancelled) {
    AddLine(0);
    Later([&] {
        auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(pBox, nullptr);
        EXPECT_TRUE(pBox->text().startsWith("Save the changes to Drawing1"));
        pBox->button(QMessageBox::Cancel)->click();
    });
    m_pFrame->close();
    EXPECT_TRUE(m_pFrame->isVisible());
    EXPECT_FALSE(HasQuit());
    Later([&] {
        auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(pBox, nullptr);
        pBox->button(QMessageBox::No)->click();
    });
    m_pFrame->close();
    EXPECT_TRUE(HasQuit());
    m_pFrame->close();
    EXPECT_FALSE(m_pFrame->isVisible());
}

TEST_F(FrameTest, AnEntityIsPickedInTheViewOrByAScriptsNumber) {
    const AcDbObjectId line = AddLine(0);
    AddLine(50);
    m_pFrame->resize(900, 700);
    m_pFrame->CurrentView()->ZoomExtents();
    QApplication::processEvents();
    const auto pick = [&](std::function<void()> act) {
        AcDbObjectId id;
        AcGePoint3d place;
        Later(std::move(act));
        const int status = acedEntSel(L"Point: ", id, place);
        return std::pair(status, id);
    };
    DrawingView& view = *m_pFrame->CurrentView();
    const auto at = [&](double x, double y) {
        const PixelPoint pixel = view.Transform().ToPixel(x, y);
        return QPoint(static_cast<int>(pixel.x), static_cast<int>(pixel.y));
    };
    EXPECT_EQ(pick([&] { QTest::mouseClick(&view, Qt::LeftButton, {}, at(20, 0)); }),
              std::pair(RTNORM, line));
    EXPECT_EQ(pick([&] { QTest::mouseClick(&view, Qt::LeftButton, {}, at(20, 25)); }).first,
              RTERROR);
    EXPECT_EQ(pick([&] { QTest::keyClick(m_pInput, Qt::Key_Escape); }).first, RTCAN);
    m_pPort->SetAnswers({CString(std::to_wstring(line.number()))});
    EXPECT_EQ(pick([] {}), std::pair(RTNORM, line));
}

TEST_F(FrameTest, KeysThatAPaneHasLeftAreNotForTheCommandLine) {
    auto* const pDock = new QDockWidget(m_pFrame.get());
    auto* const pButton = new QPushButton;
    pDock->setWidget(pButton);
    m_pFrame->addDockWidget(Qt::LeftDockWidgetArea, pDock);
    Type("NEW");
    pButton->setFocus();
    QTest::keyClick(pButton, Qt::Key_X);
    QTest::keyClick(pButton, Qt::Key_Return);
    EXPECT_EQ(m_pInput->text(), "");
    EXPECT_EQ(Tabs().count(), 2) << "the last command was repeated";
    QTest::keyClick(m_pFrame->CurrentView(), Qt::Key_X);
    EXPECT_EQ(m_pInput->text(), "x");
    // A widget outside the panes is not a pane.
    auto* const pTabs = new QTabBar(m_pFrame.get());
    pTabs->show();
    pTabs->setFocus();
    QTest::keyClick(pTabs, Qt::Key_Y);
    EXPECT_EQ(m_pInput->text(), "xy");
}

TEST_F(FrameTest, TheLayoutIsTheSameAgain) {
    auto* const pDock = m_pFrame->findChild<QDockWidget*>("CommandLine");
    m_pFrame->setGeometry(40, 50, 640, 480);
    pDock->setFloating(true);
    Type("DRAWINGS");
    const Layout layout = m_pFrame->CurrentLayout();
    pDock->setFloating(false);
    m_pFrame->setGeometry(0, 0, 500, 400);
    m_pFrame->Pane().SetHistory({});
    m_pFrame->ApplyLayout(layout);
    EXPECT_TRUE(pDock->isFloating());
    EXPECT_EQ(m_pFrame->geometry(), QRect(40, 50, 640, 480));
    EXPECT_EQ(m_pFrame->CurrentLayout().history, std::vector<CString>{L"DRAWINGS"});
    // An unreadable layout is ignored, and everything stays reachable.
    Layout broken = layout;
    broken.panes = "no state of panes";
    broken.window = {90000, 90000, 640, 480};
    pDock->move(70000, 70000);
    m_pFrame->ApplyLayout(broken);
    m_pFrame->BringAllWindowsHere();
    const QRect screen = m_pFrame->screen()->availableGeometry();
    EXPECT_TRUE(screen.intersects(m_pFrame->geometry()));
    EXPECT_TRUE(screen.intersects(pDock->geometry()));
}

TEST_F(FrameTest, ThePaletteFindsRunsAndRefuses) {
    auto* const pPalette = m_pFrame->findChild<CommandPalette*>();
    auto* const pSearch = pPalette->findChild<QLineEdit*>();
    auto* const pList = pPalette->findChild<QListView*>();
    for (QAction* const pAction : m_pFrame->findChildren<QAction*>()) {
        if (pAction->shortcut() == QKeySequence("Ctrl+Shift+P")) {
            pAction->trigger();
        }
    }
    ASSERT_TRUE(pPalette->isVisible());
    QTest::keyClicks(pSearch, "drawings list");
    EXPECT_EQ(pList->model()->rowCount(), 1);
    QTest::keyClick(pSearch, Qt::Key_Return);
    EXPECT_FALSE(pPalette->isVisible());
    EXPECT_TRUE(Said("> DRAWINGS"));
    QStringList chosen;
    QObject::connect(pPalette, &CommandPalette::chosen, pPalette,
                     [&](const QString& name) { chosen.append(name); });
    pPalette->Open({{L"SAVE", L"saves", L"No drawing is open"}}, {});
    QTest::keyClick(pSearch, Qt::Key_Return);
    EXPECT_TRUE(pPalette->isVisible()) << "it says why";
    EXPECT_TRUE(chosen.isEmpty());
    QTest::keyClick(pSearch, Qt::Key_Escape);
    EXPECT_FALSE(pPalette->isVisible());
}

TEST_F(FrameTest, ThemesChangeWhileItRuns) {
    ApplyTheme(L"dark");
    EXPECT_TRUE(IsDark());
    ApplyTheme(L"light");
    EXPECT_FALSE(IsDark());
    const QImage picture = m_pFrame->CurrentView()->grab().toImage();
    EXPECT_GT(qGray(picture.pixel(2, 2)), 200);
}

} // namespace Tessaly
