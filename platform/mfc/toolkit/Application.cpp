#include "platform/mfc/toolkit/Application.h"

#include <algorithm>
#include <clocale>
#include <iterator>

#include <QCursor>
#include <QDesktopServices>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QPointer>
#include <QSocketNotifier>
#include <QTranslator>
#include <QUrl>

#include "platform/arx/Guard.h"
#include "platform/mfc/WaitCursor.h"
#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/Displays.h"
#include "platform/mfc/toolkit/ScreenPlace.h"
#include "platform/mfc/toolkit/WindowCore.h"
#include "platform/win/MessageCatalogue.h"
#include "platform/win/PlatformTexts.h"

namespace {

bool g_desktop = false;
/// Not destroyed at the end of the process, where the order of destruction is undefined.
Application* g_pApplication = nullptr;

bool IsTranslated(QEvent::Type type) {
    switch (type) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return true;
    default:
        return false;
    }
}

CPoint PointOf(const QEvent* pEvent) {
    const auto* const pMouse = dynamic_cast<const QMouseEvent*>(pEvent);
    return ToScreenPoint(pMouse ? pMouse->globalPosition().toPoint() : QCursor::pos());
}

MSG MessageOf(const WindowCore& core, const QWidget* pWidget, const QEvent* pEvent) {
    MSG msg;
    msg.hwnd = core.Handle();
    msg.pt = PointOf(pEvent);
    if (const auto* pKey = dynamic_cast<const QKeyEvent*>(pEvent)) {
        msg.message = WM_KEYDOWN;
        msg.wParam = static_cast<WPARAM>(VirtualKeyOf(pKey->key()));
        return msg;
    }
    const QWidget* const pClient = core.Client();
    if (pWidget != pClient && !pClient->isAncestorOf(pWidget)) {
        return msg; // on the caption or an edge, which PreTranslateMessage does not see
    }
    const auto* const pMouse = static_cast<const QMouseEvent*>(pEvent);
    if (pEvent->type() == QEvent::MouseMove) {
        msg.message = WM_MOUSEMOVE;
    } else if (pMouse->button() == Qt::LeftButton) {
        msg.message = WM_LBUTTONUP;
    } else if (pMouse->button() == Qt::RightButton) {
        msg.message = WM_RBUTTONUP;
    }
    const QPoint point = pWidget->mapTo(pClient, pMouse->position().toPoint());
    msg.lParam = PackInts(point.x(), point.y());
    return msg;
}

QtMessageHandler g_handlerBefore = nullptr;

/// Drops warnings about missing features of the in-memory display and about session folders, which
/// do not matter when only taking a screenshot.
void PassOn(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith("This plugin does not support") &&
        !text.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set")) {
        g_handlerBefore(type, context, text);
    }
}

} // namespace

int VirtualKeyOf(int key) {
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) {
        return key;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return VK_F1 + (key - Qt::Key_F1);
    }
    static constexpr struct {
        Qt::Key key;
        int code;
    } kKeys[] = {
        {Qt::Key_Return, VK_RETURN}, {Qt::Key_Enter, VK_RETURN},    {Qt::Key_Escape, VK_ESCAPE},
        {Qt::Key_Tab, VK_TAB},       {Qt::Key_Backspace, VK_BACK},  {Qt::Key_Shift, VK_SHIFT},
        {Qt::Key_Space, VK_SPACE},   {Qt::Key_Control, VK_CONTROL}, {Qt::Key_Insert, VK_INSERT},
        {Qt::Key_Left, VK_LEFT},     {Qt::Key_Delete, VK_DELETE},   {Qt::Key_Right, VK_RIGHT},
        {Qt::Key_Up, VK_UP},         {Qt::Key_Down, VK_DOWN},
    };
    const auto* const pFound = std::find_if(std::begin(kKeys), std::end(kKeys),
                                            [key](const auto& entry) { return entry.key == key; });
    return pFound == std::end(kKeys) ? VK_OTHER : pFound->code;
}

bool Application::notify(QObject* pReceiver, QEvent* pEvent) {
    // An exception must not propagate through the toolkit's event loop: that would end the program.
    bool isTaken = true;
    Guarded(PlatformMsg::WindowMessage, [&] { isTaken = NotifyUnguarded(pReceiver, pEvent); });
    return isTaken;
}

bool Application::NotifyUnguarded(QObject* pReceiver, QEvent* pEvent) {
    // An open popup (a list, a menu) grabs keyboard and mouse.
    if (IsTranslated(pEvent->type()) && pReceiver->isWidgetType() && !activePopupWidget() &&
        (m_inputs.empty() || m_inputs.back()->pEvent != pEvent)) {
        auto* const pWidget = static_cast<QWidget*>(pReceiver);
        if (WindowCore* const pCore = WindowCore::Around(pWidget)) {
            return NotifyInput(pWidget, *pCore, pEvent);
        }
    }
    // A double click is not pre-translated, but handlers ask for its position.
    if (pEvent->type() == QEvent::MouseButtonDblClick && pReceiver->isWidgetType()) {
        Input input{static_cast<QWidget*>(pReceiver), pEvent,
                    static_cast<QInputEvent*>(pEvent)->modifiers(), PointOf(pEvent)};
        input.dispatched = true;
        const InHand scope(m_inputs, input);
        return QApplication::notify(pReceiver, pEvent);
    }
    return QApplication::notify(pReceiver, pEvent);
}

bool Application::NotifyInput(QWidget* pWidget, WindowCore& core, QEvent* pEvent) {
    const auto* const pInputEvent = static_cast<QInputEvent*>(pEvent);
    Input input{pWidget, pEvent, pInputEvent->modifiers(), PointOf(pEvent)};
    const InHand scope(m_inputs, input);

    const QPointer<QWidget> receiver = pWidget;
    enmOutcome outcome = enmOutcome::GoesOn;
    const bool ownRelease =
        pEvent->type() == QEvent::MouseButtonRelease && core.Role() && core.Role()->OwnsRelease();
    if (!ownRelease && !TakeTranslated(pEvent, outcome)) {
        MSG msg = MessageOf(core, pWidget, pEvent);
        if (msg.message != 0 && core.PreTranslate(msg)) {
            outcome = input.dispatched ? enmOutcome::DispatchedSoon : enmOutcome::Eaten;
        }
        if (pEvent->type() == QEvent::ShortcutOverride && outcome != enmOutcome::GoesOn) {
            // Once accepted, it is not a shortcut and is delivered again as a key press.
            const auto* const pKey = static_cast<QKeyEvent*>(pEvent);
            m_keys.push_back({pKey->timestamp(), pKey->key(), pKey->modifiers(), outcome});
            pEvent->accept();
            return true;
        }
        if (pEvent->type() == QEvent::ShortcutOverride) {
            const auto* const pKey = static_cast<QKeyEvent*>(pEvent);
            m_keys.push_back({pKey->timestamp(), pKey->key(), pKey->modifiers(), outcome});
        }
        if (outcome == enmOutcome::DispatchedSoon) {
            return input.result;
        }
    }
    if (outcome == enmOutcome::Eaten || !receiver) {
        pEvent->accept();
        return true;
    }
    return QApplication::notify(pWidget, pEvent);
}

bool Application::TakeTranslated(const QEvent* pEvent, enmOutcome& outcome) {
    if (pEvent->type() != QEvent::KeyPress) {
        return false;
    }
    const auto* const pKey = static_cast<const QKeyEvent*>(pEvent);
    const auto found = std::find_if(m_keys.begin(), m_keys.end(), [pKey](const TranslatedKey& key) {
        return key.time == pKey->timestamp() && key.key == pKey->key() &&
               key.modifiers == pKey->modifiers();
    });
    if (found == m_keys.end()) {
        return false;
    }
    outcome = found->outcome;
    // Entries before it were shortcuts, whose key press never arrives. Entries after it belong to
    // keys typed in a nested loop, which are all processed.
    m_keys.erase(m_keys.begin(), std::next(found));
    return true;
}

void Application::DispatchInHand() {
    if (m_inputs.empty() || m_inputs.back()->dispatched) {
        return;
    }
    Input& input = *m_inputs.back();
    input.dispatched = true;
    if (input.pEvent->type() != QEvent::ShortcutOverride) {
        input.result = QApplication::notify(input.pReceiver, input.pEvent);
    }
}

Qt::KeyboardModifiers Application::ModifiersInHand() const {
    return m_inputs.empty() ? keyboardModifiers() : m_inputs.back()->modifiers;
}

CPoint Application::PointInHand() const {
    return m_inputs.empty() ? ToScreenPoint(QCursor::pos()) : m_inputs.back()->point;
}

void AfxSetDesktopMode(bool desktop) {
    g_desktop = desktop;
}

bool AfxIsDesktopMode() {
    return g_desktop;
}

bool AfxHasDisplay() {
    // The toolkit may have failed to open a display that answers.
    const std::string visible = VisibleDisplays();
    return !visible.empty() &&
           (!QCoreApplication::instance() ||
            visible.find(QGuiApplication::platformName().toStdString()) != std::string::npos);
}

/// Installs translations of the toolkit's own texts, as in file dialogs, if available.
static void TranslateToolkit() {
    auto* const pTexts = new QTranslator(QCoreApplication::instance());
    if (pTexts->load(QStringLiteral("qtbase_") + ToQString(Language().View()),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(pTexts);
    }
}

void AfxStartToolkit() {
    if (QCoreApplication::instance()) {
        return;
    }
    // Set only for the start, so that child processes choose their own.
    const QByteArray named = qgetenv("QT_QPA_PLATFORM");
    const QByteArray displays = QByteArray::fromStdString(DisplaysToStartWith(g_desktop));
    qputenv("QT_QPA_PLATFORM", displays);
    if (displays.startsWith("offscreen")) {
        g_handlerBefore = qInstallMessageHandler(&PassOn);
    }
    static int argc = 1;
    static char name[] = "tessaly";
    static char* argv[] = {name, nullptr};
    g_pApplication = new Application(argc, argv);
    if (named.isEmpty()) {
        qunsetenv("QT_QPA_PLATFORM");
    } else {
        qputenv("QT_QPA_PLATFORM", named);
    }
    // The toolkit sets the user's locale for everything, but our files use a decimal point.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setQuitOnLastWindowClosed(false);
    TranslateToolkit();
}

void AfxStopToolkit() {
    for (WindowCore* const pCore : WindowCore::All()) {
        if (!pCore->Parent() && WindowCore::Find(pCore->Handle())) {
            pCore->Destroy();
        }
    }
    delete g_pApplication;
    g_pApplication = nullptr;
}

void AfxPumpMessages() {
    if (!QCoreApplication::instance()) {
        return;
    }
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

namespace {

struct PostedCall final : QEvent {
    explicit PostedCall(std::function<void()> function)
        : QEvent(QEvent::User), call(std::move(function)) {}
    std::function<void()> call;
};

struct CallReceiver final : QObject {
    bool event(QEvent* pEvent) override {
        auto* const pPosted = dynamic_cast<PostedCall*>(pEvent);
        if (pPosted) {
            pPosted->call();
        }
        return pPosted || QObject::event(pEvent);
    }
};

} // namespace

void AfxCallSoon(std::function<void()> call) {
    if (QCoreApplication::instance()) {
        static auto* const receiver = new CallReceiver;
        QCoreApplication::postEvent(receiver, new PostedCall(std::move(call)));
    }
}

void AfxWaitForInput(int file) {
    static bool s_waiting = false;
    if (!QCoreApplication::instance() || s_waiting) {
        return;
    }
    s_waiting = true;
    AfxPumpMessages();
    QEventLoop loop;
    const QSocketNotifier notifier(file, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &loop, &QEventLoop::quit);
    loop.exec();
    s_waiting = false;
}

bool AfxOpenAddress(const wchar_t* address) {
    AfxStartToolkit();
    return QDesktopServices::openUrl(QUrl(ToQString(address)));
}

void DispatchMessage(const MSG*) {
    if (g_pApplication) {
        g_pApplication->DispatchInHand();
    }
}

CPoint GetMessagePos() {
    return g_pApplication ? g_pApplication->PointInHand() : CPoint();
}

short GetKeyState(int virtualKey) {
    if (!g_pApplication) {
        return 0;
    }
    const Qt::KeyboardModifiers held = g_pApplication->ModifiersInHand();
    const Qt::KeyboardModifier asked =
        virtualKey == VK_CONTROL ? Qt::ControlModifier
                                 : (virtualKey == VK_SHIFT ? Qt::ShiftModifier : Qt::NoModifier);
    return held.testFlag(asked) && asked != Qt::NoModifier ? static_cast<short>(-32768) : short{0};
}

CWaitCursor::CWaitCursor() : m_shown(QCoreApplication::instance() != nullptr) {
    if (m_shown) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
}

CWaitCursor::~CWaitCursor() {
    if (m_shown && QCoreApplication::instance()) {
        QApplication::restoreOverrideCursor();
    }
}
