// The picture of a scene that a view keeps from one frame to the next.
#pragma once

#include <QImage>
#include <vector>

#include "host/desktop/view/SceneRenderer.h"

class QPainter;

namespace Tessaly {

/// Draws only what the last picture does not have: nothing if the view stands still, the
/// border that comes into sight if it was moved by whole pixels. What takes long is drawn
/// over several frames, in which the last picture, moved and stretched, stands for it.
class ViewPicture {
public:
    using Clock = SceneRenderer::Clock;

    /// All has to be drawn again.
    void Invalidate() { m_isValid = false; }
    /// Goes on until the picture is whole, true, or the deadline has passed. The scene and
    /// the emphasis have to stay as they are until it is whole, or it is invalidated.
    bool Update(const DrawingScene& scene, const ViewTransform& transform,
                const RenderSettings& settings, std::span<const Emphasis> emphasis,
                Clock::time_point deadline);
    bool IsWhole() const { return m_isValid && m_isWhole; }
    /// In pixels of the device.
    void Paint(QPainter& painter) const;
    const RenderDetail& Detail() const { return m_detail; }
    const QImage& Image() const { return m_image; }

private:
    bool IsShownBy(const ViewTransform& transform, const RenderSettings& settings) const;
    /// True if it could.
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
    std::vector<PixelRect> m_missing; ///< to be drawn after what the renderer is at
    bool m_isValid = false;
    bool m_isWhole = false;
    bool m_isSlow = false; ///< the last whole picture took more than one call
    int m_nCalls = 0;
    QImage m_preview; ///< null unless pictures take long
    ViewTransform m_previewTransform;
};

} // namespace Tessaly
