#include "host/desktop/Frame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include "host/HostCommands.h"
#include "host/desktop/CommandPalette.h"
#include "host/desktop/CommandPane.h"
#include "host/desktop/DesktopPort.h"
#include "host/desktop/QtTexts.h"
#include "host/desktop/Theme.h"
#include "host/desktop/view/DrawingView.h"
#include "platform/mfc/NativeWidget.h"
#include "platform/xtp/XTPDockingPaneManager.h"

namespace Tessaly {

namespace {

/// Of the saved pane states; another number makes old ones unreadable.
constexpr int kPaneVersion = 1;
constexpr std::size_t kMostRecent = 30;
constexpr int kCommandHeight = 150; // at first
constexpr int kRaiseDelay = 150;    // ms
constexpr int kTitleInterval = 500; // ms
/// Between two looks at what the user does while long work goes on.
constexpr int kEventInterval = 40; // ms
constexpr const wchar_t* kFirstWords = L"Tessaly. HELP lists the commands, QUIT leaves.\n";

const QString kDrawingFilter = QStringLiteral("Drawings (*.gpkg);;All files (*)");

std::vector<ScreenRect> WorkAreas() {
    std::vector<ScreenRect> areas;
    for (const QScreen* const pScreen : QGuiApplication::screens()) {
        const QRect area = pScreen->availableGeometry();
        areas.push_back({area.x(), area.y(), area.width(), area.height()});
    }
    return areas;
}

/// With its title bar as far as the place goes: that is what has to be on a screen.
ScreenRect RectOf(const QWidget& window) {
    const QRect rect =
        window.isMaximized() ? window.normalGeometry() : QRect(window.pos(), window.size());
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

void Place(QWidget& window, const ScreenRect& rect) {
    window.resize(rect.width, rect.height);
    window.move(rect.left, rect.top);
}

/// What a menu entry does: a command of the host.
struct MenuCommand {
    const char* text;
    const char* shortcut;
    const wchar_t* command;
};

} // namespace

Frame::Frame() : m_pPort(std::make_unique<DesktopPort>(*this)) {
    setObjectName(QStringLiteral("Frame"));
    m_pTabs = new QTabWidget;
    m_pTabs->setDocumentMode(true);
    m_pTabs->setTabsClosable(true);
    m_pTabs->setMovable(false);
    m_pTabs->setAccessibleName(tr("Drawings"));
    setCentralWidget(m_pTabs);
    connect(m_pTabs, &QTabWidget::currentChanged, this, &Frame::OnTabChanged);
    connect(m_pTabs, &QTabWidget::tabCloseRequested, this, [this](int index) {
        m_pTabs->setCurrentIndex(index);
        Run(L"CLOSE");
    });
    MakePanes();
    MakeStatusBar();
    m_pPalette = new CommandPalette(this);
    connect(m_pPalette, &CommandPalette::chosen, this,
            [this](const QString& name) { Run(FromQt(name)); });
    MakeMenus();
    auto* const pTimer = new QTimer(this);
    connect(pTimer, &QTimer::timeout, this, &Frame::UpdateTitles);
    pTimer->start(kTitleInterval);
    acDocManagerPtr()->addReactor(this);
    AttachNativeWidget(m_window, this);
    acedSetAcadFrame(&m_window);
    resize(1280, 860);
    UpdateTitles();
    ShowText(ToQt(kFirstWords));
}

Frame::~Frame() {
    acedSetAcadDwgView(nullptr);
    acedSetAcadFrame(nullptr);
    acDocManagerPtr()->removeReactor(this);
}

// What it consists of.

void Frame::MakePanes() {
    m_pPane = new CommandPane;
    m_pCommandDock = new QDockWidget(tr("Command line"), this);
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
    m_pStop = new QPushButton(tr("Stop"));
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
        add(pMenu, tr(entry.text), QString::fromLatin1(entry.shortcut),
            [this, name = CString(entry.command)] { Run(name); });
    };
    QMenu* const pFile = menuBar()->addMenu(tr("&File"));
    command(pFile, {"&New", "Ctrl+N", L"NEW"});
    add(pFile, tr("&Open…"), QStringLiteral("Ctrl+O"), [this] { OpenWithDialog(); });
    command(pFile, {"&Save", "Ctrl+S", L"SAVE"});
    add(pFile, tr("Save &as…"), QStringLiteral("Ctrl+Shift+S"), [this] { SaveAsWithDialog(); });
    add(pFile, tr("&Import…"), QStringLiteral("Ctrl+I"), [this] { ImportWithDialog(); });
    command(pFile, {"&Close", "Ctrl+W", L"CLOSE"});
    pFile->addSeparator();
    command(pFile, {"&Quit", "Ctrl+Q", L"QUIT"});

    QMenu* const pEdit = menuBar()->addMenu(tr("&Edit"));
    command(pEdit, {"&Undo", "Ctrl+Z", L"UNDO"});
    command(pEdit, {"&Redo", "Ctrl+Shift+Z", L"REDO"});

    QMenu* const pView = menuBar()->addMenu(tr("&View"));
    add(pView, tr("Zoom &extents"), QStringLiteral("Ctrl+0"), [this] {
        if (DrawingView* const pDrawing = CurrentView()) {
            pDrawing->ZoomExtents();
        }
    });
    pView->addSeparator();
    pView->addAction(m_pCommandDock->toggleViewAction());
    add(pView, tr("&Bring all windows here"), QStringLiteral("Ctrl+Shift+B"),
        [this] { BringAllWindowsHere(); });
    MakeThemeMenu(*pView->addMenu(tr("&Theme")));

    QMenu* const pTools = menuBar()->addMenu(tr("&Tools"));
    add(pTools, tr("Command &palette…"), QStringLiteral("Ctrl+Shift+P"), [this] { ShowPalette(); });
    add(pTools, tr("Go to the command &line"), QStringLiteral("Ctrl+L"),
        [this] { m_pPane->FocusInput(); });

    QMenu* const pHelp = menuBar()->addMenu(tr("&Help"));
    command(pHelp, {"&Commands", "F1", L"HELP"});
}

void Frame::MakeThemeMenu(QMenu& menu) {
    const std::pair<const char*, const wchar_t*> themes[] = {
        {"As the &system", L""}, {"&Light", L"light"}, {"&Dark", L"dark"}};
    for (const auto& [text, theme] : themes) {
        connect(menu.addAction(tr(text)), &QAction::triggered, this,
                [this, name = CString(theme)] { SetTheme(name); });
    }
}

void Frame::SetTheme(const CString& theme) {
    m_strTheme = theme;
    ApplyTheme(theme);
}

void Frame::changeEvent(QEvent* pEvent) {
    if (pEvent->type() == QEvent::PaletteChange) {
        for (const auto& [pDoc, view] : m_views) {
            view.pView->update();
        }
    }
    QMainWindow::changeEvent(pEvent);
}

void Frame::keyPressEvent(QKeyEvent* pEvent) {
    // Whoever types over the drawing means the command line; a key that a pane has left is
    // not meant for it.
    const QWidget* const pFocus = QApplication::focusWidget();
    const bool isOver = !pFocus || pFocus == this || pFocus == centralWidget() ||
                        centralWidget()->isAncestorOf(pFocus) ||
                        m_pCommandDock->isAncestorOf(pFocus);
    const bool isText = !pEvent->text().isEmpty() && pEvent->text()[0].isPrint() &&
                        !(pEvent->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const bool isEnter = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
    if (isOver && (isText || isEnter) && m_pPane->isEnabled()) {
        m_pPane->TypeKey(*pEvent);
    } else {
        QMainWindow::keyPressEvent(pEvent);
    }
}

// Where it was.

void Frame::ApplyLayout(const Layout& layout) {
    m_recent = layout.recent;
    QStringList history;
    for (const CString& line : layout.history) {
        history.append(ToQt(line.View()));
    }
    m_pPane->SetHistory(history);
    SetTheme(layout.theme);
    if (layout.window.width > 0) {
        Place(*this, OnScreen(layout.window, WorkAreas()));
    }
    // Panes that float belong to a window that is there before them.
    winId();
    restoreState(QByteArray::fromStdString(layout.panes), kPaneVersion);
    if (layout.isMaximized) {
        setWindowState(windowState() | Qt::WindowMaximized);
    }
    // The command line is how everything is reached.
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
    layout.recent = m_recent;
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
            // Shown anew: a window manager knows only now to whom it belongs.
            pDock->hide();
            Place(*pDock, rect);
            pDock->show();
            pDock->raise();
        }
    }
}

void Frame::BringAllWindowsHere() {
    const std::vector<ScreenRect> areas = WorkAreas();
    Place(*this, OnScreen(RectOf(*this), areas));
    const ScreenRect here = RectOf(*this);
    int step = 0;
    for (QDockWidget* const pDock : findChildren<QDockWidget*>()) {
        if (pDock->isFloating() && pDock->isVisible()) {
            ScreenRect rect = RectOf(*pDock);
            rect.left = here.left + 40 + 30 * step;
            rect.top = here.top + 80 + 30 * step;
            Place(*pDock, OnScreen(rect, areas));
            pDock->raise();
            ++step;
        }
    }
}

// Commands.

void Frame::OnEntered(const QString& line) {
    if (m_pPort->IsPrompting()) {
        m_pPort->Answer(FromQt(line));
    } else if (!IsRunning()) {
        // Nothing typed means the last command again, as draftsmen are used to.
        const CString name = FromQt(line).Trim();
        m_pPane->Remember(line);
        if (!name.IsEmpty() || !m_recent.empty()) {
            Run(name.IsEmpty() ? m_recent.front() : name);
        }
    }
}

void Frame::OnEscaped() {
    DrawingView* const pView = CurrentView();
    if (m_pPort->IsPrompting()) {
        m_pPort->Cancel();
    } else if (pView) {
        pView->SetSelection({});
    }
}

void Frame::Run(const CString& name) {
    if (!m_pSession) {
        return;
    }
    if (IsRunning()) {
        m_pPort->CancelOpen();
        m_pPort->PostCommand(name.View());
        return;
    }
    const auto used = std::find(m_recent.begin(), m_recent.end(), CString(name).MakeUpper());
    if (used != m_recent.end()) {
        m_recent.erase(used);
    }
    m_recent.insert(m_recent.begin(), CString(name).MakeUpper());
    m_recent.resize(std::min(m_recent.size(), kMostRecent));
    m_pPort->PrintLine(L"> " + name);
    ++m_nDepth;
    m_pSession->RunCommand(name);
    --m_nDepth;
    m_pPort->DropAnswers();
    AfterRunning();
}

int Frame::RunScript(const CString& path) {
    ++m_nDepth;
    const int status = m_pSession->RunScript(path);
    --m_nDepth;
    AfterRunning();
    return status;
}

void Frame::AfterRunning() {
    UpdateTitles();
    if (HasQuit()) {
        // Behind what is still open, so that nothing is left in a loop of its own.
        QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
    }
    RunPostedSoon();
}

void Frame::RunAnswered(const CString& name, const std::vector<CString>& answers) {
    if (IsRunning()) {
        return;
    }
    for (const CString& answer : answers) {
        m_pPort->QueueAnswer(answer);
    }
    Run(name);
}

bool Frame::IsScripted() const {
    return m_pPort->IsScripted();
}

void Frame::RunPostedSoon() {
    QMetaObject::invokeMethod(this, "RunPosted", Qt::QueuedConnection);
}

void Frame::RunPosted() {
    if (!IsRunning() && m_pSession && !HasQuit()) {
        if (const std::optional<CString> posted = m_pPort->TakePosted()) {
            Run(*posted);
        }
    }
}

void Frame::ShowPalette() {
    m_pPalette->Open(ListCommands(), m_recent);
}

void Frame::UpdateCompletions() {
    QStringList names;
    for (const ListedCommand& command : ListCommands()) {
        names.append(ToQt(command.name.View()));
    }
    names.sort();
    m_pPane->SetCompletions(names);
}

void Frame::OpenWithDialog() {
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open a drawing"), {}, kDrawingFilter);
    if (!file.isEmpty()) {
        RunAnswered(L"OPEN", {FromQt(file)});
    }
}

void Frame::SaveAsWithDialog() {
    const QString file =
        QFileDialog::getSaveFileName(this, tr("Save the drawing as"), {}, kDrawingFilter);
    if (!file.isEmpty()) {
        // The dialog has asked already whether a file may be replaced.
        RunAnswered(L"SAVEAS", {FromQt(file), L"Yes"});
    }
}

void Frame::ImportWithDialog() {
    const QString file = QFileDialog::getOpenFileName(this, tr("Import a file"));
    if (!file.isEmpty()) {
        RunAnswered(L"IMPORT", {FromQt(file)});
    }
}

// For the port.

void Frame::ShowText(const QString& text) {
    m_pPane->Append(text);
}

void Frame::BeginPrompt(const QString& prompt) {
    m_prompts.append(prompt);
    m_pPane->SetPrompt(prompt);
    m_pPane->SetCompleting(false);
}

void Frame::EndPrompt() {
    m_prompts.removeLast();
    m_pPane->SetPrompt(m_prompts.isEmpty() ? QString() : m_prompts.last());
    m_pPane->SetCompleting(m_prompts.isEmpty());
    if (!IsRunning()) {
        RunPostedSoon();
    }
}

bool Frame::ShowProgress(const QString& what, int percent) {
    static QElapsedTimer s_sinceEvents;
    const bool isFirst = m_pWork->isHidden();
    if (isFirst) {
        m_bStopAsked = false;
    } else if (s_sinceEvents.isValid() && s_sinceEvents.elapsed() < kEventInterval) {
        return !m_bStopAsked;
    }
    m_pWork->setText(what);
    m_pProgress->setValue(percent);
    m_pWork->show();
    m_pProgress->show();
    m_pStop->show();
    // Only stopping is possible meanwhile: the drawing is being worked on.
    centralWidget()->setEnabled(false);
    menuBar()->setEnabled(false);
    m_pPane->setEnabled(false);
    QApplication::processEvents();
    s_sinceEvents.start();
    return !m_bStopAsked;
}

void Frame::EndProgress() {
    for (QWidget* const pWidget :
         {static_cast<QWidget*>(m_pWork), static_cast<QWidget*>(m_pProgress),
          static_cast<QWidget*>(m_pStop)}) {
        pWidget->hide();
    }
    centralWidget()->setEnabled(true);
    menuBar()->setEnabled(true);
    m_pPane->setEnabled(true);
}

void Frame::closeEvent(QCloseEvent* pEvent) {
    if (HasQuit()) {
        pEvent->accept();
        return;
    }
    // QUIT asks about changes, and the modules, and closes the window if all agree.
    pEvent->ignore();
    if (m_pWork->isHidden()) {
        Run(L"QUIT");
    }
}

// Drawings.

DrawingView* Frame::CurrentView() const {
    const auto hit = m_views.find(acDocManagerPtr()->curDocument());
    return hit == m_views.end() ? nullptr : hit->second.pView;
}

void Frame::documentBecameCurrent(AcApDocument* pDoc) {
    m_bFollowing = true;
    if (pDoc && !m_views.contains(pDoc)) {
        auto* const pView = new DrawingView;
        pView->SetDatabase(pDoc->database());
        connect(pView, &DrawingView::PositionMoved, this, [this](double x, double y) {
            m_pPosition->setText(QStringLiteral("%1, %2").arg(x, 0, 'f', 3).arg(y, 0, 'f', 3));
        });
        auto pWindow = std::make_unique<CWnd>();
        AttachNativeWidget(*pWindow, pView);
        m_views[pDoc] = {pView, std::move(pWindow)};
        m_pTabs->addTab(pView, ToQt(pDoc->title().View()));
    }
    if (pDoc) {
        m_pTabs->setCurrentWidget(m_views[pDoc].pView);
    }
    acedSetAcadDwgView(pDoc ? m_views[pDoc].pWindow.get() : nullptr);
    m_bFollowing = false;
    UpdateTitles();
}

void Frame::documentToBeDestroyed(AcApDocument* pDoc) {
    const auto hit = m_views.find(pDoc);
    if (hit != m_views.end()) {
        m_bFollowing = true;
        if (acedGetAcadDwgView() == hit->second.pWindow.get()) {
            acedSetAcadDwgView(nullptr);
        }
        DrawingView* const pView = hit->second.pView;
        m_views.erase(hit);
        m_pTabs->removeTab(m_pTabs->indexOf(pView));
        delete pView;
        m_bFollowing = false;
    }
}

void Frame::OnTabChanged(int index) {
    for (const auto& [pDoc, view] : m_views) {
        if (!m_bFollowing && m_pTabs->widget(index) == view.pView) {
            if (IsRunning()) {
                // A command works on the drawing that it began with.
                documentBecameCurrent(acDocManagerPtr()->curDocument());
            } else {
                acDocManagerPtr()->setCurDocument(pDoc);
            }
            return;
        }
    }
}

void Frame::UpdateTitles() {
    for (const auto& [pDoc, view] : m_views) {
        const QString title =
            ToQt(pDoc->title().View()) + (pDoc->isModified() ? QStringLiteral(" *") : QString());
        const int index = m_pTabs->indexOf(view.pView);
        if (m_pTabs->tabText(index) != title) {
            m_pTabs->setTabText(index, title);
            m_pTabs->setTabToolTip(index, ToQt(pDoc->fileName()));
        }
    }
    const AcApDocument* const pDoc = acDocManagerPtr()->curDocument();
    setWindowTitle(pDoc ? ToQt(pDoc->title().View()) + QStringLiteral("[*] – Tessaly")
                        : QStringLiteral("Tessaly"));
    setWindowModified(pDoc && pDoc->isModified());
    if (!m_pPalette->isVisible() && !IsRunning()) {
        const auto count = acedRegCmds()->commands().size() + acedRegCmds()->sources().size();
        if (static std::size_t s_nLast = 0; s_nLast != count) {
            s_nLast = count;
            UpdateCompletions();
        }
    }
}

} // namespace Tessaly
