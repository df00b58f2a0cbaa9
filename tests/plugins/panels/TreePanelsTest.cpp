// The tree panels, driven by mouse and keyboard.
#include "tests/plugins/panels/PanelsOnDesktop.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>

#include "platform/arx/CommandRunner.h"
#include "platform/arx/DbUndo.h"
#include "siblings/giscore/notification/Publisher.h"
#include "siblings/giscore/repository/RepositoryFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/repository/RepositoryStore.h"

using namespace Orvane;

namespace {

class TreePanels : public PanelsOnDesktop {
protected:
    void SetUp() override {
        PanelsOnDesktop::SetUp();
        MakePanel(kPanels[0]);
        MakePanel(kPanels[1], 350);
    }
    static CTreeCtrl& Tree() { return *Workspace().TreeMgr()->GetTreeControl(); }
    static CTreeCtrl& Disk() { return *Workspace().TreeMgr()->GetDiskTreeControl(); }
    static void DoubleClick(HTREEITEM item) {
        const QPoint place = PlaceOf(Tree(), item);
        QTest::mouseClick(WidgetOf(Tree()), Qt::LeftButton, {}, place);
        QTest::mouseDClick(WidgetOf(Tree()), Qt::LeftButton, {}, place);
        Settle();
    }
    HTREEITEM Town() { return Find(Tree(), {L"Systems", L"Town"}); }

    CRepositoryFactory::StorePtr Queries() {
        return CRepositoryManager::Instance()->GetRepositoryfactory(L"QUERY")->GetSystemStore(
            m_pSystem);
    }
    /// Types into the active label editor.
    static void TypeLabel(const char* text, Qt::Key end) {
        auto* const pEditor = WidgetOf(Tree())->findChild<QLineEdit*>();
        ASSERT_NE(pEditor, nullptr);
        pEditor->setText(QString::fromUtf8(text));
        QTest::keyClick(pEditor, end);
        Settle();
    }
    /// Opens the menu of the selected node and chooses an entry; returns all entries, "|" for a
    /// separator.
    static std::string Choose(CTreeCtrl& tree, const char* entry) {
        // Closing a menu on the in-memory desktop leaves no window active.
        WidgetOf(tree)->activateWindow();
        tree.SetFocus();
        Settle();
        std::string entries;
        Later([&] {
            auto* const pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!pMenu) {
                return;
            }
            QAction* pChosen = nullptr;
            for (QAction* const pAction : pMenu->actions()) {
                entries += pAction->isSeparator() ? "|" : pAction->text().toStdString() + ";";
                pChosen = pAction->text() == QLatin1String(entry) ? pAction : pChosen;
            }
            if (pChosen) {
                QTest::mouseClick(pMenu, Qt::LeftButton, {},
                                  pMenu->actionGeometry(pChosen).center());
            } else {
                pMenu->close();
            }
        });
        Press(tree, Qt::Key_F10, Qt::ShiftModifier);
        Settle();
        return entries;
    }
    /// Presses in one tree and releases in another, or the same.
    static void Drag(CTreeCtrl& from, HTREEITEM item, CTreeCtrl& to, HTREEITEM target) {
        const QPoint end = PlaceOf(to, target);
        const QPoint start = PlaceOf(from, item);
        QWidget* const pFrom = WidgetOf(from);
        const QPoint endFrom = pFrom->mapFromGlobal(WidgetOf(to)->mapToGlobal(end));
        QTest::mousePress(pFrom, Qt::LeftButton, {}, start);
        for (const QPoint& place : {start + QPoint(20, 0), start + QPoint(40, 0), endFrom}) {
            QTest::mouseMove(pFrom, place);
            Settle();
        }
        QWidget* const pGrabber = QWidget::mouseGrabber();
        QWidget* const pLast = pGrabber ? pGrabber : pFrom;
        QTest::mouseRelease(pLast, Qt::LeftButton, {},
                            pLast->mapFromGlobal(WidgetOf(to)->mapToGlobal(end)));
        Settle();
    }
};

} // namespace

TEST_F(TreePanels, TheSystemsOfTheDrawingStandInTheTreeAndFollowIt) {
    EXPECT_EQ(Shown(Tree()), "Systems\n Town\n");
    EXPECT_EQ(Workspace().TreeMgr()->GetItemData(Town())->GetSystem(), m_pSystem);
    Systems().CreateSystem(L"Roads", TopologyPolygon, 0);
    Systems().SetSystemActive(m_pSystem);
    Systems().SetSystemInvisible(m_pSystem);
    Settle();
    EXPECT_EQ(Shown(Tree()), "Systems\n Town (hidden) (active)\n Roads\n");
    acDocManagerPtr()->newDocument(L"b.dwg");
    Settle();
    EXPECT_EQ(Shown(Tree()), "Systems\n");
}

TEST_F(TreePanels, WhatIsOpenAndSelectedStaysSo) {
    Tree().Expand(Town(), TVE_EXPAND);
    Tree().Expand(Find(Tree(), {L"Systems", L"Town", L"Themes"}), TVE_EXPAND);
    Tree().SelectItem(Find(Tree(), {L"Systems", L"Town", L"Themes", L"Node"}));
    const std::string before = Shown(Tree());
    Workspace().GetRefreshTreePbl()->Notify(nullptr, nullptr);
    Workspace().GetRefreshAllPbl()->Notify(nullptr, nullptr);
    Settle();
    EXPECT_EQ(Shown(Tree()), before);
    EXPECT_NE(before.find("  *Node"), std::string::npos) << before;

    Systems().RenameSystem(m_pSystem, L"City");
    Settle();
    EXPECT_NE(Shown(Tree()).find("  *Node"), std::string::npos) << "another name, the same system";
    Systems().DeleteSystem(m_pSystem);
    Settle();
    EXPECT_EQ(Shown(Tree()), "*Systems\n") << "the nearest node above";
}

TEST_F(TreePanels, ADoubleClickOrEnterMakesASystemActive) {
    for (const bool isKey : {false, true}) {
        Systems().SetSystemActive(nullptr);
        Settle();
        if (isKey) {
            Tree().SelectItem(Town());
            Tree().SetFocus();
            Press(Tree(), Qt::Key_Return);
        } else {
            DoubleClick(Town());
        }
        EXPECT_EQ(Systems().GetActiveSystem(), m_pSystem) << isKey;
        EXPECT_NE(Shown(Tree()).find("Town (active)"), std::string::npos);
    }
}

TEST_F(TreePanels, ANameIsEditedInPlaceWithoutItsMarks) {
    Systems().CreateSystem(L"Other", TopologyLine, 1);
    Systems().SetSystemActive(m_pSystem);
    const struct {
        const char* typed;
        Qt::Key end;
        const char* name;
    } cases[] = {
        {"City", Qt::Key_Escape, "Town"},   {"  ", Qt::Key_Return, "Town"},
        {"Town", Qt::Key_Return, "Town"},   {"other", Qt::Key_Return, "Town"},
        {" City ", Qt::Key_Return, "City"},
    };
    for (const auto& row : cases) {
        Settle();
        Tree().SelectItem(Town());
        Tree().SetFocus();
        Press(Tree(), Qt::Key_F2);
        auto* const pEditor = WidgetOf(Tree())->findChild<QLineEdit*>();
        ASSERT_NE(pEditor, nullptr);
        EXPECT_EQ(pEditor->text().toStdString(), "Town");
        TypeLabel(row.typed, row.end);
        EXPECT_EQ(Narrow(m_pSystem->GetSystemName()), row.name) << row.typed;
        EXPECT_NE(Shown(Tree()).find(std::string(row.name) + " (active)"), std::string::npos)
            << row.typed << "\n"
            << Shown(Tree());
    }
}

TEST_F(TreePanels, AFolderHasNoNameToEdit) {
    Tree().SelectItem(Tree().GetRootItem());
    Tree().SetFocus();
    Press(Tree(), Qt::Key_F2);
    EXPECT_EQ(WidgetOf(Tree())->findChild<QLineEdit*>(), nullptr);
}

TEST_F(TreePanels, ARefreshWaitsUntilALabelIsEdited) {
    Tree().SelectItem(Town());
    Tree().SetFocus();
    Press(Tree(), Qt::Key_F2);
    Systems().CreateSystem(L"Late", TopologyLine, 1);
    Settle();
    EXPECT_EQ(Shown(Tree()).find("Late"), std::string::npos);
    TypeLabel("Town", Qt::Key_Escape);
    EXPECT_NE(Shown(Tree()).find("Late"), std::string::npos);
}

TEST_F(TreePanels, WhatOthersChangeInAFolderAppearsByItself) {
    ASSERT_NE(Find(Disk(), {L"Repository", L"Queries", L"Tanks"}), nullptr);
    Disk().SelectItem(Find(Disk(), {L"Repository", L"Queries", L"Tanks"}));
    const auto waitFor = [](const char* text) {
        QElapsedTimer clock;
        for (clock.start(); clock.elapsed() < 2000 && Shown(Disk()).find(text) == std::string::npos;
             QTest::qWait(20)) {
        }
        return Shown(Disk());
    };
    m_host.Support().Write("repository/QUERY/B1.xml",
                           R"(<item tag="QUERY" guid="B1" name="Of a colleague" entityType="0" )"
                           R"(of="2" match="all"/>)");
    const std::string with = waitFor("Of a colleague");
    EXPECT_NE(with.find("  Of a colleague\n"), std::string::npos) << with;
    EXPECT_NE(with.find("  *Tanks"), std::string::npos) << with;
    // Nothing jumps away from under somebody who has scrolled away from what is selected.
    for (const wchar_t* folder : {L"Themes", L"Labels", L"Longitudinal"}) {
        HTREEITEM const item = Find(Disk(), {L"Repository", folder});
        Disk().Expand(item, TVE_EXPAND);
        for (HTREEITEM kind = Disk().GetChildItem(item); kind;
             kind = Disk().GetNextSiblingItem(kind)) {
            Disk().Expand(kind, TVE_EXPAND);
        }
    }
    Disk().SelectSetFirstVisible(Find(Disk(), {L"Repository", L"Themes"}));
    const auto firstInView = [] {
        return Narrow(Disk().GetItemText(Disk().GetFirstVisibleItem()));
    };
    const std::string inView = firstInView();
    EXPECT_NE(inView, "Repository");
    m_host.Support().Write("repository/QUERY/B1.xml", "");
    const std::string damaged = waitFor("B1.xml: line 1");
    EXPECT_NE(damaged.find("B1.xml: line 1"), std::string::npos) << damaged;
    EXPECT_EQ(firstInView(), inView);
    EXPECT_NE(m_host.Output().find("B1.xml: line 1"), std::string::npos);
}

TEST_F(TreePanels, TheMenuOfANodeRunsItsCommands) {
    Tree().SelectItem(Town());
    Tree().SetFocus();
    EXPECT_EQ(Choose(Tree(), "nothing"), "Add system;|Edit;|Delete system;");
    m_host.Answer({L"no"});
    Choose(Tree(), "Delete system");
    EXPECT_EQ(Shown(Tree()), "Systems\n *Town\n");
    EXPECT_TRUE(m_host.AllAnswered()) << m_host.Output();
    m_host.Answer({L"yes"});
    Choose(Tree(), "Delete system");
    EXPECT_EQ(Shown(Tree()), "*Systems\n");
    EXPECT_TRUE(m_host.AllAnswered());
}

TEST_F(TreePanels, TheRightButtonSelectsWhatItOpensTheMenuOf) {
    Tree().SelectItem(Tree().GetRootItem());
    const QPoint place = PlaceOf(Tree(), Town());
    Later([] {
        if (QWidget* const pMenu = QApplication::activePopupWidget()) {
            pMenu->close();
        }
    });
    QTest::mouseClick(WidgetOf(Tree()), Qt::RightButton, {}, place);
    Settle();
    EXPECT_EQ(Tree().GetSelectedItem(), Town());
}

TEST_F(TreePanels, ADraggedConfigurationIsCopiedToWhereItFits) {
    const auto query = [] { return Find(Disk(), {L"Repository", L"Queries", L"Tanks"}); };
    ASSERT_NE(query(), nullptr) << Shown(Disk());
    const struct {
        std::initializer_list<const wchar_t*> target;
        std::size_t count;
    } cases[] = {
        {{L"Systems", L"Town", L"Themes"}, 0},
        {{L"Systems"}, 0},
        {{L"Systems", L"Town"}, 1},
    };
    Tree().Expand(Town(), TVE_EXPAND);
    for (const auto& row : cases) {
        Drag(Disk(), query(), Tree(), Find(Tree(), row.target));
        EXPECT_EQ(Queries()->GetItems(EntityNone).size(), row.count);
    }
    EXPECT_NE(Find(Tree(), {L"Systems", L"Town", L"Queries", L"Tanks"}), nullptr) << Shown(Tree());
}

TEST_F(TreePanels, ACommandThatIsAskedForDuringAnotherCancelsItAndRunsAfterIt) {
    const System::CGisSystem* pMeanwhile = m_pSystem;
    acedRunner().Run({L"LONG", OrderOrigin::Script, [&] {
                          DoubleClick(Town());
                          pMeanwhile = Systems().GetActiveSystem();
                          return CommandOutcome::Done;
                      }});
    EXPECT_EQ(pMeanwhile, nullptr);
    EXPECT_EQ(m_host.m_nCancelled, 1);
    Settle();
    EXPECT_EQ(Systems().GetActiveSystem(), m_pSystem);
}

TEST_F(TreePanels, ACommandOfAPluginIsOneStepAndMayThrow) {
    struct Executor final : Workspace::IWsCommandExecutor {
        boost::shared_ptr<Workspace::CExecutorReturnValue>
        Execute(const wchar_t*, Query::CQueryDefinition*, Workspace::CWsTreeItemData*) override {
            AcDbDatabase& drawing = *acDocManagerPtr()->curDocument()->database();
            drawing.appendEntity(std::make_unique<AcDbPoint>());
            drawing.appendEntity(std::make_unique<AcDbPoint>());
            if (m_throws) {
                throw 42;
            }
            return Workspace::NeutralReturnValue();
        }
        bool m_throws = false;
    } executor;
    Workspace()
        .CmdMgr()
        ->GetCommandRegistry()
        ->GetWsCommandById(L"SYSTEM_DBLCLICK")
        ->SetCmdExecutor(&executor);
    AcDbDatabase& drawing = *acDocManagerPtr()->curDocument()->database();
    const auto before = drawing.entityCount();
    for (const bool throws : {false, true}) {
        executor.m_throws = throws;
        m_host.TakeOutput();
        DoubleClick(Town());
        EXPECT_EQ(drawing.entityCount(), before + 2);
        EXPECT_EQ(m_host.Output().find("SYSTEM_DBLCLICK failed: unknown exception") !=
                      std::string::npos,
                  throws)
            << m_host.Output();
        EXPECT_TRUE(drawing.undo().undo());
        EXPECT_EQ(drawing.entityCount(), before)
            << "one undo step, though the executor creates none";
        EXPECT_NE(Find(Tree(), {L"Systems", L"Town"}), nullptr);
    }
}

TEST_F(TreePanels, APanelThatGoesTakesItsTreeAlong) {
    Factories().front()->DeleteWsPanelDialog(kPanels[0]);
    EXPECT_EQ(Workspace().TreeMgr()->GetTreeControl(), nullptr);
    Systems().SetSystemActive(m_pSystem);
    Workspace().GetRefreshTreePbl()->Notify(nullptr, nullptr);
    Settle();
    EXPECT_NE(Workspace().TreeMgr()->GetDiskTreeControl(), nullptr);
}
