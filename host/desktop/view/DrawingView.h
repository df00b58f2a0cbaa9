// The window in which a drawing is seen, moved, and picked from.
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

/// Shows one drawing, or none. Colours follow the palette: a dark or a light base. Entities
/// are named by their ids; ids of what is no more are passed over.
class DrawingView : public QWidget {
    Q_OBJECT

public:
    explicit DrawingView(QWidget* pParent = nullptr);
    ~DrawingView() override;

    /// Not owned; may go before the view. Shows its extents.
    void SetDatabase(AcDbDatabase* pDatabase);
    const DrawingScene& Scene() const { return m_scene; }
    /// In pixels of the device.
    const ViewTransform& Transform() const { return m_transform; }

    void ZoomExtents();
    /// Shows these entities whole, in the middle; a factor of 1.05 leaves five per cent of
    /// margin. False, and the view stays, if none of them has a place.
    bool ZoomTo(std::span<const AcDbObjectId> ids, double factor);
    /// Around the middle, or around a place in the window.
    void ZoomBy(double factor);
    void ZoomBy(double factor, const QPointF& around);
    /// By parts of the window: 1 shows what is just out of sight on the right, or above.
    void PanBy(double right, double up);

    const std::vector<AcDbObjectId>& Selection() const { return m_selection; }
    void SetSelection(std::vector<AcDbObjectId> ids);
    /// Thick, in a colour of the 255-colour table; until the next Redraw.
    void Highlight(std::span<const AcDbObjectId> ids, int colorIndex);
    /// In a colour of the 255-colour table; until the next Redraw.
    void Mark(std::span<const AcDbObjectId> ids, int colorIndex);
    /// Draws all anew, without marks and highlights.
    void Redraw();
    /// Shows at once what has changed in the drawing.
    void UpdateDisplay();

    /// The last frame showed everything; more are on their way otherwise.
    bool IsPictureWhole() const { return m_picture.IsWhole(); }
    /// Has the next frame show everything, however long that takes: for a picture of the
    /// window.
    void CompletePicture();

    /// Takes the focus. The next click asks for an entity instead of selecting it; PickEnded
    /// tells of it.
    void StartPick();
    void CancelPick();
    bool IsPicking() const { return m_isPicking; }
    /// What the user means by a place in the window; null if nothing.
    AcDbObjectId EntityAt(const QPointF& position) const;

signals:
    /// The cursor, in drawing units.
    void PositionMoved(double x, double y);
    void PositionLeft();
    void SelectionChanged();
    /// \param id null unless picked
    /// \param x,y drawing units, where the user pointed
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
    /// What others could not be told in the middle of a frame, or of the end of a drawing.
    void Tell();
    /// Takes over what has changed: size, drawing, places asked for.
    void BringUpToDate();
    void FollowSize();
    void FitExtents();
    void DropLost();
    void EmphasisChanged();
    void MakeEmphasis();
    void ShowMoved();
    RenderSettings Settings() const;
    PixelPoint ToDevice(const QPointF& position) const;
    /// How far something seen may be from the cursor to be meant, in drawing units.
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
    QTimer m_more; ///< the picture is not whole yet
    QTimer m_tell;
    double m_pixelRatio = 0;
    bool m_areExtentsWanted = true;
    bool m_hasMoved = false; ///< the user, or a command, chose the place

    std::vector<AcDbObjectId> m_selection; ///< by number
    std::vector<Marked> m_marks;
    std::vector<Emphasis> m_emphasis; ///< of both, in the order of drawing
    bool m_isEmphasisStale = false;
    bool m_isSelectionLess = false; ///< and nobody was told yet

    Drag m_drag = Drag::None;
    bool m_isPicking = false;
    bool m_isSpaceDown = false;
    QPointF m_dragStart;
    QPointF m_dragLast;
};

} // namespace Tessaly
