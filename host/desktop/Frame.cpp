#include "host/desktop/Frame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QUrl>

#include "host/HostCommands.h"
#include "host/desktop/CommandPalette.h"
#include "host/desktop/CommandPane.h"
#include "host/desktop/QtTexts.h"
#include "host/desktop/Theme.h"
#include "host/desktop/view/DrawingView.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/HostOptions.h"
#include "platform/mfc/Dialog.h"
#include "platform/mfc/NativeWidget.h"
#include "platform/mfc/WinApp.h"
#include "platform/win/File.h"
#include "platform/win/MessageCatalogue.h"
#include "platform/win/Screens.h"
#include "platform/xtp/XTPDockingPaneManager.h"

namespace Tessaly {

namespace {

constexpr int kTitleInterval = 500; // ms
/// Interval for processing user events during a long operation.
constexpr int kEventInterval = 40; // ms

/// The start page of the help, in the user's language if available.
CString HelpPage() {
    const CString page = GetHostOption(kHostOptionInstall) + L"help/index";
    const CString translated = page + L"_" + Language() + L".htm";
    return FileExists(translated) ? translated : page + L".htm";
}

QString DrawingFilter() {
    return QtText(Msg::DrawingFiles) + QStringLiteral(" (*.gpkg);;") + QtText(Msg::AllFiles) +
           QStringLiteral(" (*)");
}

/// Escapes "&", which would underline the next letter.
QString TabText(const AcApDocument& document) {
    return ToQt(document.title().View()).replace('&', "&&") +
           (document.isModified() ? QStringLiteral(" *") : QString());
}

/// The dialogs that contain a window, the innermost first.
std::vector<CDialog*> DialogsAround(CWnd* pWindow) {
    std::vector<CDialog*> dialogs;
    for (; pWindow; pWindow = pWindow->GetParent()) {
        if (auto* const pDialog = dynamic_cast<CDialog*>(pWindow)) {
            dialogs.push_back(pDialog);
        }
    }
    return dialogs;
}

} // namespace

Frame::Frame() {
    setObjectName(QStringLiteral("Frame"));
    m_pTabs = new QTabWidget;
    m_pTabs->setDocumentMode(true);
    m_pTabs->setTabsClosable(true);
    m_pTabs->setMovable(false);
    m_pTabs->setAccessibleName(QtText(Msg::DrawingsName));
    setCentralWidget(m_pTabs);
    connect(m_pTabs, &QTabWidget::currentChanged, this, &Frame::OnTabChanged);
    connect(m_pTabs, &QTabWidget::tabCloseRequested, this, [this](int index) {
        m_pTabs->setCurrentIndex(index);
        acedRunner().Give({L"CLOSE", OrderOrigin::Menu});
    });
    MakePanes();
    MakeStatusBar();
    m_pPalette = new CommandPalette(this);
    connect(m_pPalette, &CommandPalette::chosen, this, [](const QString& name) {
        acedRunner().Give({FromQt(name), OrderOrigin::Palette});
    });
    MakeMenus();
    m_pSystemTheme = std::make_unique<SystemTheme>();
    connect(m_pSystemTheme.get(), &SystemTheme::changed, this, &Frame::FollowTheme);
    auto* const pTimer = new QTimer(this);
    connect(pTimer, &QTimer::timeout, this, &Frame::UpdateTitles);
    pTimer->start(kTitleInterval);
    acDocManagerPtr()->addReactor(this);
    acedRunner().AddWatcher(this);
    AttachNativeWidget(m_window, this);
    acedSetAcadFrame(&m_window);
    resize(1280, 860);
    UpdateTitles();
    ShowText(QtText(Msg::Welcome) + QLatin1Char('\n'));
}

Frame::~Frame() {
    acedSetAcadDwgView(nullptr);
    acedSetAcadFrame(nullptr);
    acedRunner().RemoveWatcher(this);
    acDocManagerPtr()->removeReactor(this);
}

void Frame::changeEvent(QEvent* pEvent) {
    if (pEvent->type() == QEvent::PaletteChange) {
        for (const auto& [pDoc, view] : m_views) {
            view.pView->update();
        }
    }
    QMainWindow::changeEvent(pEvent);
}

bool Frame::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (pEvent->type() == QEvent::Enter) {
        if (auto* const pView = qobject_cast<DrawingView*>(pWatched)) {
            LeaveKeyboardTo(*pView);
        }
    }
    return QMainWindow::eventFilter(pWatched, pEvent);
}

void Frame::LeaveKeyboardTo(DrawingView& view) {
    const std::vector<CDialog*> dialogs = DialogsAround(CWnd::GetFocus());
    const bool isKept = std::any_of(dialogs.begin(), dialogs.end(), [](CDialog* pDialog) {
        return pDialog->SendMessage(WM_ACAD_KEEPFOCUS) != 0;
    });
    if (!dialogs.empty() && !isKept) {
        view.activateWindow();
        view.setFocus(Qt::MouseFocusReason);
    }
}

void Frame::keyPressEvent(QKeyEvent* pEvent) {
    // Typing over the drawing goes to the command line, but not keys that another pane has left
    // unhandled.
    const QWidget* pPane = QApplication::focusWidget();
    while (pPane && !qobject_cast<const QDockWidget*>(pPane)) {
        pPane = pPane->parentWidget();
    }
    const bool isOver = !pPane || pPane == m_pCommandDock;
    const bool isText = !pEvent->text().isEmpty() && pEvent->text()[0].isPrint() &&
                        !(pEvent->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const bool isEnter = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
    if (isOver && (isText || isEnter) && m_pPane->isEnabled()) {
        m_pPane->TypeKey(*pEvent);
    } else {
        QMainWindow::keyPressEvent(pEvent);
    }
}

// Commands.

void Frame::OnEntered(const QString& line) {
    if (!acedRunner().IsBusy()) {
        m_pPane->Remember(line);
    }
}

void Frame::OnEscaped() {
    DrawingView* const pView = CurrentView();
    if (m_prompts.isEmpty() && pView) {
        pView->SetSelection({});
    }
}

void Frame::CommandEnded(const CommandOrder&, bool) {
    if (acedRunner().IsBusy()) {
        return;
    }
    UpdateTitles();
    if (HasQuit()) {
        // Queued, so that nested event loops can end first.
        QMetaObject::invokeMethod(this, "LeaveLoop", Qt::QueuedConnection);
    }
}

void Frame::LeaveLoop() {
    // Not quit(): it would ask every window to close, and a dialog that refuses would keep the
    // program running.
    QCoreApplication::exit();
}

void Frame::ShowPalette() {
    m_pPalette->Open(ListCommands(), acedRunner().Recent());
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
        QFileDialog::getOpenFileName(this, QtText(Msg::OpenTitle), {}, DrawingFilter());
    if (!file.isEmpty()) {
        acedRunner().Give({L"OPEN", OrderOrigin::Menu, nullptr, {FromQt(file)}});
    }
}

void Frame::SaveAsWithDialog() {
    const QString file =
        QFileDialog::getSaveFileName(this, QtText(Msg::SaveAsTitle), {}, DrawingFilter());
    if (!file.isEmpty()) {
        // The file dialog has already asked about replacing the file.
        acedRunner().Give(
            {L"SAVEAS", OrderOrigin::Menu, nullptr, {FromQt(file), KeywordAnswer(YesChoice())}});
    }
}

void Frame::ImportWithDialog() {
    const QString file = QFileDialog::getOpenFileName(this, QtText(Msg::ImportTitle));
    if (!file.isEmpty()) {
        acedRunner().Give({L"IMPORT", OrderOrigin::Menu, nullptr, {FromQt(file)}});
    }
}

void Frame::OpenHelp() {
    const CString page = HelpPage();
    const QUrl address = QUrl::fromLocalFile(ToQt(page.View()));
    if (!QFileInfo::exists(address.toLocalFile()) ||
        !AfxOpenAddress(FromQt(address.toString(QUrl::FullyEncoded)))) {
        PrintText(Msg::HelpNotOpened, page);
    }
}

// Prompts and output.

void Frame::ShowText(const QString& text) {
    m_pPane->Append(text);
}

void Frame::SetColors(const CommandLineLook& messages, const CommandLineLook& prompt) {
    m_pPane->SetColors(messages, prompt);
}

void Frame::BeginPrompt(const QString& prompt, bool takesText) {
    m_prompts.append(prompt);
    m_pPane->SetPrompt(prompt);
    m_pPane->SetCompleting(false);
    if (takesText) {
        m_pPane->FocusInput();
    }
}

void Frame::EndPrompt() {
    m_prompts.removeLast();
    m_pPane->SetPrompt(m_prompts.isEmpty() ? QString() : m_prompts.last());
    m_pPane->SetCompleting(m_prompts.isEmpty());
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
    if (isFirst) {
        RestWhileWorking();
    }
    QApplication::processEvents();
    s_sinceEvents.start();
    return !m_bStopAsked;
}

void Frame::RestWhileWorking() {
    // Disables everything except stopping, because the drawing is being changed.
    m_focusBefore = QApplication::focusWidget();
    m_resting = {centralWidget(), menuBar(), m_pPalette};
    for (QDockWidget* const pDock : findChildren<QDockWidget*>()) {
        m_resting.emplace_back(pDock);
    }
    for (const HWND handle : Screens().Stacking()) {
        const CWnd* const pWindow = CWnd::FromHandle(handle);
        if (pWindow && pWindow != &m_window) {
            m_resting.emplace_back(static_cast<QWidget*>(NativeWidget(*pWindow)));
        }
    }
    std::erase_if(m_resting, [](const auto& pWidget) { return !pWidget || !pWidget->isEnabled(); });
    for (const auto& pWidget : m_resting) {
        pWidget->setEnabled(false);
    }
}

void Frame::EndProgress() {
    for (QWidget* const pWidget :
         {static_cast<QWidget*>(m_pWork), static_cast<QWidget*>(m_pProgress),
          static_cast<QWidget*>(m_pStop)}) {
        pWidget->hide();
    }
    for (const auto& pWidget : std::exchange(m_resting, {})) {
        if (pWidget) {
            pWidget->setEnabled(true);
        }
    }
    if (m_focusBefore && !QApplication::focusWidget()) {
        m_focusBefore->setFocus();
    }
}

void Frame::closeEvent(QCloseEvent* pEvent) {
    if (HasQuit()) {
        pEvent->accept();
        return;
    }
    // QUIT asks about unsaved changes, then the modules, and closes the window if all agree.
    pEvent->ignore();
    if (m_pWork->isHidden()) {
        acedRunner().Give({L"QUIT", OrderOrigin::Menu});
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
        connect(pView, &DrawingView::PositionLeft, m_pPosition, &QLabel::clear);
        pView->installEventFilter(this);
        auto pWindow = std::make_unique<CWnd>();
        AttachNativeWidget(*pWindow, pView);
        m_views[pDoc] = {pView, std::move(pWindow)};
        m_pTabs->addTab(pView, TabText(*pDoc));
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
            if (acedRunner().IsBusy()) {
                // A running command keeps working on its drawing, so switch back.
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
        const QString title = TabText(*pDoc);
        const int index = m_pTabs->indexOf(view.pView);
        if (m_pTabs->tabText(index) != title) {
            m_pTabs->setTabText(index, title);
            m_pTabs->setTabToolTip(index, ToQt(pDoc->fileName()));
        }
    }
    const AcApDocument* const pDoc = acDocManagerPtr()->curDocument();
    // Qt replaces "[*]" by the mark of unsaved changes; escape it in names.
    setWindowTitle(pDoc ? ToQt(pDoc->title().View()).replace("[*]", "[*][*]") +
                              QStringLiteral("[*] – Tessaly")
                        : QStringLiteral("Tessaly"));
    setWindowModified(pDoc && pDoc->isModified());
    if (!m_pPalette->isVisible() && !acedRunner().IsBusy()) {
        const auto count = acedRegCmds()->commands().size() + acedRegCmds()->sources().size();
        if (static std::size_t s_nLast = 0; s_nLast != count) {
            s_nLast = count;
            UpdateCompletions();
        }
    }
}

} // namespace Tessaly
