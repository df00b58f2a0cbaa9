// Windows without controls of their own: plain ones, and those with a caption. For sources only.
#pragma once

#include <utility>

#include <QTimer>
#include <QToolButton>

#include "platform/mfc/toolkit/WindowCore.h"

/// A child, a popup, or the content of a frame. Mouse events are not passed on, as they are not
/// meant for the surrounding windows.
class PlainWidget final : public Hooked<QWidget> {
public:
    explicit PlainWidget(QWidget* pParent, enmWidgetPart part = enmWidgetPart::Whole)
        : Hooked(pParent, part) {}
    QString Caption() const override { return windowTitle(); }
    void SetCaption(const QString& text) override { setWindowTitle(text); }

protected:
    bool event(QEvent* pEvent) override;
};

/// A top-level window that draws its own caption and edges, as only then every step of a move can
/// be adjusted before it is made.
class FrameWidget final : public Hooked<QWidget> {
public:
    FrameWidget(QWidget* pParent, UINT style);

    QWidget* Client() const { return m_pClient; }
    QString Caption() const override { return windowTitle(); }
    void SetCaption(const QString& text) override;
    /// Adds a small button to the caption, left of the existing ones.
    QToolButton* AddCaptionButton();
    /// Difference between the size of the window and of its content.
    QSize Surplus() const;
    static int CaptionHeight();
    static int EdgeWidth() { return 3; }

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void moveEvent(QMoveEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

private:
    Qt::Edges EdgesAt(const QPoint& point) const;
    void ShowEdgeCursor(const QPoint& point);
    void DragTo(const QPoint& onScreen);
    void Settle();
    void LayOut();

    QWidget* m_pClient;
    bool m_hasCaption;
    bool m_sizable;
    bool m_dragging = false;
    Qt::Edges m_edges;
    QPoint m_grip; ///< screen position where the mouse button was pressed
    QRect m_before;
    QTimer m_settle;
    std::pair<QPoint, QPoint> m_lastCorrection; ///< from, to
    std::vector<QToolButton*> m_buttons;
};

/// Makes the widgets of a window by its style and binds them.
std::shared_ptr<WindowCore> MakeWindow(CWnd& wnd, UINT style, CWnd* pParent, UINT id);
