// Texts and names of entities, painted over the picture at every frame: few, since only as
// many are shown as can be read.
#pragma once

#include <QFont>
#include <QRectF>
#include <vector>

#include "host/desktop/view/SceneRenderer.h"

class QFontMetricsF;
class QPainter;

namespace Tessaly {

/// Works in pixels of the device.
class TextOverlay {
public:
    /// \param font that of names, and of texts by another size
    void Paint(QPainter& painter, const QFont& font, const DrawingScene& scene,
               const ViewTransform& transform, const RenderSettings& settings,
               const RenderDetail& detail);
    /// Whose text or name was painted there, the last one first; null if none.
    AcDbObjectId EntityAt(const PixelPoint& place) const;

private:
    struct Painted {
        QRectF box;
        AcDbObjectId id;
    };
    /// What Paint was given.
    struct Frame {
        QPainter& painter;
        const DrawingScene& scene;
        const ViewTransform& transform;
        const RenderSettings& settings;
        QFont font;
    };

    void PaintTexts(const Frame& frame);
    void PaintText(const Frame& frame, const AcDbText& text, Rgb color);
    /// Names do not cover symbols.
    void NoteSymbols(const Frame& frame, double size);
    void PaintLabels(const Frame& frame, ShapeKind kind, const QFontMetricsF& metrics);
    void PaintLabel(const Frame& frame, AcDbObjectId id, const QString& name, const QRectF& box);
    bool IsFree(const QRectF& box) const;

    std::vector<Painted> m_painted;
    std::vector<QRectF> m_symbols;
    EntityShape m_shape;
};

} // namespace Tessaly
