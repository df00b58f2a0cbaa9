// The picture of a scene, cached between frames.
#pragma once

#include <QImage>
#include <vector>

#include "host/desktop/view/SceneRenderer.h"

class QPainter;

namespace Tessaly {

/// Draws only what the previous picture lacks: nothing if the view has not changed, the newly
/// visible border if it was shifted by whole pixels. Slow pictures are drawn over several frames;
/// meanwhile the previous one, shifted and scaled, is shown.
class ViewPicture {
public:
    using Clock = SceneRenderer::Clock;

    /// Everything must be redrawn.
    void Invalidate() { m_isValid = false; }
    /// Continues until the picture is complete (true) or the deadline has passed (false). Scene and
    /// emphasis must stay unchanged until then, or until Invalidate.
    bool Update(const DrawingScene& scene, const ViewTransform& transform,
                const RenderSettings& settings, std::span<const Emphasis> emphasis,
                Clock::time_point deadline);
    bool IsWhole() const { return m_isValid && m_isWhole; }
    /// In device pixels.
    void Paint(QPainter& painter) const;
    const RenderDetail& Detail() const { return m_detail; }
    const QImage& Image() const { return m_image; }

private:
    bool IsShownBy(const ViewTransform& transform, const RenderSettings& settings) const;
    /// True if shifting was possible.
    bool Shift(const ViewTransform& transform);
    void MovePixels(int dx, int dy);
    void StartWhole(const DrawingScene& scene, const ViewTransform& transform,
                    const RenderSettings& settings);
    void KeepPreview();
    PixelCanvas Canvas(const PixelRect& clip);

    QImage m_image;
    ViewTransform m_transform; ///< of the image
    RenderSettings m_settings;
    RenderDetail m_detail;
    SceneRenderer m_renderer;
    std::vector<PixelRect> m_missing; ///< to draw after the renderer's current part
    bool m_isValid = false;
    bool m_isWhole = false;
    bool m_isSlow = false; ///< the last whole picture took more than one call
    int m_nCalls = 0;
    QImage m_preview; ///< null unless pictures are slow
    ViewTransform m_previewTransform;
};

} // namespace Tessaly
