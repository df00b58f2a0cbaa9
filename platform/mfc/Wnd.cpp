#include "platform/mfc/Wnd.h"

#include <utility>

#include <QApplication>
#include <QPointer>

#include "platform/mfc/DataExchange.h"
#include "platform/mfc/MessageBox.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/DroppedFiles.h"
#include "platform/mfc/toolkit/FrameWidget.h"
#include "platform/mfc/toolkit/ScreenPlace.h"
#include "platform/mfc/toolkit/Stacking.h"

namespace {

/// The window whose activation was requested last. The window manager responds later; until then,
/// the window that is still active no longer counts.
QPointer<QWidget>& AskedToBeActive() {
    static auto& asked = *new QPointer<QWidget>;
    return asked;
}

void Activate(QWidget& window) {
    AskedToBeActive() = &window;
    window.activateWindow();
}

} // namespace

CWnd::CWnd() = default;

CWnd::~CWnd() {
    CWnd::DestroyWindow();
}

const MessageMap* CWnd::GetMessageMap() const {
    static const MessageMap kMap{nullptr, {}};
    return &kMap;
}

bool CWnd::Create(UINT style, const CRect& rect, CWnd* pParent, UINT id) {
    if (m_pCore) {
        return false;
    }
    const std::shared_ptr<WindowCore> core = MakeWindow(*this, style, pParent, id);
    core->TakeGeometry(ToQRect(rect));
    core->Outer()->setEnabled(!(style & WS_DISABLED));
    if (m_pCore && (style & WS_VISIBLE)) {
        ShowWindow(SW_SHOW);
    }
    return m_pCore != nullptr;
}

bool CWnd::DestroyWindow() {
    if (!m_pCore) {
        return false;
    }
    m_pCore->Destroy();
    return true;
}

bool CWnd::SubclassDlgItem(UINT id, CWnd* pParent) {
    CWnd* const pItem = pParent ? pParent->GetDlgItem(id) : nullptr;
    if (m_pCore || !pItem || pItem == this) {
        return false;
    }
    pItem->m_pCore->HandOver(*this);
    return true;
}

HWND CWnd::GetSafeHwnd() const {
    return m_pCore ? m_pCore->Handle() : nullptr;
}

CWnd* CWnd::FromHandle(HWND hWnd) {
    const WindowCore* const pCore = WindowCore::Find(hWnd);
    return pCore ? pCore->Object() : nullptr;
}

void CWnd::SetWindowText(const wchar_t* text) {
    if (m_pCore && m_pCore->Role()) {
        m_pCore->Role()->SetCaption(ToQString(text ? text : L""));
    } else if (m_pCore && m_pCore->Outer()) {
        m_pCore->Outer()->setWindowTitle(ToQString(text ? text : L""));
    }
}

CString CWnd::GetWindowText() const {
    if (!m_pCore || !m_pCore->Outer()) {
        return {};
    }
    return ToCString(m_pCore->Role() ? m_pCore->Role()->Caption()
                                     : m_pCore->Outer()->windowTitle());
}

void CWnd::SetFont(const CFont* pFont) {
    if (m_pCore && m_pCore->Outer()) {
        m_pCore->Outer()->setFont(pFont ? ToQFont(pFont->Get()) : QFont());
    }
}

CRect CWnd::GetWindowRect() const {
    if (!m_pCore || !m_pCore->Outer()) {
        return {};
    }
    const QWidget& outer = *m_pCore->Outer();
    return {ToScreenPoint(outer.isWindow() ? outer.pos() : outer.mapToGlobal(QPoint(0, 0))),
            CSize(outer.width(), outer.height())};
}

CRect CWnd::GetClientRect() const {
    const QWidget* const pClient = m_pCore ? m_pCore->Client() : nullptr;
    return pClient ? CRect(0, 0, pClient->width(), pClient->height()) : CRect();
}

CPoint CWnd::ScreenToClient(CPoint point) const {
    const QWidget* const pClient = m_pCore ? m_pCore->Client() : nullptr;
    return pClient ? ToCPoint(pClient->mapFromGlobal(FromScreenPoint(point))) : point;
}

CRect CWnd::ScreenToClient(const CRect& rect) const {
    return {ScreenToClient(rect.TopLeft()), rect.Size()};
}

CPoint CWnd::ClientToScreen(CPoint point) const {
    const QWidget* const pClient = m_pCore ? m_pCore->Client() : nullptr;
    return pClient ? ToScreenPoint(pClient->mapToGlobal(ToQPoint(point))) : point;
}

bool CWnd::SetWindowPos(const CWnd* pInsertAfter, int x, int y, int cx, int cy, UINT flags) {
    if (!m_pCore) {
        return false;
    }
    const HWND self = m_pCore->Handle();
    WINDOWPOS place;
    place.x = x;
    place.y = y;
    place.cx = cx;
    place.cy = cy;
    place.flags = flags;
    m_pCore->Place(place, pInsertAfter ? pInsertAfter->m_pCore : nullptr);
    if ((flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)) && IsWindow(self)) {
        const int show = flags & SWP_NOACTIVATE ? SW_SHOWNOACTIVATE : SW_SHOW;
        ShowWindow(flags & SWP_HIDEWINDOW ? SW_HIDE : show);
    }
    return true;
}

void CWnd::MoveWindow(const CRect& rect) {
    SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

bool CWnd::GetWindowPlacement(WINDOWPLACEMENT* pPlacement) const {
    if (!m_pCore || !m_pCore->Outer() || !pPlacement) {
        return false;
    }
    pPlacement->showCmd = m_pCore->Outer()->isMinimized() ? SW_SHOWMINIMIZED : SW_SHOWNORMAL;
    pPlacement->rcNormalPosition = ToCRect(m_pCore->GeometryNow());
    return true;
}

bool CWnd::SetWindowPlacement(const WINDOWPLACEMENT* pPlacement) {
    if (!m_pCore || !pPlacement) {
        return false;
    }
    MoveWindow(pPlacement->rcNormalPosition);
    ShowWindow(pPlacement->showCmd);
    return true;
}

void CWnd::BringWindowToTop() {
    if (m_pCore && m_pCore->Outer()) {
        RaiseWidget(m_pCore->Outer());
        if (m_pCore->Outer()->isWindow()) {
            Activate(*m_pCore->Outer());
        }
    }
}

void CWnd::CloseWindow() {
    ShowWindow(SW_SHOWMINIMIZED);
}

bool CWnd::ShowWindow(int command) {
    if (!m_pCore || !m_pCore->Outer()) {
        return false;
    }
    QWidget& widget = *m_pCore->Outer();
    const bool before = widget.isVisible();
    switch (command) {
    case SW_HIDE:
        widget.hide();
        break;
    case SW_SHOWMINIMIZED:
        widget.showMinimized();
        break;
    default:
        widget.setAttribute(Qt::WA_ShowWithoutActivating, command == SW_SHOWNOACTIVATE);
        if (widget.isMinimized()) {
            widget.showNormal();
        } else {
            widget.show();
        }
        if (widget.isWindow() && command != SW_SHOWNOACTIVATE) {
            RaiseWidget(&widget);
            Activate(widget);
        }
    }
    return before;
}

bool CWnd::IsWindowVisible() const {
    return m_pCore && m_pCore->Outer() && m_pCore->Outer()->isVisible();
}

bool CWnd::EnableWindow(bool enable) {
    const bool wasDisabled = !IsWindowEnabled();
    if (m_pCore && m_pCore->Outer()) {
        m_pCore->Outer()->setEnabled(enable);
    }
    return wasDisabled;
}

bool CWnd::IsWindowEnabled() const {
    return m_pCore && m_pCore->Outer() && m_pCore->Outer()->isEnabled();
}

void CWnd::SetFocus() {
    if (!m_pCore || !m_pCore->Client()) {
        return;
    }
    QWidget& widget = *m_pCore->Client();
    QWidget& window = *widget.window();
    if (!window.isActiveWindow() || (AskedToBeActive() && AskedToBeActive() != &window)) {
        Activate(window);
    }
    if (widget.focusPolicy() == Qt::NoFocus) {
        widget.setFocusPolicy(Qt::ClickFocus);
    }
    widget.setFocus();
}

CWnd* CWnd::GetFocus() {
    if (!QCoreApplication::instance()) {
        return nullptr;
    }
    const WindowCore* const pCore = WindowCore::Around(QApplication::focusWidget());
    return pCore ? pCore->Object() : nullptr;
}

void CWnd::SetCapture() {
    if (m_pCore && m_pCore->Client() && m_pCore->Client()->isVisible()) {
        m_pCore->Client()->grabMouse();
    }
}

void CWnd::ReleaseCapture() {
    if (QWidget* const pGrabber = QWidget::mouseGrabber()) {
        pGrabber->releaseMouse();
    }
}

CWnd* CWnd::GetParent() const {
    return m_pCore ? m_pCore->Parent() : nullptr;
}

void CWnd::SetParent(CWnd* pParent) {
    if (m_pCore) {
        m_pCore->MoveTo(pParent ? pParent->m_pCore : nullptr);
    }
}

CWnd* CWnd::GetDlgItem(UINT id) const {
    if (!m_pCore) {
        return nullptr;
    }
    for (const HWND child : m_pCore->Children()) {
        const WindowCore* const pChild = WindowCore::Find(child);
        if (pChild && pChild->Id() == id && (pChild->Style() & WS_CHILD)) {
            return pChild->Object();
        }
    }
    return nullptr;
}

UINT CWnd::GetDlgCtrlID() const {
    return m_pCore ? m_pCore->Id() : 0;
}

UINT CWnd::GetStyle() const {
    return m_pCore ? m_pCore->Style() : 0;
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_pCore ? m_pCore->Deliver({m_pCore->Handle(), message, wParam, lParam, {}}, nullptr)
                   : 0;
}

bool CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_pCore) {
        m_pCore->Post(message, wParam, lParam);
    }
    return m_pCore != nullptr;
}

DWORD_PTR CWnd::SetTimer(DWORD_PTR id, UINT milliseconds) {
    if (!m_pCore) {
        return 0;
    }
    m_pCore->StartTimerOf(id, milliseconds);
    return id;
}

bool CWnd::KillTimer(DWORD_PTR id) {
    return m_pCore && m_pCore->StopTimerOf(id);
}

void CWnd::Invalidate(bool) {
    if (m_pCore && m_pCore->Client()) {
        m_pCore->Client()->update();
    }
}

void CWnd::UpdateWindow() {
    if (m_pCore && m_pCore->Client()) {
        m_pCore->Client()->repaint();
    }
}

void CWnd::DragAcceptFiles(bool accept) {
    if (m_pCore && m_pCore->Client()) {
        m_pCore->Client()->setAcceptDrops(accept);
    }
}

int CWnd::MessageBox(const wchar_t* text, const wchar_t* caption, UINT type) {
    return ShowMessageBox(this, text, caption, type);
}

bool CWnd::UpdateData(bool save) {
    if (!m_pCore) {
        return false;
    }
    CDataExchange exchange(this, save);
    DoDataExchange(&exchange);
    return !exchange.Failed();
}

void CWnd::DoDataExchange(CDataExchange*) {}

bool CWnd::PreTranslateMessage(MSG*) {
    return false;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND) {
        return OnCommand(wParam, lParam) ? 1 : DefWindowProc(message, wParam, lParam);
    }
    if (message == WM_NOTIFY) {
        LRESULT result = 0;
        return OnNotify(wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
    }
    const MessageThunk thunk = FindHandler(message, 0, 0);
    return thunk ? thunk(this, wParam, lParam) : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM, LPARAM) {
    if (message == WM_CLOSE) {
        DestroyWindow();
    } else {
        WindowCore::RunToolkitDefault(m_pCore);
    }
    return 0;
}

bool CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const MessageThunk thunk = FindHandler(WM_COMMAND, CommandCode(wParam), CommandId(wParam));
    if (thunk) {
        thunk(this, wParam, lParam);
    }
    return thunk != nullptr;
}

bool CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto& header = *PointerOf<const NMHDR>(lParam);
    const MessageThunk thunk = FindHandler(WM_NOTIFY, header.code, header.idFrom);
    if (thunk) {
        *pResult = thunk(this, wParam, lParam);
    }
    return thunk != nullptr;
}

LRESULT CWnd::Default() {
    const MSG* const pMsg = WindowCore::MessageInHand();
    if (!pMsg || !m_pCore || pMsg->hwnd != m_pCore->Handle()) {
        return 0;
    }
    const MSG msg = *pMsg;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

void CWnd::OnSize(UINT, int, int) {
    Default();
}
void CWnd::OnClose() {
    Default();
}
void CWnd::OnDestroy() {
    Default();
}
void CWnd::OnPaint() {
    Default();
}
void CWnd::OnTimer(DWORD_PTR) {
    Default();
}
void CWnd::OnWindowPosChanging(WINDOWPOS*) {
    Default();
}
void CWnd::OnMouseMove(UINT, CPoint) {
    Default();
}
void CWnd::OnLButtonUp(UINT, CPoint) {
    Default();
}
void CWnd::OnRButtonUp(UINT, CPoint) {
    Default();
}
void CWnd::OnDropFiles(HDROP) {
    Default();
}
HBRUSH CWnd::OnCtlColor(CDC*, CWnd*, UINT) {
    Default();
    return nullptr;
}

bool IsWindow(HWND hWnd) {
    return WindowCore::Find(hWnd) != nullptr;
}

int GetDropFileCount(HDROP files) {
    return files ? static_cast<int>(files->paths.size()) : 0;
}

CString GetDropFile(HDROP files, int index) {
    return index >= 0 && index < GetDropFileCount(files)
               ? files->paths[static_cast<std::size_t>(index)]
               : CString();
}
