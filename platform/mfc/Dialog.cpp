#include "platform/mfc/Dialog.h"

#include <memory>
#include <utility>
#include <vector>

#include <QApplication>
#include <QEventLoop>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/HostPort.h"
#include "platform/mfc/Button.h"
#include "platform/mfc/ComboBox.h"
#include "platform/mfc/Edit.h"
#include "platform/mfc/ListBox.h"
#include "platform/mfc/ListCtrl.h"
#include "platform/mfc/Static.h"
#include "platform/mfc/TreeCtrl.h"
#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/FrameWidget.h"
#include "platform/mfc/toolkit/ScreenPlace.h"
#include "platform/win/Screens.h"

class CDialog::QEventLoopOwner {
public:
    QEventLoop loop;
};

namespace {

QFont FontOf(const DialogTemplate& dialog) {
    QFont font = QApplication::font();
    if (const QString name = ToQString(dialog.fontName); name != QLatin1String("MS Shell Dlg")) {
        font.setFamily(name);
    }
    font.setPointSize(dialog.fontPoints);
    return font;
}

CSize BaseUnits(const QFont& font) {
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    return {(width / 26 + 1) / 2, metrics.height()};
}

std::unique_ptr<CWnd> MakeControl(enmControlKind kind) {
    switch (kind) {
    case enmControlKind::Button:
        return std::make_unique<CButton>();
    case enmControlKind::Static:
        return std::make_unique<CStatic>();
    case enmControlKind::Edit:
        return std::make_unique<CEdit>();
    case enmControlKind::ComboBox:
        return std::make_unique<CComboBox>();
    case enmControlKind::ListBox:
        return std::make_unique<CListBox>();
    case enmControlKind::ListView:
        return std::make_unique<CListCtrl>();
    case enmControlKind::TreeView:
        return std::make_unique<CTreeCtrl>();
    }
    return nullptr;
}

/// Centres a dialog on a window or the primary monitor, within the visible area.
void CentreOn(QWidget& dialog, const QWidget* pParent) {
    const std::vector<Monitor> monitors = Screens().Monitors();
    const CRect around = pParent && pParent->isVisible()
                             ? ToScreenRect(pParent->window()->geometry())
                             : monitors.front().work;
    const CRect work = NearestMonitor(monitors, around.CenterPoint()).work;
    const auto placed = [](int from, int length, int size, int least, int most) {
        return std::max(least, std::min(from + (length - size) / 2, most - size));
    };
    const CPoint place(placed(around.left, around.Width(), dialog.width(), work.left, work.right),
                       placed(around.top, around.Height(), dialog.height(), work.top, work.bottom));
    ApplyGeometry(&dialog, QRect(FromScreenPoint(place), dialog.size()));
}

void AppendLinesOf(const WindowCore& core, std::vector<std::wstring>& lines) {
    for (const HWND child : core.Children()) {
        const WindowCore* const pChild = WindowCore::Find(child);
        if (pChild && pChild->Role() && !pChild->Outer()->isHidden()) {
            pChild->Role()->AppendLines(lines);
            AppendLinesOf(*pChild, lines);
        }
    }
}

} // namespace

CDialog::CDialog(UINT templateId, CWnd* pParent, HINSTANCE module)
    : m_templateId(templateId), m_module(module), m_pParentAtFirst(pParent) {}

CDialog::~CDialog() {
    DestroyWindow();
}

const MessageMap* CDialog::GetMessageMap() const {
    static const MessageMap kMap{CWnd::GetMessageMap(), {}};
    return &kMap;
}

const DialogTemplate* CDialog::Template(UINT templateId) const {
    const HINSTANCE module = m_module ? m_module : acDocManagerPtr()->resourceHandle();
    return FindDialogTemplate(module, templateId ? templateId : m_templateId);
}

bool CDialog::Create(UINT templateId, CWnd* pParent) {
    const DialogTemplate* const pTemplate = Template(templateId);
    if (!pTemplate || Core()) {
        return false;
    }
    return CreateFrom(*pTemplate, pParent ? pParent : m_pParentAtFirst,
                      (pTemplate->style & WS_VISIBLE) != 0);
}

bool CDialog::CreateFrom(const DialogTemplate& dialog, CWnd* pParent, bool show) {
    const std::shared_ptr<WindowCore> core = MakeWindow(*this, dialog.style, pParent, 0);
    QWidget& outer = *core->Outer();
    const QFont font = FontOf(dialog);
    outer.setFont(font);
    m_base = BaseUnits(font);
    QSize size = ToQRect(MapDialogRect({0, 0, dialog.cx, dialog.cy})).size();
    if (const auto* const pFrame = dynamic_cast<FrameWidget*>(&outer)) {
        size += pFrame->Surplus();
    }
    ApplyGeometry(&outer, QRect(QPoint(0, 0), size));
    SetWindowText(dialog.title);
    for (const DialogItem& item : dialog.items) {
        CreateItem(item);
    }
    m_ended = false;
    const bool focusFirst = OnInitDialog();
    if (!core->Object()) {
        return false;
    }
    if (focusFirst) {
        for (const HWND child : core->Children()) {
            QWidget* const pFirst = WindowCore::Find(child)->Client();
            if (pFirst->focusPolicy() & Qt::TabFocus && pFirst->isEnabled() &&
                !pFirst->isHidden()) {
                pFirst->setFocus();
                break;
            }
        }
    }
    if (show && !m_ended) {
        ShowWindow(SW_SHOW);
    }
    return core->Object() != nullptr;
}

void CDialog::CreateItem(const DialogItem& item) {
    std::unique_ptr<CWnd> pControl = MakeControl(item.kind);
    const CRect place = MapDialogRect({item.x, item.y, item.x + item.cx, item.y + item.cy});
    const UINT style = item.style | WS_CHILD | (item.invisible ? 0 : WS_VISIBLE);
    CWnd& control = *pControl;
    if (control.CreateControl(item.kind, style, place, this, item.id)) {
        control.SetWindowText(item.text);
        control.Core()->Own(std::move(pControl));
    }
}

CRect CDialog::MapDialogRect(const CRect& rect) const {
    return FromDialogUnits(rect, m_base);
}

int CDialog::DoModal() {
    const DialogTemplate* const pTemplate = Template(0);
    if (!pTemplate || Core()) {
        return -1;
    }
    CWnd* pParent = m_pParentAtFirst;
    AfxStartToolkit();
    if (!pParent) {
        WindowCore* const pActive = WindowCore::Around(QApplication::activeWindow());
        pParent = pActive ? pActive->Object() : nullptr;
    }
    if (!CreateFrom(*pTemplate, pParent, false)) {
        return m_ended ? m_result : -1;
    }
    const HWND self = GetSafeHwnd();
    if (!m_ended && !AfxIsDesktopMode()) {
        PrintContent();
        m_result = IDOK;
    } else if (!m_ended) {
        QEventLoopOwner owner;
        m_pLoop = &owner;
        QWidget& outer = *Core()->Outer();
        outer.setWindowModality(Qt::ApplicationModal);
        CentreOn(outer, pParent && pParent->Core() ? pParent->Core()->Outer() : nullptr);
        m_result = IDCANCEL; // if the event loop is ended from outside
        ShowWindow(SW_SHOW);
        owner.loop.exec();
        m_pLoop = nullptr;
    }
    const int result = m_result;
    if (CWnd* const pThis = FromHandle(self)) {
        pThis->DestroyWindow();
    }
    return result;
}

void CDialog::EndDialog(int result) {
    m_result = result;
    m_ended = true;
    ShowWindow(SW_HIDE);
    if (m_pLoop) {
        m_pLoop->loop.exit();
    }
}

void CDialog::SetModalWindowHidden(bool hidden) {
    if (m_ended || !m_pLoop) {
        return;
    }
    ShowWindow(hidden ? SW_HIDE : SW_SHOW);
}

void CDialog::PrintContent() const {
    std::wstring text = L"\n" + GetWindowText().Str() + L"\n";
    std::vector<std::wstring> lines;
    AppendLinesOf(*Core(), lines);
    for (const std::wstring& line : lines) {
        text += L"  " + line + L"\n";
    }
    HostPort().Print(text);
}

bool CDialog::OnInitDialog() {
    UpdateData(false);
    return true;
}

void CDialog::OnOK() {
    if (UpdateData(true)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

bool CDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam)) {
        return true;
    }
    const UINT id = CommandId(wParam);
    if (CommandCode(wParam) != BN_CLICKED || (id != IDOK && id != IDCANCEL)) {
        return false;
    }
    if (id == IDOK) {
        OnOK();
    } else {
        OnCancel();
    }
    return true;
}

LRESULT CDialog::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CLOSE) {
        SendMessage(WM_COMMAND, PackCommand(IDCANCEL, BN_CLICKED));
        return 0;
    }
    return CWnd::DefWindowProc(message, wParam, lParam);
}

UINT CDialog::DefaultButton() const {
    for (const HWND child : Core()->Children()) {
        const WindowCore* const pChild = WindowCore::Find(child);
        if (dynamic_cast<CButton*>(pChild->Object()) &&
            (pChild->Style() & BS_TYPEMASK) == BS_DEFPUSHBUTTON) {
            return pChild->Id();
        }
    }
    return IDOK;
}

bool CDialog::PreTranslateMessage(MSG* pMsg) {
    const bool isReturn = pMsg->wParam == VK_RETURN;
    if (pMsg->message != WM_KEYDOWN || (!isReturn && pMsg->wParam != VK_ESCAPE) || !Core()) {
        return CWnd::PreTranslateMessage(pMsg);
    }
    // The editor of a label is not a window of ours; both keys end it.
    const QWidget* const pFocus = QApplication::focusWidget();
    if (pFocus && !WindowCore::OfWidget(pFocus)) {
        return false;
    }
    if (!isReturn) {
        SendMessage(WM_COMMAND, PackCommand(IDCANCEL, BN_CLICKED));
        return true;
    }
    const WindowCore* const pAimedAt = WindowCore::Find(pMsg->hwnd);
    WidgetRole* const pRole = pAimedAt ? pAimedAt->Role() : nullptr;
    if (pRole && pRole->WantsReturn()) {
        return false;
    }
    if (pRole && pRole->Press()) {
        return true;
    }
    const UINT id = DefaultButton();
    const CWnd* const pButton = GetDlgItem(id);
    if (!pButton || pButton->IsWindowEnabled()) {
        SendMessage(WM_COMMAND, PackCommand(id, BN_CLICKED),
                    reinterpret_cast<LPARAM>(pButton ? pButton->GetSafeHwnd() : nullptr));
    }
    return true;
}
