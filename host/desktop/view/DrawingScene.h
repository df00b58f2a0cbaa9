// A view's copy of a database: shapes, layers and colours of the model space entities, packed for
// fast redraws of a million of them.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "host/desktop/view/EntityShape.h"
#include "host/desktop/view/ItemStore.h"
#include "platform/arx/DbDatabase.h"

namespace Tessaly {

/// Appearance of the entities of one layer and colour.
struct StyleLook {
    int colorIndex = 7;     ///< with the layer's colour resolved
    bool isVisible = false; ///< the layer is on
};

enum class SceneChange {
    None,
    Some,
    Everything, ///< a different drawing
};

/// Follows a database as its reactor. Changes are recorded as they happen and applied by Update;
/// until then the scene shows the previous state. A line of two points takes about 32 bytes.
///
/// Points are stored as floats relative to an origin amid the drawing, which is precise enough for
/// large numbers of hairlines. Views that need more precision read the shape of the entity itself
/// (Shape).
class DrawingScene final : AcDbDatabaseReactor {
public:
    DrawingScene() = default;
    ~DrawingScene() override;
    DrawingScene(const DrawingScene&) = delete;
    DrawingScene& operator=(const DrawingScene&) = delete;

    /// Null for none. Not owned; detaches itself when the database is destroyed.
    void SetDatabase(AcDbDatabase* pDatabase);
    AcDbDatabase* Database() const { return m_pDatabase; }
    /// Called at the first change after an Update, and when the database is destroyed, from within
    /// the call that causes it.
    void SetOnStale(std::function<void()> onStale) { m_onStale = std::move(onStale); }
    bool IsStale() const { return m_isStale; }
    /// Applies the recorded changes.
    SceneChange Update();

    const ItemStore& Items(ShapeKind kind) const { return m_stores[Index(kind)]; }
    /// Indexed by the style numbers of items.
    std::span<const StyleLook> Looks() const { return m_looks; }
    std::uint32_t Rank(std::uint32_t style) const { return m_ranks[style]; }
    PlanePoint Origin() const { return m_origin; }
    /// The exact shape of an item. False if the entity no longer exists.
    bool Shape(AcDbObjectId id, EntityShape& shape) const;
    bool IsLive(AcDbObjectId id) const { return Entity(id) != nullptr; }
    /// Whether the entity is in the scene and its layer is on.
    bool IsVisible(AcDbObjectId id) const;
    /// Null if it is not an existing entity of the model space.
    const AcDbEntity* Entity(AcDbObjectId id) const;

    struct ItemPlace {
        ShapeKind kind;
        std::uint32_t item;
    };
    std::optional<ItemPlace> Find(AcDbObjectId id) const;

    /// The extents of all visible entities, or of all if none are visible.
    AcGeExtents2d Extents() const;
    AcGeExtents2d Extents(std::span<const AcDbObjectId> ids) const;

    /// Upper limit of the rounding error, in drawing units, of points whose x and y are at most
    /// this far from the origin.
    static double Uncertainty(double distance) { return distance / (1U << 24U); }
    FloatPoint Relative(const PlanePoint& place) const {
        return {static_cast<float>(place.x - m_origin.x), static_cast<float>(place.y - m_origin.y)};
    }
    /// Boxes can be compared as if they were exact, since rounding is monotonic.
    FloatBox Relative(const AcGeExtents2d& box) const;

    std::size_t Bytes() const;

private:
    static constexpr std::size_t Index(ShapeKind kind) { return static_cast<std::size_t>(kind); }

    void objectAppended(const AcDbDatabase*, const AcDbObject* pObject) override;
    void objectModified(const AcDbDatabase*, const AcDbObject* pObject) override;
    void objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool bErased) override;
    void databaseReplaced(const AcDbDatabase*) override;
    void idsFreed(const AcDbDatabase*) override;
    void goodbye(const AcDbDatabase*) override;

    void Note(const AcDbObject& object);
    void BecomeStale();
    void Drop();
    void Fill();
    void Refresh(AcDbObjectId id);
    void Add(const AcDbEntity& entity, bool isNew);
    void RemoveItem(AcDbObjectId id);
    void Arrange(bool all);
    void ChooseOrigin();
    void ReadLayers();
    std::uint32_t StyleOf(const AcDbEntity& entity);
    AcGeExtents2d ExactExtents(bool onlyVisible) const;
    AcGeExtents2d QuickExtents(bool onlyVisible) const;

    AcDbDatabase* m_pDatabase = nullptr;
    std::function<void()> m_onStale;
    std::array<ItemStore, kShapeKinds> m_stores;
    PlanePoint m_origin;
    /// By object number: noted flag, kind and item number.
    std::vector<std::uint32_t> m_slots;
    /// The lowest id that was freed since the slots were made.
    std::size_t m_nFreedFrom = SIZE_MAX;

    struct Style {
        AcDbObjectId layer;
        int colorIndex = kColorByLayer;
    };
    std::vector<Style> m_styles;
    std::vector<StyleLook> m_looks;
    std::vector<std::uint32_t> m_ranks;
    std::unordered_map<std::uint64_t, std::uint32_t> m_stylesByKey;
    std::uint64_t m_lastKey = 0;
    std::uint32_t m_lastStyle = kNoStyle;

    std::vector<AcDbObjectId> m_noted;
    bool m_isStale = false;
    bool m_isReplaced = false;
    bool m_areLayersNoted = false;

    EntityShape m_shape;
    std::vector<FloatPoint> m_relative;
};

} // namespace Tessaly
