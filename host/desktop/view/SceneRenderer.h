// Draws a scene into an image in steps, so that the user never waits for all of it.
#pragma once

#include <chrono>
#include <span>
#include <vector>

#include "host/desktop/view/DrawingScene.h"
#include "host/desktop/view/PixelCanvas.h"

namespace Tessaly {

struct RenderSettings {
    Background background = Background::Dark;
    Rgb paper = 0xff000000;
    double pixelRatio = 1; ///< device pixels per desktop pixel
    friend bool operator==(const RenderSettings&, const RenderSettings&) = default;
};

/// Level of detail. Chosen for the view as a whole, so that separately drawn pieces of its picture
/// fit together.
struct RenderDetail {
    bool isFine = true;     ///< antialiased lines, newer ones on top
    double pointSize = 7;   ///< in desktop pixels; 1 is a dot
    bool hasTexts = true;   ///< texts are legible; otherwise drawn as dots
    bool hasLabels = false; ///< few enough entities to label them
    friend bool operator==(const RenderDetail&, const RenderDetail&) = default;
};

RenderDetail DetailOf(const DrawingScene& scene, const ViewTransform& transform);

/// An entity drawn on top of all others.
struct Emphasis {
    AcDbObjectId id;
    Rgb color = 0;
    double width = 3; ///< in desktop pixels
};

/// Calls visit(item) for the visible items of a kind whose block and own box meet the box, until it
/// returns false.
template <class Visit>
void ForItemsIn(const DrawingScene& scene, ShapeKind kind, const FloatBox& box, Visit&& visit);

class SceneRenderer {
public:
    using Clock = std::chrono::steady_clock;

    /// Starts a picture. All arguments must stay unchanged until the last Continue.
    /// \param canvas the whole view, or clipped to the part to draw
    void Start(const DrawingScene& scene, const ViewTransform& transform,
               const RenderSettings& settings, const RenderDetail& detail,
               std::span<const Emphasis> emphasis, const PixelCanvas& canvas);
    /// Continues until the picture is done (true) or the deadline has passed (false).
    bool Continue(Clock::time_point deadline);
    void Stop() { m_stage = Stage::Done; }
    bool IsDone() const { return m_stage == Stage::Done; }

private:
    enum class Stage { Areas, Lines, Points, Texts, Emphasis, Done };

    void EnterStage(Stage stage);
    /// Draws up to a few hundred items. False if the stage is complete.
    bool DrawSome();
    bool DrawBlocks();
    bool DrawFew();
    bool DrawEmphasis();
    void GatherFew();

    void DrawLineBlock(std::uint32_t block);
    void DrawFarLine(std::uint32_t item, Rgb color);
    void DrawItem(std::uint32_t item, Rgb color);
    void DrawArea(Rgb color);
    void DrawPoint(Rgb color);
    void DrawEmphasized(const Emphasis& emphasis);
    /// Converts to pixels, into m_path. False if the entity no longer exists.
    bool MakePath(std::uint32_t item, bool isExact);

    float ToX(float x) const { return x * m_scale + m_shiftX; }
    float ToY(float y) const { return m_shiftY - y * m_scale; }
    const ItemStore& Items() const { return m_pScene->Items(m_kind); }

    const DrawingScene* m_pScene = nullptr;
    ViewTransform m_transform;
    RenderSettings m_settings;
    RenderDetail m_detail;
    std::span<const Emphasis> m_emphasis;
    PixelCanvas m_canvas;

    Stage m_stage = Stage::Done;
    ShapeKind m_kind = ShapeKind::Area;
    std::uint32_t m_next = 0;
    std::vector<std::uint32_t> m_few; ///< items in drawing order, if detail is fine
    std::vector<Rgb> m_colors;        ///< by style; 0 if hidden
    FloatBox m_view;                  ///< the clip plus a border
    bool m_isExact = false;           ///< floats are not precise enough for this view
    float m_scale = 1;
    float m_shiftX = 0;
    float m_shiftY = 0;

    EntityShape m_shape;
    std::vector<PixelPoint> m_path;
};

template <class Visit>
void ForItemsIn(const DrawingScene& scene, ShapeKind kind, const FloatBox& box, Visit&& visit) {
    const ItemStore& items = scene.Items(kind);
    const std::span<const StyleLook> looks = scene.Looks();
    for (std::uint32_t block = 0; block < items.BlockCount(); ++block) {
        if (!items.Block(block).Meets(box)) {
            continue;
        }
        for (std::uint32_t item = block * ItemStore::kBlockSize; item < items.BlockEnd(block);
             ++item) {
            if (looks[items.Style(item)].isVisible && BoxOf(items.Places(item)).Meets(box) &&
                !visit(item)) {
                return;
            }
        }
    }
}

} // namespace Tessaly
