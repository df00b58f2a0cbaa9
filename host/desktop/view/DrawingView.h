// The widget that shows a drawing and handles navigation and picking.
#pragma once

#include <QTimer>
#include <QWidget>
#include <optional>
#include <span>
#include <vector>

#include "host/desktop/view/ScenePick.h"
#include "host/desktop/view/TextOverlay.h"
#include "host/desktop/view/ViewPicture.h"
#include "platform/arx/EdDisplay.h"

namespace Tessaly {

/// Shows one drawing, or none. Colours follow the palette's base, dark or light. Entities are
/// passed as ids; ids of erased entities are ignored.
class DrawingView : public QWidget {
    Q_OBJECT

public:
    explicit DrawingView(QWidget* pParent = nullptr);
    ~DrawingView() override;

    /// Not owned; may be destroyed before the view. Shows the drawing's extents.
    void SetDatabase(AcDbDatabase* pDatabase);
    const DrawingScene& Scene() const { return m_scene; }
    /// In device pixels.
    const ViewTransform& Transform() const { return m_transform; }

    void ZoomExtents();
    /// Centres these entities and shows them completely; a factor of 1.05 leaves a margin of five
    /// per cent. False, without changing the view, if none of them has a position.
    bool ZoomTo(std::span<const AcDbObjectId> ids, double factor);
    /// Around the centre, or around a position in the widget.
    void ZoomBy(double factor);
    void ZoomBy(double factor, const QPointF& around);
    /// In parts of the window: 1 shows what is just off screen to the right, or above.
    void PanBy(double right, double up);

    const std::vector<AcDbObjectId>& Selection() const { return m_selection; }
    void SetSelection(std::vector<AcDbObjectId> ids);
    /// With thick lines in a colour of the 255-colour table, until the next Redraw.
    void Highlight(std::span<const AcDbObjectId> ids, int colorIndex);
    /// In a colour of the 255-colour table, until the next Redraw.
    void Mark(std::span<const AcDbObjectId> ids, int colorIndex);
    /// Redraws everything and clears marks and highlights.
    void Redraw();
    /// Shows changes of the drawing at once.
    void UpdateDisplay();

    /// Whether the last frame is complete; if not, more frames follow.
    bool IsPictureWhole() const { return m_picture.IsWhole(); }
    /// Makes the next frame complete, however long it takes, for a screenshot.
    void CompletePicture();

    /// Takes the focus. The next click picks an entity instead of selecting it and emits PickEnded.
    void StartPick();
    void CancelPick();
    bool IsPicking() const { return m_isPicking; }
    /// The entity to pick at a position in the widget; null if there is none.
    AcDbObjectId EntityAt(const QPointF& position) const;

signals:
    /// The cursor position, in drawing units.
    void PositionMoved(double x, double y);
    void PositionLeft();
    void SelectionChanged();
    /// \param id null unless an entity was picked
    /// \param x,y the clicked position, in drawing units
    void PickEnded(PickOutcome how, AcDbObjectId id, double x, double y);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void keyReleaseEvent(QKeyEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;

private:
    enum class Drag { None, Pan, Box };
    struct Marked {
        AcDbObjectId id;
        int colorIndex;
        double width;
    };

    void ExpectChange();
    /// Emits signals that were postponed during a frame or the end of a drawing.
    void Tell();
    /// Applies pending changes of size, drawing and requested position.
    void BringUpToDate();
    void FollowSize();
    void FitExtents();
    void DropLost();
    void EmphasisChanged();
    void MakeEmphasis();
    void ShowMoved();
    RenderSettings Settings() const;
    PixelPoint ToDevice(const QPointF& position) const;
    /// The pick distance, in drawing units.
    double Tolerance() const;
    void PaintRubberBand(QPainter& painter) const;

    void EndDrag(const QPointF& position, bool isAdding);
    void SelectAt(const QPointF& position, bool isAdding);
    void SelectInBox(const QPointF& corner, const QPointF& opposite, bool isAdding);
    void AddToSelection(std::vector<AcDbObjectId> ids, bool isAdding);
    void AnswerPick(const QPointF& position);
    bool ObeyKey(int key);
    void Escape();
    void ShowCursor();

    DrawingScene m_scene;
    ViewTransform m_transform;
    ViewPicture m_picture;
    TextOverlay m_texts;
    QTimer m_more; ///< continues an incomplete picture
    QTimer m_tell;
    double m_pixelRatio = 0;
    bool m_areExtentsWanted = true;
    bool m_hasMoved = false; ///< the user or a command has moved the view

    std::vector<AcDbObjectId> m_selection; ///< sorted by number
    std::vector<Marked> m_marks;
    std::vector<Emphasis> m_emphasis; ///< from selection and marks, in drawing order
    bool m_isEmphasisStale = false;
    bool m_isSelectionLess = false; ///< and the signal is still to be emitted

    Drag m_drag = Drag::None;
    bool m_isPicking = false;
    bool m_isSpaceDown = false;
    QPointF m_dragStart;
    QPointF m_dragLast;
};

} // namespace Tessaly
