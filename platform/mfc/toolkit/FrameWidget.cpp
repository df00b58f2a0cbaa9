#include "platform/mfc/toolkit/FrameWidget.h"

#include <algorithm>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/ScreenPlace.h"

namespace {

/// A window manager reports a move when it is finished, and again if it corrects the position.
constexpr int kSettleMilliseconds = 150;

/// Minimum width of a window that stays visible, so that it can be dragged back.
constexpr int kLeastWidth = 60;

/// Window managers are told the owner only of dialogs.
Qt::WindowFlags WindowKind(const QWidget* pOwner) {
    return (pOwner ? Qt::Dialog : Qt::Window) | Qt::FramelessWindowHint;
}

/// A caption button. Only the shape of its icon is used: it is drawn in the colour of the caption
/// text, which depends on whether the window is active.
class CaptionButton final : public QToolButton {
public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent*) override {
        QStyleOptionToolButton option;
        initStyleOption(&option);
        // Under the mouse, the button has its own background.
        const bool isFlat = !(option.state & (QStyle::State_MouseOver | QStyle::State_Sunken));
        QPixmap shape = icon().pixmap(iconSize(), devicePixelRatio());
        if (!shape.isNull()) {
            QPainter painter(&shape);
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(shape.rect(),
                             palette().color(!isFlat            ? QPalette::ButtonText
                                             : isActiveWindow() ? QPalette::HighlightedText
                                                                : QPalette::WindowText));
        }
        option.icon = QIcon(shape);
        QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
    }
};

WINDOWPOS PlaceOf(const QPoint& corner) {
    const CPoint point = ToScreenPoint(corner);
    WINDOWPOS place;
    place.x = point.x;
    place.y = point.y;
    return place;
}

} // namespace

bool PlainWidget::event(QEvent* pEvent) {
    const bool result = Hooked::event(pEvent);
    switch (pEvent->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        pEvent->accept();
        return true;
    default:
        return result;
    }
}

FrameWidget::FrameWidget(QWidget* pParent, UINT style)
    : Hooked(pParent, enmWidgetPart::Frame),
      m_pClient(new PlainWidget(this, enmWidgetPart::Client)),
      m_hasCaption((style & WS_CAPTION) == WS_CAPTION), m_sizable((style & WS_THICKFRAME) != 0) {
    setWindowFlags(WindowKind(pParent));
    setMinimumSize(Surplus().width() + kLeastWidth,
                   EdgeWidth() + (m_hasCaption ? CaptionHeight() : 0));
    setMouseTracking(m_sizable);
    m_settle.setSingleShot(true);
    m_settle.setInterval(kSettleMilliseconds);
    QObject::connect(&m_settle, &QTimer::timeout, this, [this] { Settle(); });
    if (style & WS_SYSMENU) {
        QToolButton* const pClose = AddCaptionButton();
        pClose->setIcon(QWidget::style()->standardIcon(QStyle::SP_TitleBarCloseButton));
        QObject::connect(pClose, &QToolButton::clicked, this, [this] { close(); });
    }
}

int FrameWidget::CaptionHeight() {
    return std::max(20, QFontMetrics(QApplication::font()).height() + 6);
}

QSize FrameWidget::Surplus() const {
    return {2 * EdgeWidth(), 2 * EdgeWidth() + (m_hasCaption ? CaptionHeight() : 0)};
}

void FrameWidget::SetCaption(const QString& text) {
    setWindowTitle(text);
    update();
}

QToolButton* FrameWidget::AddCaptionButton() {
    auto* const pButton = new CaptionButton(this);
    pButton->setAutoRaise(true);
    pButton->setFocusPolicy(Qt::NoFocus);
    pButton->setVisible(true);
    m_buttons.push_back(pButton);
    LayOut();
    return pButton;
}

void FrameWidget::LayOut() {
    const int edge = EdgeWidth();
    const int caption = m_hasCaption ? CaptionHeight() : 0;
    ApplyGeometry(m_pClient, QRect(edge, edge + caption, std::max(0, width() - 2 * edge),
                                   std::max(0, height() - 2 * edge - caption)));
    int right = width() - edge;
    for (QToolButton* const pButton : m_buttons) {
        right -= caption;
        pButton->setGeometry(right, edge, caption, caption);
    }
}

void FrameWidget::resizeEvent(QResizeEvent*) {
    LayOut();
}

void FrameWidget::changeEvent(QEvent* pEvent) {
    if (pEvent->type() == QEvent::ActivationChange) {
        update();
    }
    Hooked::changeEvent(pEvent);
}

void FrameWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!m_hasCaption) {
        return;
    }
    const int edge = EdgeWidth();
    QRect strip(edge, edge, width() - 2 * edge, CaptionHeight());
    const bool active = isActiveWindow();
    painter.fillRect(strip, palette().color(active ? QPalette::Highlight : QPalette::Mid));
    painter.setPen(palette().color(active ? QPalette::HighlightedText : QPalette::WindowText));
    strip.adjust(6, 0, -6 - static_cast<int>(m_buttons.size()) * CaptionHeight(), 0);
    painter.drawText(strip, Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(windowTitle(), Qt::ElideRight, strip.width()));
}

Qt::Edges FrameWidget::EdgesAt(const QPoint& point) const {
    Qt::Edges edges;
    if (m_sizable) {
        // Corners are easier to hit than the thin edges.
        const int corner = 4 * EdgeWidth();
        const int edge = EdgeWidth();
        const bool onEdge = point.x() < edge || point.y() < edge || point.x() >= width() - edge ||
                            point.y() >= height() - edge;
        const int reach = onEdge ? corner : 0;
        edges.setFlag(Qt::LeftEdge, point.x() < reach);
        edges.setFlag(Qt::TopEdge, point.y() < reach);
        edges.setFlag(Qt::RightEdge, point.x() >= width() - reach);
        edges.setFlag(Qt::BottomEdge, point.y() >= height() - reach);
    }
    return edges;
}

void FrameWidget::ShowEdgeCursor(const QPoint& point) {
    const Qt::Edges edges = EdgesAt(point);
    const bool across = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool along = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (across && along) {
        const bool falling =
            edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
        setCursor(falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor);
    } else if (across || along) {
        setCursor(across ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    } else {
        unsetCursor();
    }
}

void FrameWidget::mousePressEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::LeftButton) {
        m_dragging = true;
        m_edges = EdgesAt(pEvent->position().toPoint());
        m_grip = pEvent->globalPosition().toPoint();
        m_before = geometry();
    }
}

void FrameWidget::mouseMoveEvent(QMouseEvent* pEvent) {
    if (m_dragging) {
        DragTo(pEvent->globalPosition().toPoint());
    } else {
        ShowEdgeCursor(pEvent->position().toPoint());
    }
}

void FrameWidget::mouseReleaseEvent(QMouseEvent*) {
    m_dragging = false;
}

void FrameWidget::DragTo(const QPoint& onScreen) {
    WindowCore* const pCore = Core();
    if (!pCore) {
        return;
    }
    const QPoint way = onScreen - m_grip;
    QRect wanted = m_before;
    if (!m_edges) {
        wanted.translate(way);
    } else {
        const QSize least(minimumWidth(), Surplus().height());
        if (m_edges & Qt::LeftEdge) {
            wanted.setLeft(std::min(wanted.left() + way.x(), wanted.right() - least.width()));
        }
        if (m_edges & Qt::RightEdge) {
            wanted.setRight(std::max(wanted.right() + way.x(), wanted.left() + least.width()));
        }
        if (m_edges & Qt::TopEdge) {
            wanted.setTop(std::min(wanted.top() + way.y(), wanted.bottom() - least.height()));
        }
        if (m_edges & Qt::BottomEdge) {
            wanted.setBottom(std::max(wanted.bottom() + way.y(), wanted.top() + least.height()));
        }
    }
    WINDOWPOS place = PlaceOf(wanted.topLeft());
    place.cx = wanted.width();
    place.cy = wanted.height();
    place.flags = SWP_NOZORDER | (m_edges ? 0 : SWP_NOSIZE | SWP_USERMOVE);
    pCore->Place(place, nullptr);
}

void FrameWidget::moveEvent(QMoveEvent* pEvent) {
    if (pEvent->spontaneous() && !m_dragging) {
        m_settle.start();
    }
}

void FrameWidget::Settle() {
    WindowCore* const pCore = Core();
    const QPoint from = pos();
    // If the window manager restores a corrected position, leave it.
    if (!pCore || m_dragging || isMinimized() || from == m_lastCorrection.first) {
        return;
    }
    WINDOWPOS place = PlaceOf(from);
    place.flags = SWP_NOSIZE | SWP_NOZORDER;
    pCore->Place(place, nullptr);
    m_lastCorrection = {from, pos()};
}

std::shared_ptr<WindowCore> MakeWindow(CWnd& wnd, UINT style, CWnd* pParent, UINT id) {
    AfxStartToolkit();
    WindowCore* const pAround = pParent ? pParent->Core() : nullptr;
    if (style & WS_CHILD) {
        auto* const pWidget = new PlainWidget(pAround ? pAround->Client() : nullptr);
        return WindowCore::Bind(wnd, pWidget, pWidget, pParent, id, style);
    }
    // A top-level window belongs to its parent's top-level window and stays above it.
    QWidget* const pOwner = pAround && pAround->Outer() ? pAround->Outer()->window() : nullptr;
    if (style & (WS_CAPTION | WS_THICKFRAME)) {
        auto* const pFrame = new FrameWidget(pOwner, style);
        return WindowCore::Bind(wnd, pFrame, pFrame->Client(), pParent, id, style);
    }
    auto* const pWidget = new PlainWidget(pOwner);
    pWidget->setWindowFlags(WindowKind(pOwner));
    return WindowCore::Bind(wnd, pWidget, pWidget, pParent, id, style);
}
