#include "platform/xtp/XTPDockingPane.h"

#include <QDockWidget>
#include <QPointer>
#include <QWidget>

#include "platform/mfc/NativeWidget.h"
#include "platform/xtp/toolkit/DockingImpl.h"

CXTPDockingPane::CXTPDockingPane(int id, std::unique_ptr<Impl> pImpl)
    : m_nId(id), m_pImpl(std::move(pImpl)) {}

CXTPDockingPane::~CXTPDockingPane() {
    if (!m_pImpl->dock) {
        return;
    }
    // The attached window is not owned.
    if (QWidget* const pShown = m_pImpl->dock->widget(); pShown && GetChild()) {
        pShown->setParent(nullptr);
    }
    delete m_pImpl->dock;
}

void CXTPDockingPane::SetTitle(const wchar_t* title) {
    if (m_pImpl->dock) {
        m_pImpl->dock->setWindowTitle(QString::fromWCharArray(title ? title : L""));
    }
}

CString CXTPDockingPane::GetTitle() const {
    return m_pImpl->dock ? CString(m_pImpl->dock->windowTitle().toStdWString()) : CString();
}

void CXTPDockingPane::Attach(CWnd* pWnd) {
    auto* const pWidget = pWnd ? static_cast<QWidget*>(NativeWidget(*pWnd)) : nullptr;
    if (!m_pImpl->dock || !pWidget) {
        return;
    }
    m_pImpl->child = pWnd->GetSafeHwnd();
    pWidget->setWindowFlags(Qt::Widget);
    pWnd->SetParent(CWnd::FromHandle(m_pImpl->frame));
    m_pImpl->dock->setWidget(pWidget);
    pWidget->show();
}

CWnd* CXTPDockingPane::GetChild() const {
    return CWnd::FromHandle(m_pImpl->child);
}

void CXTPDockingPane::SetMinTrackSize(CSize size) {
    if (m_pImpl->dock) {
        m_pImpl->dock->setMinimumSize(size.cx, size.cy);
    }
}

int CXTPDockingPane::IsClosed() const {
    const QDockWidget* const pDock = m_pImpl->dock;
    return !pDock || !pDock->isVisibleTo(pDock->parentWidget());
}

int CXTPDockingPane::IsFloating() const {
    return m_pImpl->dock && m_pImpl->dock->isFloating();
}

void CXTPDockingPane::Hide() {
    if (m_pImpl->dock) {
        m_pImpl->dock->hide();
    }
}
