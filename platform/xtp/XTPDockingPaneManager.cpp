#include "platform/xtp/XTPDockingPaneManager.h"

#include <QDockWidget>
#include <QMainWindow>

#include "platform/mfc/NativeWidget.h"
#include "platform/xtp/toolkit/DockingImpl.h"

namespace {

CWnd* s_pFrame = nullptr;
CWnd* s_pView = nullptr;

Qt::DockWidgetArea AreaOf(XTPDockingPaneDirection direction) {
    switch (direction) {
    case xtpPaneDockTop:
        return Qt::TopDockWidgetArea;
    case xtpPaneDockBottom:
        return Qt::BottomDockWidgetArea;
    case xtpPaneDockRight:
        return Qt::RightDockWidgetArea;
    default:
        return Qt::LeftDockWidgetArea;
    }
}

Qt::Orientation OrientationOf(XTPDockingPaneDirection direction) {
    const bool isBeside = direction == xtpPaneDockLeft || direction == xtpPaneDockRight;
    return isBeside ? Qt::Horizontal : Qt::Vertical;
}

} // namespace

CWnd* acedGetAcadFrame() {
    return s_pFrame;
}

CWnd* acedGetAcadDwgView() {
    return s_pView;
}

void acedSetAcadFrame(CWnd* pFrame) {
    s_pFrame = pFrame;
}

void acedSetAcadDwgView(CWnd* pView) {
    s_pView = pView;
}

CXTPDockingPaneManager::CXTPDockingPaneManager() : m_pImpl(std::make_unique<Impl>()) {}

CXTPDockingPaneManager::~CXTPDockingPaneManager() = default;

int CXTPDockingPaneManager::InstallDockingPanes(CWnd* pFrame, int) {
    auto* const pWidget = pFrame ? static_cast<QWidget*>(NativeWidget(*pFrame)) : nullptr;
    m_pImpl->frame = qobject_cast<QMainWindow*>(pWidget);
    m_pImpl->frameWindow = pFrame ? pFrame->GetSafeHwnd() : nullptr;
    FollowLook();
    return m_pImpl->frame ? 1 : 0;
}

void CXTPDockingPaneManager::FollowLook() {
    if (m_pImpl->frame) {
        m_pImpl->frame->setAnimated(m_pImpl->isGentle);
    }
}

void CXTPDockingPaneManager::SetStickyFloatingFrames(int) {}

void CXTPDockingPaneManager::SetTheme(int) {}

void CXTPDockingPaneManager::SetThemedFloatingFrames(int) {}

void CXTPDockingPaneManager::SetAlphaDockingContext(int bAlpha) {
    m_pImpl->isGentle = m_pImpl->isGentle || bAlpha;
    FollowLook();
}

void CXTPDockingPaneManager::SetShowDockingContextStickers(int bShow) {
    m_pImpl->isGentle = m_pImpl->isGentle || bShow;
    FollowLook();
}

void CXTPDockingPaneManager::SetAnimationDelay(double, int, int) {}

CXTPDockingPane* CXTPDockingPaneManager::CreatePane(int id, const CRect& rect,
                                                    XTPDockingPaneDirection direction,
                                                    CXTPDockingPane* pNeighbour) {
    QMainWindow* const pFrame = m_pImpl->frame;
    if (!pFrame || FindPane(id)) {
        return nullptr;
    }
    auto* const pDock = new QDockWidget(pFrame);
    pDock->setObjectName(QStringLiteral("Pane%1").arg(id));
    // The place remembered from an earlier run takes precedence over the arguments.
    const bool isRestored = pFrame->restoreDockWidget(pDock);
    if (!isRestored) {
        QDockWidget* const pBeside =
            pNeighbour ? static_cast<QDockWidget*>(pNeighbour->m_pImpl->dock) : nullptr;
        pFrame->addDockWidget(AreaOf(direction), pDock);
        if (pBeside) {
            pFrame->splitDockWidget(pBeside, pDock, OrientationOf(direction));
        }
        const Qt::Orientation along = OrientationOf(direction);
        pDock->show();
        pFrame->resizeDocks({pDock}, {along == Qt::Horizontal ? rect.Width() : rect.Height()},
                            along);
    }
    auto pImpl = std::make_unique<CXTPDockingPane::Impl>();
    pImpl->dock = pDock;
    pImpl->isRestored = isRestored;
    pImpl->frame = m_pImpl->frameWindow;
    m_panes.emplace_back(new CXTPDockingPane(id, std::move(pImpl)));
    return m_panes.back().get();
}

void CXTPDockingPaneManager::AttachPane(CXTPDockingPane* pPane, CXTPDockingPane* pNeighbour) {
    QMainWindow* const pFrame = m_pImpl->frame;
    if (pFrame && pPane && pNeighbour && pPane->m_pImpl->dock && pNeighbour->m_pImpl->dock &&
        !pPane->m_pImpl->isRestored) {
        pFrame->tabifyDockWidget(pNeighbour->m_pImpl->dock, pPane->m_pImpl->dock);
    }
}

CXTPDockingPane* CXTPDockingPaneManager::FindPane(int id) const {
    for (const auto& pPane : m_panes) {
        if (pPane->GetID() == id) {
            return pPane.get();
        }
    }
    return nullptr;
}

void CXTPDockingPaneManager::ShowPane(int id, int bFocus) {
    const CXTPDockingPane* const pPane = FindPane(id);
    if (!pPane || !pPane->m_pImpl->dock) {
        return;
    }
    pPane->m_pImpl->dock->show();
    pPane->m_pImpl->dock->raise();
    if (CWnd* const pChild = pPane->GetChild(); bFocus && pChild) {
        pChild->SetFocus();
    }
}

void CXTPDockingPaneManager::CloseAll() {
    for (const auto& pPane : m_panes) {
        pPane->Hide();
    }
}
