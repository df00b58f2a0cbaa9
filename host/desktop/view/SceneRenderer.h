// Draws a scene into a picture, piece by piece so that nobody has to wait for all of it.
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
    double pixelRatio = 1; ///< pixels of the device for one of the desktop
    friend bool operator==(const RenderSettings&, const RenderSettings&) = default;
};

/// How finely a view is drawn. Chosen for a view as a whole, so that pieces of its picture
/// that are drawn one after the other fit together.
struct RenderDetail {
    bool isFine = true;     ///< smoothed lines, each over those that are older
    double pointSize = 7;   ///< pixels of the desktop; 1 is a dot
    bool hasTexts = true;   ///< texts can be read; dots otherwise
    bool hasLabels = false; ///< few enough to name them
    friend bool operator==(const RenderDetail&, const RenderDetail&) = default;
};

RenderDetail DetailOf(const DrawingScene& scene, const ViewTransform& transform);

/// An entity that is drawn over all others.
struct Emphasis {
    AcDbObjectId id;
    Rgb color = 0;
    double width = 3; ///< pixels of the desktop
};

/// Calls visit(item) for the visible items of a kind whose block meets the box, and then
/// only if their own box does, until it answers false.
template <class Visit>
void ForItemsIn(const DrawingScene& scene, ShapeKind kind, const FloatBox& box, Visit&& visit);

class SceneRenderer {
public:
    using Clock = std::chrono::steady_clock;

    /// Begins a picture. All that is given has to stay as it is until the last Continue.
    /// \param canvas holds the whole view, or is clipped to the part that is to be drawn
    void Start(const DrawingScene& scene, const ViewTransform& transform,
               const RenderSettings& settings, const RenderDetail& detail,
               std::span<const Emphasis> emphasis, const PixelCanvas& canvas);
    /// Goes on until it is done, true, or it is late.
    bool Continue(Clock::time_point deadline);
    void Stop() { m_stage = Stage::Done; }
    bool IsDone() const { return m_stage == Stage::Done; }

private:
    enum class Stage { Areas, Lines, Points, Texts, Emphasis, Done };

    void EnterStage(Stage stage);
    /// Draws up to some hundred items. False if the stage has no more.
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
    /// To pixels, into m_path. False if the entity is no more.
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
    std::vector<std::uint32_t> m_few; ///< items in the order of drawing, where it is fine
    std::vector<Rgb> m_colors;        ///< by style; 0 for what is not shown
    FloatBox m_view;                  ///< what the clip shows, and a border
    bool m_isExact = false;           ///< floats have not digits enough for this view
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
