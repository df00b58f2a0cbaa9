// What a view shows of a database: places, layers and colours of the entities of its model
// space, packed so that a million can be drawn again and again.
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

/// How entities of one layer and colour look.
struct StyleLook {
    int colorIndex = 7;     ///< that of the layer already put in
    bool isVisible = false; ///< its layer is on
};

enum class SceneChange {
    None,
    Some,
    Everything, ///< it is another drawing
};

/// Follows the database as its reactor. Changes are noted as they come and taken over all at
/// once, by Update: until then the scene shows what was before. About 32 bytes for a line of
/// two places.
///
/// Places are kept as floats around an origin amid the drawing, which is enough for masses of
/// lines a pixel wide. Where a view needs more digits it reads the shape of the entity itself
/// (Shape).
class DrawingScene final : AcDbDatabaseReactor {
public:
    DrawingScene() = default;
    ~DrawingScene() override;
    DrawingScene(const DrawingScene&) = delete;
    DrawingScene& operator=(const DrawingScene&) = delete;

    /// Null for none. Not owned; a database that goes takes itself off.
    void SetDatabase(AcDbDatabase* pDatabase);
    AcDbDatabase* Database() const { return m_pDatabase; }
    /// Called at the first change after an Update, and when the database goes, in the middle
    /// of whatever makes it.
    void SetOnStale(std::function<void()> onStale) { m_onStale = std::move(onStale); }
    bool IsStale() const { return m_isStale; }
    /// Takes the changes over.
    SceneChange Update();

    const ItemStore& Items(ShapeKind kind) const { return m_stores[Index(kind)]; }
    /// By the numbers of styles that items have.
    std::span<const StyleLook> Looks() const { return m_looks; }
    std::uint32_t Rank(std::uint32_t style) const { return m_ranks[style]; }
    PlanePoint Origin() const { return m_origin; }
    /// The exact shape of an item. False if the entity is no more.
    bool Shape(AcDbObjectId id, EntityShape& shape) const;
    bool IsLive(AcDbObjectId id) const { return Entity(id) != nullptr; }
    /// Its layer is on, and it is in the scene.
    bool IsVisible(AcDbObjectId id) const;
    /// Null if it is no living entity of the model space.
    const AcDbEntity* Entity(AcDbObjectId id) const;

    struct ItemPlace {
        ShapeKind kind;
        std::uint32_t item;
    };
    std::optional<ItemPlace> Find(AcDbObjectId id) const;

    /// Around everything whose layer is on; around everything if there is no such thing.
    AcGeExtents2d Extents() const;
    AcGeExtents2d Extents(std::span<const AcDbObjectId> ids) const;

    /// How far a place may be off, in drawing units, of those whose x and y are nearer to the
    /// origin than this.
    static double Uncertainty(double distance) { return distance / (1U << 24U); }
    FloatPoint Relative(const PlanePoint& place) const {
        return {static_cast<float>(place.x - m_origin.x), static_cast<float>(place.y - m_origin.y)};
    }
    /// An item meets (strictly holds) this box if it does so exactly: rounding keeps order.
    FloatBox Relative(const AcGeExtents2d& box) const;

    std::size_t Bytes() const;

private:
    static constexpr std::size_t Index(ShapeKind kind) { return static_cast<std::size_t>(kind); }

    void objectAppended(const AcDbDatabase*, const AcDbObject* pObject) override;
    void objectModified(const AcDbDatabase*, const AcDbObject* pObject) override;
    void objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool bErased) override;
    void databaseReplaced(const AcDbDatabase*) override;
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
    /// By number of object: kind and number of the item, and whether it was noted.
    std::vector<std::uint32_t> m_slots;

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
