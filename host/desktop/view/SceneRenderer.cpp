#include "host/desktop/view/SceneRenderer.h"

#include <algorithm>
#include <cmath>

namespace Tessaly {

namespace {

/// Up to this number of visible points, lines are antialiased.
constexpr std::uint32_t kFinePlaces = 12000;
constexpr std::uint32_t kMostLabels = 300;
constexpr std::uint32_t kMostTexts = 800;
constexpr int kFillShare = 40;
constexpr int kEmphasisFillShare = 90;
constexpr double kLineWidth = 1.2;
/// Floats farther outside than this many pixels have no subpixel precision left.
constexpr float kFarPixels = 1e6F;
/// Rounding errors above this part of a pixel would be visible.
constexpr double kLargestError = 0.2;
constexpr double kBorderPixels = 16; ///< extent of symbols and wide lines

/// The part of the drawing within the clip plus a border.
AcGeExtents2d SeenThrough(const ViewTransform& transform, const PixelRect& clip, double border) {
    return transform.BoxOf({clip.left - border, clip.top - border},
                           {clip.right + border, clip.bottom + border});
}

struct Count {
    std::uint32_t items = 0;
    std::uint32_t places = 0;
};

/// Counts visible items of a kind; stops shortly after reaching a limit.
Count CountOf(const DrawingScene& scene, ShapeKind kind, const FloatBox& view, const Count& limit) {
    Count count;
    ForItemsIn(scene, kind, view, [&](std::uint32_t item) {
        ++count.items;
        count.places += static_cast<std::uint32_t>(scene.Items(kind).Places(item).size());
        return count.items <= limit.items && count.places <= limit.places;
    });
    return count;
}

struct SizeStep {
    std::uint32_t most; ///< points
    double pixels;
};
constexpr SizeStep kPointSizes[] = {{120, 7}, {600, 5}, {4000, 3}};

double SizeOfPoints(std::uint32_t points) {
    for (const SizeStep& step : kPointSizes) {
        if (points <= step.most) {
            return step.pixels;
        }
    }
    return 1;
}

} // namespace

RenderDetail DetailOf(const DrawingScene& scene, const ViewTransform& transform) {
    const FloatBox view = scene.Relative(transform.Visible());
    const Count limit{kFinePlaces, kFinePlaces};
    const Count points = CountOf(scene, ShapeKind::Point, view, {30000, 30000});
    const Count lines = CountOf(scene, ShapeKind::Line, view, limit);
    const Count areas = CountOf(scene, ShapeKind::Area, view, limit);
    const Count texts = CountOf(scene, ShapeKind::Text, view, limit);
    return {points.places + lines.places + areas.places + texts.places <= kFinePlaces,
            SizeOfPoints(points.items), texts.items <= kMostTexts,
            points.items + lines.items + areas.items <= kMostLabels};
}

void SceneRenderer::Start(const DrawingScene& scene, const ViewTransform& transform,
                          const RenderSettings& settings, const RenderDetail& detail,
                          std::span<const Emphasis> emphasis, const PixelCanvas& canvas) {
    m_pScene = &scene;
    m_transform = transform;
    m_settings = settings;
    m_detail = detail;
    m_emphasis = emphasis;
    m_canvas = canvas;
    m_canvas.Clear(settings.paper);

    m_colors.clear();
    for (const StyleLook& look : scene.Looks()) {
        m_colors.push_back(look.isVisible ? AciColor(look.colorIndex, settings.background) : 0);
    }
    const AcGeExtents2d seen =
        SeenThrough(transform, canvas.Clip(), kBorderPixels * settings.pixelRatio);
    m_view = scene.Relative(seen);
    const PlanePoint origin = scene.Origin();
    const PixelPoint shift = transform.ToPixel(origin.x, origin.y);
    m_scale = static_cast<float>(1 / transform.UnitsPerPixel());
    m_shiftX = static_cast<float>(shift.x);
    m_shiftY = static_cast<float>(shift.y);
    const double distance = std::max({std::abs(m_view.minX), std::abs(m_view.maxX),
                                      std::abs(m_view.minY), std::abs(m_view.maxY)});
    m_isExact = DrawingScene::Uncertainty(distance) > transform.UnitsPerPixel() * kLargestError;
    EnterStage(m_canvas.Clip().IsEmpty() ? Stage::Done : Stage::Areas);
}

void SceneRenderer::EnterStage(Stage stage) {
    m_stage = stage;
    m_next = 0;
    if (stage < Stage::Emphasis) {
        m_kind = static_cast<ShapeKind>(stage);
        if (m_detail.isFine) {
            GatherFew();
        }
    }
}

void SceneRenderer::GatherFew() {
    m_few.clear();
    ForItemsIn(*m_pScene, m_kind, m_view, [this](std::uint32_t item) {
        m_few.push_back(item);
        return true;
    });
    const auto order = [this](std::uint32_t item) {
        return std::pair(m_pScene->Rank(Items().Style(item)), Items().Id(item));
    };
    std::sort(m_few.begin(), m_few.end(),
              [&](std::uint32_t left, std::uint32_t right) { return order(left) < order(right); });
}

bool SceneRenderer::Continue(Clock::time_point deadline) {
    while (m_stage != Stage::Done) {
        if (!DrawSome()) {
            EnterStage(static_cast<Stage>(static_cast<int>(m_stage) + 1));
        } else if (Clock::now() > deadline) {
            return false;
        }
    }
    return true;
}

bool SceneRenderer::DrawSome() {
    if (m_stage == Stage::Emphasis) {
        return DrawEmphasis();
    }
    if (m_stage == Stage::Texts && m_detail.hasTexts) {
        return false; // painted over the picture by TextOverlay
    }
    return m_detail.isFine ? DrawFew() : DrawBlocks();
}

bool SceneRenderer::DrawFew() {
    constexpr std::size_t kAtOnce = 256;
    const std::size_t end = std::min(m_few.size(), m_next + kAtOnce);
    for (; m_next < end; ++m_next) {
        const std::uint32_t item = m_few[m_next];
        DrawItem(item, m_colors[Items().Style(item)]);
    }
    return m_next < m_few.size();
}

bool SceneRenderer::DrawBlocks() {
    // Skipping a block is cheap, so only drawn blocks are counted.
    constexpr int kAtOnce = 32;
    const ItemStore& items = Items();
    const float pixel = 1 / m_scale;
    for (int drawn = 0; drawn < kAtOnce && m_next < items.BlockCount(); ++m_next) {
        const FloatBox& box = items.Block(m_next);
        if (!box.Meets(m_view)) {
            continue;
        }
        ++drawn;
        const std::uint32_t first = m_next * ItemStore::kBlockSize;
        const std::uint32_t end = items.BlockEnd(m_next);
        if (box.maxX - box.minX < pixel && box.maxY - box.minY < pixel) {
            // All in one pixel, so the first visible item represents the others.
            std::uint32_t item = first;
            while (item < end && m_colors[items.Style(item)] == 0) {
                ++item;
            }
            if (item < end) {
                m_canvas.Dot(ToX(box.minX), ToY(box.maxY), m_colors[items.Style(item)]);
            }
        } else if (m_kind == ShapeKind::Line && !m_isExact) {
            DrawLineBlock(m_next);
        } else {
            for (std::uint32_t item = first; item < end; ++item) {
                if (const Rgb color = m_colors[items.Style(item)]) {
                    DrawItem(item, color);
                }
            }
        }
    }
    return m_next < items.BlockCount();
}

void SceneRenderer::DrawLineBlock(std::uint32_t block) {
    const ItemStore& items = Items();
    const bool isInside = m_view.Holds(items.Block(block));
    const auto isFar = [](float x, float y) {
        return !(std::abs(x) < kFarPixels && std::abs(y) < kFarPixels);
    };
    for (std::uint32_t item = block * ItemStore::kBlockSize; item < items.BlockEnd(block); ++item) {
        const Rgb color = m_colors[items.Style(item)];
        if (color == 0) {
            continue;
        }
        const std::span<const FloatPoint> places = items.Places(item);
        float x1 = ToX(places[0].x);
        float y1 = ToY(places[0].y);
        if (places.size() == 1) {
            m_canvas.Dot(x1, y1, color);
        }
        bool isCut = !isInside && isFar(x1, y1);
        for (std::size_t i = 1; i < places.size(); ++i) {
            const float x2 = ToX(places[i].x);
            const float y2 = ToY(places[i].y);
            isCut = isCut || (!isInside && isFar(x2, y2) && !std::isnan(x2));
            if (!isCut) {
                m_canvas.HairLine(x1, y1, x2, y2, color);
            }
            x1 = x2;
            y1 = y2;
        }
        if (isCut) {
            DrawFarLine(item, color);
        }
    }
}

void SceneRenderer::DrawFarLine(std::uint32_t item, Rgb color) {
    if (BoxOf(Items().Places(item)).Meets(m_view) && MakePath(item, true)) {
        m_canvas.HairPath(m_path, color);
    }
}

bool SceneRenderer::MakePath(std::uint32_t item, bool isExact) {
    m_path.clear();
    if (isExact) {
        if (!m_pScene->Shape(AcDbObjectId(Items().Id(item)), m_shape) || m_shape.kind != m_kind) {
            return false;
        }
        for (const PlanePoint& place : m_shape.places) {
            m_path.push_back(m_transform.ToPixel(place.x, place.y));
        }
    } else {
        for (const FloatPoint& place : Items().Places(item)) {
            m_path.push_back({ToX(place.x), ToY(place.y)});
        }
    }
    return true;
}

void SceneRenderer::DrawItem(std::uint32_t item, Rgb color) {
    if (m_kind != ShapeKind::Point && !BoxOf(Items().Places(item)).Meets(m_view)) {
        return;
    }
    // With few items, reading the exact entity is cheap.
    if (!MakePath(item, m_isExact || m_detail.isFine)) {
        return;
    }
    switch (m_kind) {
    case ShapeKind::Area:
        DrawArea(color);
        break;
    case ShapeKind::Line:
        if (!m_detail.isFine) {
            m_canvas.HairPath(m_path, color);
        } else if (m_path.size() == 1) {
            m_canvas.Square(m_path[0].x, m_path[0].y, m_settings.pixelRatio, color);
        } else {
            m_canvas.SmoothPath(m_path, kLineWidth * m_settings.pixelRatio, color);
        }
        break;
    case ShapeKind::Point:
        DrawPoint(color);
        break;
    case ShapeKind::Text:
        m_canvas.Square(m_path[0].x, m_path[0].y, m_settings.pixelRatio, color);
        break;
    }
}

void SceneRenderer::DrawArea(Rgb color) {
    PixelPoint low = m_path.front();
    PixelPoint high = low;
    for (const PixelPoint& point : m_path) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    constexpr double kSpeck = 1.5;
    if (high.x - low.x < kSpeck && high.y - low.y < kSpeck) {
        m_canvas.PaleDot(static_cast<float>((low.x + high.x) / 2),
                         static_cast<float>((low.y + high.y) / 2), color, 150);
        return;
    }
    m_canvas.FillArea(m_path, color, kFillShare);
    if (m_detail.isFine) {
        m_canvas.SmoothPath(m_path, kLineWidth * m_settings.pixelRatio, color);
    } else {
        m_canvas.HairPath(m_path, color);
    }
}

void SceneRenderer::DrawPoint(Rgb color) {
    const double size = m_detail.pointSize * m_settings.pixelRatio;
    if (m_detail.isFine) {
        m_canvas.Disc(m_path[0].x, m_path[0].y, size / 2, color);
    } else {
        m_canvas.Square(m_path[0].x, m_path[0].y, size, color);
    }
}

bool SceneRenderer::DrawEmphasis() {
    constexpr std::size_t kAtOnce = 64;
    const std::size_t end = std::min(m_emphasis.size(), m_next + kAtOnce);
    for (; m_next < end; ++m_next) {
        DrawEmphasized(m_emphasis[m_next]);
    }
    return m_next < m_emphasis.size();
}

void SceneRenderer::DrawEmphasized(const Emphasis& emphasis) {
    const auto place = m_pScene->Find(emphasis.id);
    if (!place) {
        return;
    }
    m_kind = place->kind;
    // In large numbers, entities are only shown by colour.
    const bool isPlain = !m_detail.isFine && m_emphasis.size() > kFinePlaces;
    if (m_colors[Items().Style(place->item)] == 0 ||
        !BoxOf(Items().Places(place->item)).Meets(m_view) ||
        !MakePath(place->item, !isPlain || m_isExact)) {
        return;
    }
    const double width = emphasis.width * m_settings.pixelRatio;
    if (m_path.size() == 1) {
        const double size = m_detail.pointSize * m_settings.pixelRatio;
        if (isPlain) {
            m_canvas.Square(m_path[0].x, m_path[0].y, size, emphasis.color);
        } else {
            m_canvas.Disc(m_path[0].x, m_path[0].y, (size + width) / 2, emphasis.color);
        }
        return;
    }
    if (isPlain) {
        m_canvas.HairPath(m_path, emphasis.color);
        return;
    }
    if (m_kind == ShapeKind::Area) {
        m_canvas.FillArea(m_path, emphasis.color, kEmphasisFillShare);
    }
    m_canvas.SmoothPath(m_path, width, emphasis.color);
    if (width > 2) {
        // Round joints and ends; the lines alone leave notches.
        for (const PixelPoint& point : m_path) {
            m_canvas.Disc(point.x, point.y, width / 2, emphasis.color);
        }
    }
}

} // namespace Tessaly
