#include "host/desktop/view/DrawingView.h"

#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "host/Texts.h"

namespace Tessaly {

namespace {

constexpr double kMargin = 1.05;
/// Time limit per frame; an unfinished picture is shown when it is reached.
constexpr std::chrono::milliseconds kFrameTime(28);
constexpr double kPickPixels = 5;
constexpr double kHighlightWidth = 5;
constexpr double kMarkWidth = 3;
constexpr double kSelectionWidth = 3;
constexpr Rgb kSelectionColor = 0xff3d9bff;
constexpr double kEmptySpan = 100; ///< drawing units across an empty drawing
constexpr double kPointSpan = 10;  ///< drawing units across a drawing without size
/// Part of the drawing's extents to show around a single point.
constexpr double kPartAroundPoint = 0.01;

} // namespace

DrawingView::DrawingView(QWidget* pParent) : QWidget(pParent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(64, 64);
    setAccessibleName(QString::fromStdWString(Text(Msg::DrawingName).Str()));
    ShowCursor();
    m_more.setSingleShot(true);
    connect(&m_more, &QTimer::timeout, this, [this] { update(); });
    m_tell.setSingleShot(true);
    connect(&m_tell, &QTimer::timeout, this, &DrawingView::Tell);
    m_scene.SetOnStale([this] { ExpectChange(); });
}

DrawingView::~DrawingView() {
    // The scene's destructor detaches from its database and must not call back into this view.
    m_scene.SetOnStale({});
}

void DrawingView::ExpectChange() {
    update();
    if (m_isPicking && !m_scene.Database()) {
        m_tell.start(0);
    }
}

void DrawingView::Tell() {
    if (m_isPicking && !m_scene.Database()) {
        CancelPick();
    }
    if (std::exchange(m_isSelectionLess, false)) {
        emit SelectionChanged();
    }
}

void DrawingView::SetDatabase(AcDbDatabase* pDatabase) {
    CancelPick();
    m_scene.SetDatabase(pDatabase);
    ZoomExtents();
}

RenderSettings DrawingView::Settings() const {
    const Rgb paper = palette().color(QPalette::Base).rgb();
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    return {isDark ? Background::Dark : Background::Light, paper, devicePixelRatioF()};
}

PixelPoint DrawingView::ToDevice(const QPointF& position) const {
    return {position.x() * devicePixelRatioF(), position.y() * devicePixelRatioF()};
}

double DrawingView::Tolerance() const {
    return kPickPixels * devicePixelRatioF() * m_transform.UnitsPerPixel();
}

void DrawingView::FollowSize() {
    const double ratio = devicePixelRatioF();
    if (m_pixelRatio > 0 && m_pixelRatio != ratio) {
        // On another screen, keep showing the same part of the drawing.
        const PixelPoint middle{m_transform.Width() / 2.0, m_transform.Height() / 2.0};
        m_transform.ZoomAt(middle, ratio / m_pixelRatio);
    }
    m_pixelRatio = ratio;
    m_transform.Resize(static_cast<int>(std::lround(width() * ratio)),
                       static_cast<int>(std::lround(height() * ratio)));
}

void DrawingView::FitExtents() {
    const AcGeExtents2d extents = m_scene.Extents();
    if (!m_transform.Fit(extents, kMargin, kPointSpan)) {
        m_transform.Fit({0, 0, kEmptySpan, kEmptySpan}, kMargin, kEmptySpan);
    }
    m_areExtentsWanted = false;
    // After an empty drawing, keep fitting new entities unless the user moves the view.
    m_hasMoved = !extents.isEmpty();
}

void DrawingView::BringUpToDate() {
    FollowSize();
    const SceneChange change = m_scene.Update();
    if (change != SceneChange::None) {
        DropLost();
        m_picture.Invalidate();
    }
    if (change == SceneChange::Everything || (change == SceneChange::Some && !m_hasMoved)) {
        m_areExtentsWanted = true;
    }
    if (m_areExtentsWanted) {
        FitExtents();
    }
    if (m_isEmphasisStale) {
        MakeEmphasis();
    }
}

void DrawingView::DropLost() {
    const auto isLost = [this](AcDbObjectId id) { return !m_scene.IsLive(id); };
    std::erase_if(m_marks, [&](const Marked& marked) { return isLost(marked.id); });
    if (std::erase_if(m_selection, isLost) > 0) {
        m_isSelectionLess = true;
        m_tell.start(0);
    }
    m_isEmphasisStale = true;
}

void DrawingView::EmphasisChanged() {
    // Rebuilt at the next frame, because marks are often added one by one, in thousands.
    m_isEmphasisStale = true;
    m_picture.Invalidate();
    update();
}

void DrawingView::MakeEmphasis() {
    const Background background = Settings().background;
    m_isEmphasisStale = false;
    m_emphasis.clear();
    for (const AcDbObjectId id : m_selection) {
        m_emphasis.push_back({id, kSelectionColor, kSelectionWidth});
    }
    for (const Marked& marked : m_marks) {
        m_emphasis.push_back({marked.id, AciColor(marked.colorIndex, background), marked.width});
    }
}

void DrawingView::paintEvent(QPaintEvent*) {
    const auto deadline = ViewPicture::Clock::now() + kFrameTime;
    BringUpToDate();
    const RenderSettings settings = Settings();
    if (!m_picture.Update(m_scene, m_transform, settings, m_emphasis, deadline)) {
        m_more.start(0);
    }
    QPainter painter(this);
    painter.scale(1 / settings.pixelRatio, 1 / settings.pixelRatio);
    m_picture.Paint(painter);
    m_texts.Paint(painter, font(), m_scene, m_transform, settings, m_picture.Detail());
    if (m_drag == Drag::Box) {
        PaintRubberBand(painter);
    }
}

void DrawingView::PaintRubberBand(QPainter& painter) const {
    const PixelPoint from = ToDevice(m_dragStart);
    const PixelPoint to = ToDevice(m_dragLast);
    const bool isWhole = to.x >= from.x;
    QColor color = QColor::fromRgb(isWhole ? kSelectionColor : 0xff35b04fU);
    painter.setPen(QPen(color, devicePixelRatioF(), isWhole ? Qt::SolidLine : Qt::DashLine));
    color.setAlpha(40);
    painter.setBrush(color);
    painter.drawRect(QRectF(QPointF(from.x, from.y), QPointF(to.x, to.y)).normalized());
}

void DrawingView::resizeEvent(QResizeEvent*) {
    // A view that was never moved keeps showing everything.
    FollowSize();
}

void DrawingView::changeEvent(QEvent* pEvent) {
    if (pEvent->type() == QEvent::PaletteChange || pEvent->type() == QEvent::FontChange) {
        EmphasisChanged();
    }
    QWidget::changeEvent(pEvent);
}

void DrawingView::ZoomExtents() {
    m_areExtentsWanted = true;
    update();
}

bool DrawingView::ZoomTo(std::span<const AcDbObjectId> ids, double factor) {
    BringUpToDate();
    const AcGeExtents2d all = m_scene.Extents();
    const double size = std::max(all.maxX - all.minX, all.maxY - all.minY);
    const double around = size > 0 ? size * kPartAroundPoint : kPointSpan;
    if (!m_transform.Fit(m_scene.Extents(ids), factor, around)) {
        return false;
    }
    ShowMoved();
    return true;
}

void DrawingView::ZoomBy(double factor) {
    ZoomBy(factor, QPointF(width() / 2.0, height() / 2.0));
}

void DrawingView::ZoomBy(double factor, const QPointF& around) {
    BringUpToDate();
    m_transform.ZoomAt(ToDevice(around), factor);
    ShowMoved();
}

void DrawingView::PanBy(double right, double up) {
    BringUpToDate();
    // Whole pixels, so that the picture can be shifted.
    m_transform.Pan(std::round(-right * m_transform.Width()),
                    std::round(up * m_transform.Height()));
    ShowMoved();
}

void DrawingView::ShowMoved() {
    m_hasMoved = true;
    update();
}

void DrawingView::SetSelection(std::vector<AcDbObjectId> ids) {
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    std::erase_if(ids, [this](AcDbObjectId id) { return !m_scene.IsLive(id); });
    if (ids != m_selection) {
        m_selection = std::move(ids);
        EmphasisChanged();
        emit SelectionChanged();
    }
}

void DrawingView::Highlight(std::span<const AcDbObjectId> ids, int colorIndex) {
    for (const AcDbObjectId id : ids) {
        m_marks.push_back({id, colorIndex, kHighlightWidth});
    }
    EmphasisChanged();
}

void DrawingView::Mark(std::span<const AcDbObjectId> ids, int colorIndex) {
    for (const AcDbObjectId id : ids) {
        m_marks.push_back({id, colorIndex, kMarkWidth});
    }
    EmphasisChanged();
}

void DrawingView::Redraw() {
    m_marks.clear();
    EmphasisChanged();
}

void DrawingView::UpdateDisplay() {
    repaint();
}

void DrawingView::CompletePicture() {
    BringUpToDate();
    m_picture.Update(m_scene, m_transform, Settings(), m_emphasis,
                     ViewPicture::Clock::time_point::max());
    update();
}

void DrawingView::StartPick() {
    m_isPicking = true;
    m_drag = Drag::None;
    setFocus(Qt::OtherFocusReason); // to receive Escape
    ShowCursor();
}

void DrawingView::CancelPick() {
    if (m_isPicking) {
        m_isPicking = false;
        ShowCursor();
        emit PickEnded(PickOutcome::Cancelled, {}, 0, 0);
    }
}

AcDbObjectId DrawingView::EntityAt(const QPointF& position) const {
    const PixelPoint pixel = ToDevice(position);
    const PlanePoint place = m_transform.ToDrawing(pixel);
    const AcDbObjectId near = PickNearest(m_scene, place, Tolerance());
    // Names are drawn beside their entities, often inside an area, and win over areas.
    const AcDbObjectId named = m_texts.EntityAt(pixel);
    const auto found = m_scene.Find(near);
    const bool isExact = found && found->kind != ShapeKind::Area;
    return named.isNull() || isExact ? near : named;
}

} // namespace Tessaly
