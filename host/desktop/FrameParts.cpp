// The frame's menus, panes, themes and layout.
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <algorithm>

#include "host/desktop/CommandPane.h"
#include "host/desktop/Frame.h"
#include "host/desktop/QtTexts.h"
#include "host/desktop/Theme.h"
#include "host/desktop/view/DrawingView.h"
#include "platform/mfc/NativeWidget.h"
#include "platform/win/Screens.h"

namespace Tessaly {

namespace {

/// Version of the saved pane states; changing it discards older ones.
constexpr int kPaneVersion = 1;
constexpr int kCommandHeight = 150; // initial

/// The work areas of all screens in module coordinates; see IScreens.
std::vector<ScreenRect> WorkAreas() {
    std::vector<ScreenRect> areas;
    for (const Monitor& monitor : Screens().Monitors()) {
        const CRect& work = monitor.work;
        areas.push_back({work.left, work.top, work.Width(), work.Height()});
    }
    return areas;
}

/// The position includes the title bar, which must stay on a screen; the size does not.
ScreenRect RectOf(const QWidget& window) {
    const QRect rect =
        window.isMaximized() ? window.normalGeometry() : QRect(window.pos(), window.size());
    const CPoint corner = NativePrimaryCorner();
    return {rect.x() - corner.x, rect.y() - corner.y, rect.width(), rect.height()};
}

void Place(QWidget& window, const ScreenRect& rect) {
    const CPoint corner = NativePrimaryCorner();
    window.resize(rect.width, rect.height);
    window.move(rect.left + corner.x, rect.top + corner.y);
}

/// The next cascaded position for a window brought to the main window.
ScreenRect Beside(const ScreenRect& window, ScreenRect moved, int step) {
    moved.left = window.left + 40 + 30 * step;
    moved.top = window.top + 80 + 30 * step;
    return moved;
}

/// Moves the focus into a pane.
void FocusInside(QWidget& pane) {
    pane.window()->activateWindow();
    QWidget* pTarget = pane.focusWidget() ? pane.focusWidget() : &pane;
    for (QWidget* pNext = pane.nextInFocusChain();
         !(pTarget->focusPolicy() & Qt::TabFocus) && pane.isAncestorOf(pNext);
         pNext = pNext->nextInFocusChain()) {
        if (pNext->isVisible() && pNext->isEnabled()) {
            pTarget = pNext;
        }
    }
    pTarget->setFocus(Qt::ShortcutFocusReason);
}

/// A menu entry that runs a host command.
struct MenuCommand {
    Msg text;
    const char* shortcut;
    const wchar_t* command;
};

} // namespace

void Frame::MakePanes() {
    m_pPane = new CommandPane;
    m_pCommandDock = new QDockWidget(QtText(Msg::CommandLine), this);
    m_pCommandDock->setObjectName(QStringLiteral("CommandLine"));
    m_pCommandDock->setWidget(m_pPane);
    m_pCommandDock->setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea);
    addDockWidget(Qt::BottomDockWidgetArea, m_pCommandDock);
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    connect(m_pPane, &CommandPane::entered, this, &Frame::OnEntered);
    connect(m_pPane, &CommandPane::escaped, this, &Frame::OnEscaped);
}

void Frame::MakeStatusBar() {
    m_pPosition = new QLabel;
    m_pPosition->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0")) * 36);
    m_pWork = new QLabel;
    m_pProgress = new QProgressBar;
    m_pProgress->setRange(0, 100);
    m_pProgress->setMaximumWidth(240);
    m_pStop = new QPushButton(QtText(Msg::StopWork));
    for (QWidget* const pWidget :
         {static_cast<QWidget*>(m_pWork), static_cast<QWidget*>(m_pProgress),
          static_cast<QWidget*>(m_pStop)}) {
        statusBar()->addPermanentWidget(pWidget);
        pWidget->hide();
    }
    statusBar()->addWidget(m_pPosition);
    connect(m_pStop, &QPushButton::clicked, this, [this] { m_bStopAsked = true; });
}

void Frame::MakeMenus() {
    const auto add = [this](QMenu* pMenu, const QString& text, const QString& shortcut,
                            auto&& call) {
        QAction* const pAction = pMenu->addAction(text, QKeySequence(shortcut));
        connect(pAction, &QAction::triggered, this, call);
        return pAction;
    };
    const auto command = [&](QMenu* pMenu, const MenuCommand& entry) {
        add(pMenu, QtText(entry.text), QString::fromLatin1(entry.shortcut),
            [name = CString(entry.command)] {
                acedRunner().Give({name, OrderOrigin::Menu});
            });
    };
    QMenu* const pFile = menuBar()->addMenu(QtText(Msg::MenuFile));
    command(pFile, {Msg::MenuNew, "Ctrl+N", L"NEW"});
    add(pFile, QtText(Msg::MenuOpen), QStringLiteral("Ctrl+O"), [this] { OpenWithDialog(); });
    command(pFile, {Msg::MenuSave, "Ctrl+S", L"SAVE"});
    add(pFile, QtText(Msg::MenuSaveAs), QStringLiteral("Ctrl+Shift+S"),
        [this] { SaveAsWithDialog(); });
    add(pFile, QtText(Msg::MenuImport), QStringLiteral("Ctrl+I"), [this] { ImportWithDialog(); });
    command(pFile, {Msg::MenuClose, "Ctrl+W", L"CLOSE"});
    pFile->addSeparator();
    command(pFile, {Msg::MenuQuit, "Ctrl+Q", L"QUIT"});

    QMenu* const pEdit = menuBar()->addMenu(QtText(Msg::MenuEdit));
    command(pEdit, {Msg::MenuUndo, "Ctrl+Z", L"UNDO"});
    command(pEdit, {Msg::MenuRedo, "Ctrl+Shift+Z", L"REDO"});

    QMenu* const pView = menuBar()->addMenu(QtText(Msg::MenuView));
    add(pView, QtText(Msg::MenuZoomExtents), QStringLiteral("Ctrl+0"), [this] {
        if (DrawingView* const pDrawing = CurrentView()) {
            pDrawing->ZoomExtents();
        }
    });
    pView->addSeparator();
    QMenu* const pPanes = pView->addMenu(QtText(Msg::MenuPanes));
    connect(pPanes, &QMenu::aboutToShow, this, [this, pPanes] { FillPaneMenu(*pPanes); });
    // Application shortcuts, because floating panes are windows of their own.
    add(pView, QtText(Msg::MenuNextPane), QStringLiteral("F6"), [this] {
        GoToPane(1);
    })->setShortcutContext(Qt::ApplicationShortcut);
    add(pView, QtText(Msg::MenuPreviousPane), QStringLiteral("Shift+F6"), [this] {
        GoToPane(-1);
    })->setShortcutContext(Qt::ApplicationShortcut);
    add(pView, QtText(Msg::MenuBringWindows), QStringLiteral("Ctrl+Shift+B"),
        [this] { BringAllWindowsHere(); });
    MakeThemeMenu(*pView->addMenu(QtText(Msg::MenuTheme)));

    QMenu* const pTools = menuBar()->addMenu(QtText(Msg::MenuTools));
    add(pTools, QtText(Msg::MenuPalette), QStringLiteral("Ctrl+Shift+P"),
        [this] { ShowPalette(); });
    add(pTools, QtText(Msg::MenuCommandLine), QStringLiteral("Ctrl+L"),
        [this] { m_pPane->GoToInput(); });

    QMenu* const pHelp = menuBar()->addMenu(QtText(Msg::MenuHelp));
    add(pHelp, QtText(Msg::MenuHelp), QStringLiteral("F1"), [this] { OpenHelp(); });
    command(pHelp, {Msg::MenuCommands, "", L"HELP"});
}

void Frame::MakeThemeMenu(QMenu& menu) {
    const std::pair<Msg, const wchar_t*> themes[] = {{Msg::MenuThemeOfSystem, L""},
                                                     {Msg::MenuThemeLight, L"light"},
                                                     {Msg::MenuThemeDark, L"dark"}};
    for (const auto& [text, theme] : themes) {
        connect(menu.addAction(QtText(text)), &QAction::triggered, this,
                [this, name = CString(theme)] { SetTheme(name); });
    }
}

void Frame::FillPaneMenu(QMenu& menu) {
    menu.clear();
    const QList<QDockWidget*> docks = findChildren<QDockWidget*>();
    for (QDockWidget* const pDock : docks) {
        menu.addAction(pDock->toggleViewAction());
    }
    menu.addSeparator();
    for (QDockWidget* const pDock : docks) {
        if (pDock->isVisibleTo(this)) {
            const Msg text = pDock->isFloating() ? Msg::DockPane : Msg::FloatPane;
            connect(menu.addAction(QtText(text, FromQt(pDock->windowTitle()))), &QAction::triggered,
                    pDock, [pDock] { pDock->setFloating(!pDock->isFloating()); });
        }
    }
}

void Frame::GoToPane(int step) {
    std::vector<QWidget*> places;
    if (DrawingView* const pView = CurrentView()) {
        places.push_back(pView);
    }
    for (QDockWidget* const pDock : findChildren<QDockWidget*>()) {
        if (pDock->isVisibleTo(this) && pDock->widget()) {
            places.push_back(pDock->widget());
        }
    }
    if (places.empty()) {
        return;
    }
    const QWidget* const pFocus = QApplication::focusWidget();
    const auto here = std::find_if(places.begin(), places.end(), [&](const QWidget* pPlace) {
        return pPlace == pFocus || pPlace->isAncestorOf(pFocus);
    });
    const auto count = static_cast<std::ptrdiff_t>(places.size());
    const std::ptrdiff_t from = here == places.end() ? 0 : here - places.begin();
    QWidget& next = *places[static_cast<std::size_t>((from + step + count) % count)];
    if (QDockWidget* const pDock = qobject_cast<QDockWidget*>(next.parentWidget())) {
        pDock->raise(); // only one of the tabbed panes is visible
    }
    if (&next == m_pPane) {
        m_pPane->GoToInput();
    } else {
        FocusInside(next);
    }
}

void Frame::SetTheme(const CString& theme) {
    m_strTheme = theme;
    m_themeOfRun.reset();
    FollowTheme();
}

void Frame::SetThemeOfRun(const CString& theme) {
    m_themeOfRun = theme;
    FollowTheme();
}

void Frame::FollowTheme() {
    ApplyTheme(m_themeOfRun.value_or(m_strTheme), m_pSystemTheme->Current());
}

// Layout.

void Frame::ApplyLayout(const Layout& layout) {
    acedRunner().SetRecent(layout.recent);
    QStringList history;
    for (const CString& line : layout.history) {
        history.append(ToQt(line.View()));
    }
    m_pPane->SetHistory(history);
    SetTheme(layout.theme);
    if (layout.window.width > 0) {
        Place(*this, OnScreen(layout.window, WorkAreas()));
    }
    // Create the native window first, because floating panes belong to it.
    winId();
    restoreState(QByteArray::fromStdString(layout.panes), kPaneVersion);
    if (layout.isMaximized) {
        setWindowState(windowState() | Qt::WindowMaximized);
    }
    // Always show the command line, through which everything can be reached.
    m_pCommandDock->show();
    if (layout.panes.empty()) {
        resizeDocks({m_pCommandDock}, {kCommandHeight}, Qt::Vertical);
    }
}

Layout Frame::CurrentLayout() const {
    Layout layout;
    layout.window = RectOf(*this);
    layout.isMaximized = isMaximized();
    layout.panes = saveState(kPaneVersion).toStdString();
    layout.recent = acedRunner().Recent();
    for (const QString& line : m_pPane->History()) {
        layout.history.push_back(FromQt(line));
    }
    layout.theme = m_strTheme;
    return layout;
}

void Frame::RaiseFloatingPanes() {
    QApplication::processEvents();
    for (QDockWidget* const pDock : findChildren<QDockWidget*>()) {
        if (pDock->isFloating() && pDock->isVisibleTo(this)) {
            const ScreenRect rect = OnScreen(RectOf(*pDock), WorkAreas());
            // Shown again, so that the window manager learns the owner, which now exists.
            pDock->hide();
            Place(*pDock, rect);
            pDock->show();
            pDock->raise();
        }
    }
}

void Frame::BringAllWindowsHere() {
    const std::vector<ScreenRect> areas = WorkAreas();
    if (isMinimized()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    Place(*this, OnScreen(RectOf(*this), areas));
    const ScreenRect here = RectOf(*this);
    int step = 0;
    for (QDockWidget* const pDock : findChildren<QDockWidget*>()) {
        if (pDock->isFloating() && pDock->isVisible()) {
            Place(*pDock, OnScreen(Beside(here, RectOf(*pDock), step++), areas));
            pDock->raise();
        }
    }
    for (const HWND handle : Screens().Stacking()) {
        CWnd* const pWindow = CWnd::FromHandle(handle);
        if (pWindow && pWindow != &m_window) {
            const CRect now = pWindow->GetWindowRect();
            const ScreenRect rect = OnScreen(
                Beside(here, {now.left, now.top, now.Width(), now.Height()}, step++), areas);
            pWindow->SetWindowPos(nullptr, rect.left, rect.top, 0, 0, SWP_NOSIZE);
        }
    }
}

} // namespace Tessaly
