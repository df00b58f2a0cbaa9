#include "host/desktop/view/TextOverlay.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QString>
#include <algorithm>
#include <cmath>

namespace Tessaly {

namespace {

constexpr double kLabelPixels = 12;
constexpr double kLeastReadable = 4;
/// Above this size a letter fills the view.
constexpr double kMostPixels = 4000;
/// Ratio of font height to capital height.
constexpr double kFontOfCapitals = 1.37;
constexpr double kGap = 3; ///< between a name and its entity

QString NameOf(const AcDbEntity& entity) {
    static const AcDbNameId s_name = AcDbIntern("NAME");
    const AcDbValue value = entity.attribute(s_name);
    if (const auto number = value.asInteger()) {
        return QString::number(*number);
    }
    const std::string_view text = value.asText();
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QFont WithPixels(QFont font, double pixels) {
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
    return font;
}

struct LabelSpot {
    PixelPoint middle;
    double room = 0;  ///< longest name that fits, in pixels
    PixelPoint aside; ///< unit vector pointing away from the line; zero for an area
};

/// The middle of the longest visible straight part; the room is the length of all such parts.
LabelSpot SpotOnLine(const std::vector<PlanePoint>& places, const ViewTransform& transform) {
    LabelSpot spot;
    double longest = 0;
    for (std::size_t i = 1; i < places.size(); ++i) {
        const PixelPoint from = transform.ToPixel(places[i - 1].x, places[i - 1].y);
        const PixelPoint to = transform.ToPixel(places[i].x, places[i].y);
        const PixelPoint middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        const bool isSeen = middle.x > 0 && middle.x < transform.Width() && middle.y > 0 &&
                            middle.y < transform.Height();
        spot.room += isSeen ? length : 0;
        if (isSeen && length > longest) {
            longest = length;
            spot.middle = middle;
            const double up = to.x < from.x ? -length : length;
            spot.aside = {(to.y - from.y) / up, (from.x - to.x) / up};
        }
    }
    return spot;
}

LabelSpot SpotInArea(const EntityShape& shape, const ViewTransform& transform) {
    const AcGeExtents2d box = ExtentsOf(shape);
    return {transform.ToPixel((box.minX + box.maxX) / 2, (box.minY + box.maxY) / 2),
            (box.maxX - box.minX) / transform.UnitsPerPixel(),
            {}};
}

} // namespace

void TextOverlay::Paint(QPainter& painter, const QFont& font, const DrawingScene& scene,
                        const ViewTransform& transform, const RenderSettings& settings,
                        const RenderDetail& detail) {
    m_painted.clear();
    m_symbols.clear();
    const Frame frame{painter, scene, transform, settings,
                      WithPixels(font, kLabelPixels * settings.pixelRatio)};
    if (detail.hasTexts) {
        PaintTexts(frame);
    }
    if (detail.hasLabels) {
        NoteSymbols(frame, detail.pointSize * settings.pixelRatio);
        painter.setFont(frame.font);
        const QFontMetricsF metrics(frame.font);
        for (const ShapeKind kind : {ShapeKind::Point, ShapeKind::Line, ShapeKind::Area}) {
            PaintLabels(frame, kind, metrics);
        }
    }
}

void TextOverlay::PaintTexts(const Frame& frame) {
    AcGeExtents2d view = frame.transform.Visible();
    // A text extends to the right of its position, and up.
    view.minX -= view.maxX - view.minX;
    view.minY -= view.maxY - view.minY;
    ForItemsIn(frame.scene, ShapeKind::Text, frame.scene.Relative(view), [&](std::uint32_t item) {
        const ItemStore& items = frame.scene.Items(ShapeKind::Text);
        const auto* const pText =
            dynamic_cast<const AcDbText*>(frame.scene.Entity(AcDbObjectId(items.Id(item))));
        if (pText) {
            const int index = frame.scene.Looks()[items.Style(item)].colorIndex;
            PaintText(frame, *pText, AciColor(index, frame.settings.background));
        }
        return true;
    });
}

void TextOverlay::PaintText(const Frame& frame, const AcDbText& text, Rgb color) {
    const PixelPoint place = frame.transform.ToPixel(text.position().x, text.position().y);
    const double height = text.height() > 0
                              ? text.height() / frame.transform.UnitsPerPixel()
                              : kLabelPixels / kFontOfCapitals * frame.settings.pixelRatio;
    const std::string_view utf8 = text.textUtf8();
    if (!(height < kMostPixels)) {
        return;
    }
    if (height < kLeastReadable) {
        const double length = std::max(1.0, height * static_cast<double>(utf8.size()) / 2);
        frame.painter.fillRect(QRectF(place.x, place.y - 1, length, 1), QColor::fromRgb(color));
        return;
    }
    const QFont font = WithPixels(frame.font, height * kFontOfCapitals);
    const QString shown = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    const double length = QFontMetricsF(font).horizontalAdvance(shown);
    frame.painter.setFont(font);
    frame.painter.setPen(QColor::fromRgb(color));
    frame.painter.drawText(QPointF(place.x, place.y), shown);
    m_painted.push_back({QRectF(place.x, place.y - height, length, height), text.objectId()});
}

void TextOverlay::NoteSymbols(const Frame& frame, double size) {
    const ItemStore& points = frame.scene.Items(ShapeKind::Point);
    const FloatBox view = frame.scene.Relative(frame.transform.Visible());
    ForItemsIn(frame.scene, ShapeKind::Point, view, [&](std::uint32_t item) {
        if (frame.scene.Shape(AcDbObjectId(points.Id(item)), m_shape)) {
            const PlanePoint& place = m_shape.places.front();
            const PixelPoint spot = frame.transform.ToPixel(place.x, place.y);
            m_symbols.emplace_back(spot.x - size / 2, spot.y - size / 2, size, size);
        }
        return true;
    });
}

void TextOverlay::PaintLabels(const Frame& frame, ShapeKind kind, const QFontMetricsF& metrics) {
    const double gap = kGap * frame.settings.pixelRatio;
    const FloatBox view = frame.scene.Relative(frame.transform.Visible());
    ForItemsIn(frame.scene, kind, view, [&](std::uint32_t item) {
        const AcDbObjectId id(frame.scene.Items(kind).Id(item));
        const AcDbEntity* const pEntity = frame.scene.Entity(id);
        if (!pEntity || !ReadShape(*pEntity, m_shape)) {
            return true;
        }
        const QString name = NameOf(*pEntity);
        if (name.isEmpty()) {
            return true;
        }
        const double length = metrics.horizontalAdvance(name);
        QRectF box(0, 0, length, metrics.height());
        if (kind == ShapeKind::Point) {
            const PlanePoint& place = m_shape.places.front();
            const PixelPoint spot = frame.transform.ToPixel(place.x, place.y);
            box.moveBottomLeft(QPointF(spot.x + gap * 2, spot.y - gap));
        } else {
            const LabelSpot spot = kind == ShapeKind::Line
                                       ? SpotOnLine(m_shape.places, frame.transform)
                                       : SpotInArea(m_shape, frame.transform);
            if (spot.room < length) {
                return true;
            }
            const double reach =
                (std::abs(spot.aside.x) * box.width() + std::abs(spot.aside.y) * box.height()) / 2;
            box.moveCenter(QPointF(spot.middle.x + spot.aside.x * reach,
                                   spot.middle.y + spot.aside.y * reach));
        }
        if (IsFree(box)) {
            PaintLabel(frame, id, name, box);
        }
        return true;
    });
}

void TextOverlay::PaintLabel(const Frame& frame, AcDbObjectId id, const QString& name,
                             const QRectF& box) {
    const Rgb ink = AciColor(7, frame.settings.background);
    QColor paper = QColor::fromRgb(frame.settings.paper);
    paper.setAlpha(150);
    frame.painter.fillRect(box.adjusted(-1, 0, 1, 0), paper);
    frame.painter.setPen(QColor::fromRgb(MixColors(frame.settings.paper, ink, 200)));
    frame.painter.drawText(QPointF(box.left(), box.bottom() - box.height() / 5), name);
    m_painted.push_back({box, id});
}

bool TextOverlay::IsFree(const QRectF& box) const {
    return std::none_of(m_painted.begin(), m_painted.end(),
                        [&](const Painted& painted) { return painted.box.intersects(box); }) &&
           std::none_of(m_symbols.begin(), m_symbols.end(),
                        [&](const QRectF& symbol) { return symbol.intersects(box); });
}

AcDbObjectId TextOverlay::EntityAt(const PixelPoint& place) const {
    const auto hit =
        std::find_if(m_painted.rbegin(), m_painted.rend(), [&](const Painted& painted) {
            return painted.box.contains(place.x, place.y);
        });
    return hit == m_painted.rend() ? AcDbObjectId() : hit->id;
}

} // namespace Tessaly
