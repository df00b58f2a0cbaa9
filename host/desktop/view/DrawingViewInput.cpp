// Mouse and keyboard input of the view.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "host/desktop/view/DrawingView.h"

namespace Tessaly {

namespace {

constexpr double kZoomStep = 1.25;
constexpr double kPanStep = 0.125; ///< of the window
constexpr double kWheelStep = 120; ///< units of the wheel
constexpr double kMostSteps = 20;  ///< at once

/// Keys that pan or zoom.
struct KeyMove {
    int key;
    double right;
    double up;
    double zoom;
};
constexpr KeyMove kKeyMoves[] = {
    {Qt::Key_Left, -kPanStep, 0, 1},      {Qt::Key_Right, kPanStep, 0, 1},
    {Qt::Key_Up, 0, kPanStep, 1},         {Qt::Key_Down, 0, -kPanStep, 1},
    {Qt::Key_Plus, 0, 0, kZoomStep},      {Qt::Key_Equal, 0, 0, kZoomStep},
    {Qt::Key_Minus, 0, 0, 1 / kZoomStep},
};

} // namespace

void DrawingView::wheelEvent(QWheelEvent* pEvent) {
    const double steps = std::clamp(pEvent->angleDelta().y() / kWheelStep, -kMostSteps, kMostSteps);
    if (steps != 0) {
        ZoomBy(std::pow(kZoomStep, steps), pEvent->position());
    }
    pEvent->accept();
}

void DrawingView::mousePressEvent(QMouseEvent* pEvent) {
    const bool isLeft = pEvent->button() == Qt::LeftButton;
    const bool isPan = pEvent->button() == Qt::MiddleButton || (isLeft && m_isSpaceDown);
    if (!isPan && !isLeft) {
        QWidget::mousePressEvent(pEvent);
        return;
    }
    m_dragStart = m_dragLast = pEvent->position();
    if (isPan) {
        m_drag = Drag::Pan;
    } else if (m_isPicking) {
        AnswerPick(pEvent->position());
    } else {
        m_drag = Drag::Box;
    }
    ShowCursor();
}

void DrawingView::mouseMoveEvent(QMouseEvent* pEvent) {
    const QPointF position = pEvent->position();
    if (m_drag == Drag::Pan) {
        const PixelPoint from = ToDevice(m_dragLast);
        const PixelPoint to = ToDevice(position);
        // Whole pixels, so that the picture can be shifted; the rest is added to the next move.
        const double right = std::trunc(to.x - from.x);
        const double down = std::trunc(to.y - from.y);
        BringUpToDate();
        m_transform.Pan(right, down);
        m_dragLast += QPointF(right, down) / devicePixelRatioF();
        ShowMoved();
    } else if (m_drag == Drag::Box) {
        m_dragLast = position;
        update();
    }
    const PlanePoint place = m_transform.ToDrawing(ToDevice(position));
    emit PositionMoved(place.x, place.y);
}

void DrawingView::mouseReleaseEvent(QMouseEvent* pEvent) {
    const bool isMine = pEvent->button() == Qt::LeftButton || pEvent->button() == Qt::MiddleButton;
    if (!isMine || m_drag == Drag::None) {
        QWidget::mouseReleaseEvent(pEvent);
        return;
    }
    EndDrag(pEvent->position(), pEvent->modifiers().testFlag(Qt::ShiftModifier));
}

void DrawingView::EndDrag(const QPointF& position, bool isAdding) {
    const Drag drag = std::exchange(m_drag, Drag::None);
    ShowCursor();
    update();
    if (drag != Drag::Box) {
        return;
    }
    if ((position - m_dragStart).manhattanLength() < QApplication::startDragDistance()) {
        SelectAt(m_dragStart, isAdding);
    } else {
        SelectInBox(m_dragStart, position, isAdding);
    }
}

void DrawingView::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::MiddleButton) {
        ZoomExtents();
    } else {
        mousePressEvent(pEvent); // the second of two fast clicks is treated as a click
    }
}

void DrawingView::SelectAt(const QPointF& position, bool isAdding) {
    BringUpToDate();
    const AcDbObjectId id = EntityAt(position);
    AddToSelection(id.isNull() ? std::vector<AcDbObjectId>() : std::vector{id}, isAdding);
}

void DrawingView::SelectInBox(const QPointF& corner, const QPointF& opposite, bool isAdding) {
    BringUpToDate();
    const AcGeExtents2d box = m_transform.BoxOf(ToDevice(corner), ToDevice(opposite));
    const bool isToTheRight = opposite.x() >= corner.x();
    AddToSelection(PickInBox(m_scene, box, isToTheRight ? BoxPick::Whole : BoxPick::Any), isAdding);
}

void DrawingView::AddToSelection(std::vector<AcDbObjectId> ids, bool isAdding) {
    if (isAdding) {
        ids.insert(ids.end(), m_selection.begin(), m_selection.end());
    }
    SetSelection(std::move(ids));
}

void DrawingView::AnswerPick(const QPointF& position) {
    BringUpToDate();
    m_isPicking = false;
    const PlanePoint place = m_transform.ToDrawing(ToDevice(position));
    const AcDbObjectId id = EntityAt(position);
    emit PickEnded(id.isNull() ? PickOutcome::Missed : PickOutcome::Picked, id, place.x, place.y);
}

void DrawingView::keyPressEvent(QKeyEvent* pEvent) {
    if (pEvent->key() == Qt::Key_Space && !pEvent->isAutoRepeat()) {
        m_isSpaceDown = true;
        ShowCursor();
    } else if (pEvent->key() != Qt::Key_Space && !ObeyKey(pEvent->key())) {
        QWidget::keyPressEvent(pEvent); // leave unknown keys to the window
    }
}

bool DrawingView::ObeyKey(int key) {
    const auto* const pMove = std::find_if(std::begin(kKeyMoves), std::end(kKeyMoves),
                                           [&](const KeyMove& move) { return move.key == key; });
    if (pMove != std::end(kKeyMoves)) {
        if (pMove->zoom != 1) {
            ZoomBy(pMove->zoom);
        } else {
            PanBy(pMove->right, pMove->up);
        }
    } else if (key == Qt::Key_Home) {
        ZoomExtents();
    } else if (key == Qt::Key_Escape) {
        Escape();
    } else {
        return false;
    }
    return true;
}

/// Cancels the innermost operation in progress.
void DrawingView::Escape() {
    if (m_drag != Drag::None) {
        m_drag = Drag::None;
        ShowCursor();
        update();
    } else if (m_isPicking) {
        CancelPick();
    } else {
        SetSelection({});
    }
}

void DrawingView::keyReleaseEvent(QKeyEvent* pEvent) {
    if (pEvent->key() == Qt::Key_Space && !pEvent->isAutoRepeat()) {
        m_isSpaceDown = false;
        ShowCursor();
    } else {
        QWidget::keyReleaseEvent(pEvent);
    }
}

void DrawingView::focusOutEvent(QFocusEvent* pEvent) {
    // The key's release will go to the new focus widget.
    m_isSpaceDown = false;
    ShowCursor();
    QWidget::focusOutEvent(pEvent);
}

void DrawingView::leaveEvent(QEvent* pEvent) {
    emit PositionLeft();
    QWidget::leaveEvent(pEvent);
}

void DrawingView::ShowCursor() {
    if (m_drag == Drag::Pan) {
        setCursor(Qt::ClosedHandCursor);
    } else if (m_isSpaceDown) {
        setCursor(Qt::OpenHandCursor);
    } else {
        setCursor(m_isPicking ? Qt::PointingHandCursor : Qt::CrossCursor);
    }
}

} // namespace Tessaly
