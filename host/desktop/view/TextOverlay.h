// Texts and names of entities, painted over the picture in every frame. Only as many as are
// legible, hence few.
#pragma once

#include <QFont>
#include <QRectF>
#include <vector>

#include "host/desktop/view/SceneRenderer.h"

class QFontMetricsF;
class QPainter;

namespace Tessaly {

/// Works in device pixels.
class TextOverlay {
public:
    /// \param font used for names and, scaled, for texts
    void Paint(QPainter& painter, const QFont& font, const DrawingScene& scene,
               const ViewTransform& transform, const RenderSettings& settings,
               const RenderDetail& detail);
    /// The entity whose text or name is painted at this position, topmost first; null if none.
    AcDbObjectId EntityAt(const PixelPoint& place) const;

private:
    struct Painted {
        QRectF box;
        AcDbObjectId id;
    };
    /// The arguments of Paint.
    struct Frame {
        QPainter& painter;
        const DrawingScene& scene;
        const ViewTransform& transform;
        const RenderSettings& settings;
        QFont font;
    };

    void PaintTexts(const Frame& frame);
    void PaintText(const Frame& frame, const AcDbText& text, Rgb color);
    /// Reserves the space of symbols, which names must not cover.
    void NoteSymbols(const Frame& frame, double size);
    void PaintLabels(const Frame& frame, ShapeKind kind, const QFontMetricsF& metrics);
    void PaintLabel(const Frame& frame, AcDbObjectId id, const QString& name, const QRectF& box);
    bool IsFree(const QRectF& box) const;

    std::vector<Painted> m_painted;
    std::vector<QRectF> m_symbols;
    EntityShape m_shape;
};

} // namespace Tessaly
