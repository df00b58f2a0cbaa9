#include "platform/mfc/toolkit/WindowCore.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QUrl>

#include "platform/arx/Guard.h"
#include "platform/mfc/toolkit/Application.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/DroppedFiles.h"
#include "platform/mfc/toolkit/ScreenPlace.h"
#include "platform/mfc/toolkit/Stacking.h"
#include "platform/win/PlatformTexts.h"

namespace {

/// The step named in reports of failures in window handlers.
constexpr PlatformMsg kStep = PlatformMsg::WindowMessage;

/// Never destroyed: windows may be static objects.
auto& CoresByHandle() {
    static auto& cores = *new std::unordered_map<HWND, std::shared_ptr<WindowCore>>;
    return cores;
}

auto& CoresByWidget() {
    static auto& cores = *new std::unordered_map<const QWidget*, WindowCore*>;
    return cores;
}

HWND NextHandle() {
    static LPARAM last = 0;
    return PointerOf<WindowHandle>(++last);
}

const QEvent::Type kPostedMessage = static_cast<QEvent::Type>(QEvent::registerEventType());

/// Limit for positions, which may come from files. No display is larger, and greater numbers would
/// overflow inside the toolkit.
constexpr int kFarthest = 32767;
constexpr int kLargest = 8192;

QPoint OnAnyDisplay(QPoint point) {
    return {std::clamp(point.x(), -kFarthest, kFarthest),
            std::clamp(point.y(), -kFarthest, kFarthest)};
}

QSize OfAnyDisplay(QSize size) {
    const QSize all = QGuiApplication::primaryScreen()
                          ? QGuiApplication::primaryScreen()->virtualSize()
                          : QSize();
    return size.boundedTo(all.expandedTo(QSize(kLargest, kLargest))).expandedTo(QSize(0, 0));
}

struct PostedMessage final : QEvent {
    PostedMessage(UINT m, WPARAM w, LPARAM l)
        : QEvent(kPostedMessage), message(m), wParam(w), lParam(l) {}
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

} // namespace

/// A message being handled.
class WindowCore::Frame {
public:
    Frame(const WindowCore* pOf, const MSG& message, ToolkitDefault* pToRun)
        : pCore(pOf), msg(message), pDefault(pToRun), m_pBelow(std::exchange(Top(), this)) {}
    ~Frame() { Top() = m_pBelow; }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;
    static Frame*& Top() {
        static Frame* pTop = nullptr;
        return pTop;
    }

    const WindowCore* pCore;
    MSG msg;
    ToolkitDefault* pDefault;
    bool ran = false;
    bool result = false;

private:
    Frame* m_pBelow;
};

std::shared_ptr<WindowCore> WindowCore::Bind(CWnd& wnd, QWidget* pOuter, QWidget* pClient,
                                             CWnd* pParent, UINT id, UINT style) {
    std::shared_ptr<WindowCore> core(new WindowCore);
    core->m_handle = NextHandle();
    core->m_pWnd = &wnd;
    core->m_pRole = dynamic_cast<WidgetRole*>(pOuter);
    core->m_outer = pOuter;
    core->m_client = pClient;
    core->m_id = id;
    core->m_style = style;
    if (pParent && pParent->Core()) {
        core->m_parent = pParent->GetSafeHwnd();
        pParent->Core()->m_children.push_back(core->m_handle);
    }
    core->Register(pOuter);
    if (pClient != pOuter) {
        core->Register(pClient);
    }
    if (!core->m_pRole) {
        pOuter->installEventFilter(core.get());
    }
    wnd.m_pCore = core.get();
    CoresByHandle().emplace(core->m_handle, core);
    return core;
}

WindowCore::~WindowCore() = default;

void WindowCore::Register(QWidget* pWidget) {
    CoresByWidget()[pWidget] = this;
    m_registered.push_back(pWidget);
}

WindowCore* WindowCore::Find(HWND hWnd) {
    const auto found = CoresByHandle().find(hWnd);
    return found == CoresByHandle().end() ? nullptr : found->second.get();
}

WindowCore* WindowCore::OfWidget(const QWidget* pWidget) {
    const auto found = CoresByWidget().find(pWidget);
    return found == CoresByWidget().end() ? nullptr : found->second;
}

WindowCore* WindowCore::Around(const QWidget* pWidget) {
    // A separate window on one of ours (such as a message box) is not part of it.
    for (; pWidget; pWidget = pWidget->isWindow() ? nullptr : pWidget->parentWidget()) {
        if (WindowCore* const pCore = OfWidget(pWidget)) {
            return pCore;
        }
    }
    return nullptr;
}

std::vector<WindowCore*> WindowCore::All() {
    std::vector<WindowCore*> all;
    for (const auto& [handle, core] : CoresByHandle()) {
        all.push_back(core.get());
    }
    return all;
}

void WindowCore::HandOver(CWnd& wnd) {
    m_pWnd->m_pCore = nullptr;
    m_pWnd = &wnd;
    wnd.m_pCore = this;
    m_pOwned.reset();
}

void WindowCore::MoveTo(WindowCore* pParent) {
    for (const WindowCore* pAbove = pParent; pAbove; pAbove = Find(pAbove->m_parent)) {
        if (pAbove == this) {
            return;
        }
    }
    if (WindowCore* const pBefore = Find(m_parent)) {
        std::erase(pBefore->m_children, m_handle);
    }
    m_parent = pParent ? pParent->m_handle : nullptr;
    if (pParent) {
        pParent->m_children.push_back(m_handle);
    }
    if (m_outer && !m_outer->isWindow()) {
        const bool isShown = !m_outer->isHidden();
        m_outer->setParent(pParent ? pParent->m_client : nullptr);
        m_outer->setVisible(isShown && pParent);
    }
}

void WindowCore::Destroy() {
    if (m_destroying) {
        return;
    }
    const std::shared_ptr<WindowCore> keep = shared_from_this();
    const QPointer<QWidget> outer = m_outer;
    TellDestroyed();
    if (outer) {
        outer->hide();
    }
    Detach();
    if (outer && m_pRole) {
        // The widget may be processing an event.
        outer->deleteLater();
    }
}

void WindowCore::TellDestroyed() {
    m_destroying = true;
    Deliver({m_handle, WM_DESTROY, 0, 0, {}}, nullptr);
    for (const HWND child : std::vector(m_children)) {
        if (WindowCore* const pChild = Find(child); pChild && !pChild->m_destroying) {
            pChild->TellDestroyed();
        }
    }
}

void WindowCore::Detach() {
    const std::shared_ptr<WindowCore> keep = shared_from_this();
    for (const HWND child : std::vector(m_children)) {
        if (WindowCore* const pChild = Find(child)) {
            pChild->Detach();
        }
    }
    for (const QWidget* const pWidget : m_registered) {
        CoresByWidget().erase(pWidget);
        ForgetStacking(pWidget);
    }
    m_registered.clear();
    m_timers.clear();
    CoresByHandle().erase(m_handle);
    if (WindowCore* const pParent = Find(m_parent)) {
        std::erase(pParent->m_children, m_handle);
    }
    QCoreApplication::removePostedEvents(this);
    if (CWnd* const pWnd = std::exchange(m_pWnd, nullptr)) {
        pWnd->m_pCore = nullptr;
        pWnd->PostNcDestroy();
    }
    m_pOwned.reset();
}

void WindowCore::WidgetGone() {
    const std::shared_ptr<WindowCore> keep = shared_from_this();
    if (!m_destroying) {
        TellDestroyed();
    }
    Detach();
}

LRESULT WindowCore::CallWindow(const MSG& msg) {
    return CallForeign(*m_pWnd, kStep,
                       [&] { return m_pWnd->WindowProc(msg.message, msg.wParam, msg.lParam); });
}

LRESULT WindowCore::Deliver(const MSG& msg, ToolkitDefault* pDefault) {
    const std::shared_ptr<WindowCore> keep = shared_from_this();
    const Frame frame(this, msg, pDefault);
    return m_pWnd ? CallWindow(msg) : 0;
}

bool WindowCore::DeliverEvent(enmWidgetPart part, QEvent* pEvent, ToolkitDefault& toolkit) {
    if (m_outer && part != enmWidgetPart::Client) {
        NoteStacking(m_outer, pEvent);
    }
    MSG msg;
    if (!m_pWnd || !Translate(part, pEvent, msg)) {
        return toolkit.Run();
    }
    const std::shared_ptr<WindowCore> keep = shared_from_this();
    Frame frame(this, msg, &toolkit);
    CallWindow(msg);
    if (pEvent->type() == QEvent::Close) {
        // Only handlers decide whether the window closes; it is already destroyed if they wanted
        // that.
        pEvent->ignore();
        return true;
    }
    if (!frame.ran) {
        pEvent->accept();
        return true;
    }
    return frame.result;
}

bool WindowCore::RunToolkitDefault(const WindowCore* pCore) {
    Frame* const pTop = Frame::Top();
    if (!pTop || pTop->pCore != pCore || !pTop->pDefault || pTop->ran) {
        return false;
    }
    pTop->ran = true;
    pTop->result = pTop->pDefault->Run();
    return true;
}

const MSG* WindowCore::MessageInHand() {
    return Frame::Top() ? &Frame::Top()->msg : nullptr;
}

bool WindowCore::Translate(enmWidgetPart part, QEvent* pEvent, MSG& msg) const {
    msg.hwnd = m_handle;
    if (pEvent->type() == QEvent::Close) {
        msg.message = WM_CLOSE;
        return m_outer && m_outer->isWindow();
    }
    if (part == enmWidgetPart::Frame) {
        return false;
    }
    switch (pEvent->type()) {
    case QEvent::Resize: {
        const QSize size = static_cast<QResizeEvent*>(pEvent)->size();
        msg.message = WM_SIZE;
        msg.lParam = PackInts(size.width(), size.height());
        return true;
    }
    case QEvent::Paint:
        msg.message = WM_PAINT;
        return true;
    case QEvent::KeyPress:
        // Keys that a control ignored propagate to its parents, but were not typed into them.
        msg.message = WM_KEYDOWN;
        msg.wParam = static_cast<WPARAM>(VirtualKeyOf(static_cast<QKeyEvent*>(pEvent)->key()));
        return !QApplication::focusWidget() || Around(QApplication::focusWidget()) == this;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        const auto* const pMouse = static_cast<QMouseEvent*>(pEvent);
        const QPoint point = pMouse->position().toPoint();
        msg.lParam = PackInts(point.x(), point.y());
        msg.pt = ToScreenPoint(pMouse->globalPosition().toPoint());
        msg.message = pEvent->type() == QEvent::MouseMove  ? WM_MOUSEMOVE
                      : pMouse->button() == Qt::LeftButton ? WM_LBUTTONUP
                                                           : WM_RBUTTONUP;
        return pEvent->type() == QEvent::MouseMove || pMouse->button() == Qt::LeftButton ||
               pMouse->button() == Qt::RightButton;
    }
    case QEvent::DragEnter:
        if (static_cast<QDropEvent*>(pEvent)->mimeData()->hasUrls()) {
            pEvent->accept();
        }
        return false;
    case QEvent::Drop: {
        DroppedFiles& files = FilesInHand();
        files.paths.clear();
        for (const QUrl& url : static_cast<QDropEvent*>(pEvent)->mimeData()->urls()) {
            if (url.isLocalFile()) {
                files.paths.push_back(ToCString(url.toLocalFile()));
            }
        }
        msg.message = WM_DROPFILES;
        msg.wParam = reinterpret_cast<WPARAM>(&files);
        return true;
    }
    default:
        return false;
    }
}

bool WindowCore::eventFilter(QObject*, QEvent* pEvent) {
    if (m_inForeignDefault || !m_outer) {
        return false;
    }
    if (pEvent->type() == QEvent::Destroy) {
        WidgetGone();
        return false;
    }
    struct Foreign final : ToolkitDefault {
        Foreign(WindowCore& of, QEvent* p) : m_core(of), m_pEvent(p) {}
        bool Run() override {
            m_core.m_inForeignDefault = true;
            const bool result =
                m_core.m_outer && static_cast<QObject*>(m_core.m_outer)->event(m_pEvent);
            m_core.m_inForeignDefault = false;
            return result;
        }
        WindowCore& m_core;
        QEvent* m_pEvent;
    } toolkit{*this, pEvent};
    MSG msg;
    // A frame of the host decides itself whether it closes.
    if (pEvent->type() == QEvent::Close || !Translate(enmWidgetPart::Whole, pEvent, msg)) {
        return false;
    }
    DeliverEvent(enmWidgetPart::Whole, pEvent, toolkit);
    return true;
}

void WindowCore::Command(UINT code) {
    if (CWnd* const pParent = Parent()) {
        pParent->SendMessage(WM_COMMAND, PackCommand(m_id, code),
                             reinterpret_cast<LPARAM>(m_handle));
    }
}

LRESULT WindowCore::Notify(NMHDR& header, UINT code) {
    header.hwndFrom = m_handle;
    header.idFrom = m_id;
    header.code = code;
    const std::shared_ptr<WindowCore> keep = shared_from_this();
    if (m_pWnd) {
        if (const MessageThunk thunk = m_pWnd->FindHandler(kReflectedNotify, code, 0)) {
            return thunk(m_pWnd, m_id, reinterpret_cast<LPARAM>(&header));
        }
    }
    CWnd* const pParent = Parent();
    return pParent ? pParent->SendMessage(WM_NOTIFY, m_id, reinterpret_cast<LPARAM>(&header)) : 0;
}

bool WindowCore::PreTranslate(MSG& msg) {
    const std::shared_ptr<WindowCore> keep = shared_from_this();
    for (HWND next = m_handle; WindowCore* const pCore = Find(next);) {
        next = pCore->m_outer && pCore->m_outer->isWindow() ? nullptr : pCore->m_parent;
        CWnd* const pWnd = pCore->m_pWnd;
        if (pWnd && CallForeign(*pWnd, kStep, [&] { return pWnd->PreTranslateMessage(&msg); })) {
            return true;
        }
    }
    return false;
}

void WindowCore::Post(UINT message, WPARAM wParam, LPARAM lParam) {
    QCoreApplication::postEvent(this, new PostedMessage(message, wParam, lParam));
}

void WindowCore::customEvent(QEvent* pEvent) {
    if (pEvent->type() == kPostedMessage) {
        const auto& posted = *static_cast<PostedMessage*>(pEvent);
        Deliver({m_handle, posted.message, posted.wParam, posted.lParam, {}}, nullptr);
    }
}

void WindowCore::StartTimerOf(DWORD_PTR id, UINT milliseconds) {
    StopTimerOf(id);
    m_timers.emplace(startTimer(static_cast<int>(milliseconds)), id);
}

bool WindowCore::StopTimerOf(DWORD_PTR id) {
    const auto found = std::find_if(m_timers.begin(), m_timers.end(),
                                    [id](const auto& timer) { return timer.second == id; });
    if (found == m_timers.end()) {
        return false;
    }
    killTimer(found->first);
    m_timers.erase(found);
    return true;
}

void WindowCore::timerEvent(QTimerEvent* pEvent) {
    if (const auto found = m_timers.find(pEvent->timerId()); found != m_timers.end()) {
        Deliver({m_handle, WM_TIMER, found->second, 0, {}}, nullptr);
    }
}

QRect WindowCore::GeometryNow() const {
    if (!m_outer) {
        return {};
    }
    const QRect now = m_outer->geometry();
    return m_outer->isWindow() ? now.translated(-PrimaryCorner()) : now;
}

void WindowCore::TakeGeometry(const QRect& rect) {
    ApplyGeometry(m_outer, m_outer->isWindow() ? rect.translated(PrimaryCorner()) : rect);
}

void WindowCore::Place(WINDOWPOS place, const WindowCore* pInsertAfter) {
    const std::shared_ptr<WindowCore> keep = shared_from_this();
    const QRect now = GeometryNow();
    place.hwnd = m_handle;
    place.hwndInsertAfter = pInsertAfter ? pInsertAfter->m_handle : nullptr;
    if (place.flags & SWP_NOMOVE) {
        place.x = now.x();
        place.y = now.y();
    }
    if (place.flags & SWP_NOSIZE) {
        place.cx = now.width();
        place.cy = now.height();
    }
    Deliver({m_handle, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&place), {}}, nullptr);
    if (!m_outer) {
        return;
    }
    QRect wanted = now;
    if (!(place.flags & SWP_NOMOVE)) {
        wanted.moveTo(OnAnyDisplay({place.x, place.y}));
    }
    if (!(place.flags & SWP_NOSIZE)) {
        wanted.setSize(OfAnyDisplay({place.cx, place.cy}));
    }
    TakeGeometry(wanted);
    if (!(place.flags & SWP_NOZORDER) && m_outer) {
        const WindowCore* const pAfter = Find(place.hwndInsertAfter);
        if (pAfter && pAfter->m_outer && pAfter->m_outer->parent() == m_outer->parent()) {
            m_outer->stackUnder(pAfter->m_outer);
        } else {
            RaiseWidget(m_outer);
        }
    }
}

void ApplyGeometry(QWidget* pWidget, const QRect& rect) {
    const QPointer<QWidget> widget = pWidget;
    const QSize before = pWidget->size();
    pWidget->setGeometry(rect);
    // A hidden widget would get its resize event only when shown, but layouts and positions that
    // depend on it are needed earlier.
    if (widget && pWidget->testAttribute(Qt::WA_PendingResizeEvent)) {
        pWidget->setAttribute(Qt::WA_PendingResizeEvent, false);
        QResizeEvent event(pWidget->size(), before);
        QCoreApplication::sendEvent(pWidget, &event);
    }
}
