#include "host/desktop/view/DrawingScene.h"

#include <algorithm>
#include <cstring>

namespace Tessaly {

namespace {

// Layout of a slot: noted flag, kind, item number plus one.
constexpr std::uint32_t kNotedBit = 1U << 31U;
constexpr std::uint32_t kKindShift = 29;
constexpr std::uint32_t kItemMask = (1U << kKindShift) - 1;

constexpr int kColorBits = 9;

std::uint32_t SlotOf(ShapeKind kind, std::uint32_t item) {
    return static_cast<std::uint32_t>(kind) << kKindShift | (item + 1);
}

bool IsSame(std::span<const FloatPoint> left, std::span<const FloatPoint> right) {
    // Bytewise, because NaN does not equal itself.
    return left.size() == right.size() &&
           std::memcmp(left.data(), right.data(), left.size_bytes()) == 0;
}

} // namespace

DrawingScene::~DrawingScene() {
    SetDatabase(nullptr);
}

void DrawingScene::SetDatabase(AcDbDatabase* pDatabase) {
    if (m_pDatabase) {
        m_pDatabase->removeReactor(this);
    }
    m_pDatabase = pDatabase;
    if (m_pDatabase) {
        m_pDatabase->addReactor(this);
    }
    m_isReplaced = true;
    BecomeStale();
}

void DrawingScene::BecomeStale() {
    if (!m_isStale) {
        m_isStale = true;
        if (m_onStale) {
            m_onStale();
        }
    }
}

void DrawingScene::Note(const AcDbObject& object) {
    if (object.isEntity()) {
        const std::size_t number = object.objectId().number();
        if (m_slots.size() <= number) {
            m_slots.resize(std::max<std::size_t>(number + 1, m_pDatabase->nextId()));
        }
        if ((m_slots[number] & kNotedBit) == 0) {
            m_slots[number] |= kNotedBit;
            m_noted.push_back(object.objectId());
        }
        BecomeStale();
    } else if (dynamic_cast<const AcDbLayerTableRecord*>(&object)) {
        m_areLayersNoted = true;
        BecomeStale();
    }
}

void DrawingScene::objectAppended(const AcDbDatabase*, const AcDbObject* pObject) {
    Note(*pObject);
}

void DrawingScene::objectModified(const AcDbDatabase*, const AcDbObject* pObject) {
    Note(*pObject);
}

void DrawingScene::objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool) {
    Note(*pObject);
}

void DrawingScene::databaseReplaced(const AcDbDatabase*) {
    m_isReplaced = true;
    BecomeStale();
}

void DrawingScene::idsFreed(const AcDbDatabase*) {
    m_nFreedFrom = std::min<std::size_t>(m_nFreedFrom, m_pDatabase->nextId());
}

void DrawingScene::goodbye(const AcDbDatabase*) {
    m_pDatabase = nullptr;
    Drop();
    m_isReplaced = true;
    m_isStale = false; // the next event must be raised in any case
    BecomeStale();
}

SceneChange DrawingScene::Update() {
    // An aborted read leaves another, empty drawing without any notification.
    const bool isCut =
        m_pDatabase && m_pDatabase->nextId() < std::min(m_slots.size(), m_nFreedFrom);
    if (!m_isStale && !isCut) {
        return SceneChange::None;
    }
    m_isStale = false;
    const bool isOther = m_isReplaced || isCut;
    if (isOther) {
        Drop();
        Fill();
    } else {
        for (const AcDbObjectId id : m_noted) {
            m_slots[id.number()] &= ~kNotedBit;
            Refresh(id);
        }
        if (m_pDatabase && m_slots.size() > m_pDatabase->nextId()) {
            m_slots.resize(m_pDatabase->nextId());
        }
        m_nFreedFrom = SIZE_MAX;
        if (m_areLayersNoted || m_looks.size() != m_styles.size()) {
            ReadLayers();
        }
        Arrange(false);
    }
    m_noted = {};
    m_isReplaced = false;
    m_areLayersNoted = false;
    return isOther ? SceneChange::Everything : SceneChange::Some;
}

void DrawingScene::Drop() {
    for (ItemStore& store : m_stores) {
        store.Clear();
    }
    m_slots = {};
    m_nFreedFrom = SIZE_MAX;
    m_noted = {};
    m_styles.assign(1, {});
    m_stylesByKey.clear();
    m_lastStyle = kNoStyle;
    ReadLayers();
}

void DrawingScene::Fill() {
    if (!m_pDatabase) {
        return;
    }
    m_slots.assign(m_pDatabase->nextId(), 0);
    ChooseOrigin();
    m_pDatabase->forEachEntity([this](const AcDbEntity& entity) { Add(entity, true); });
    ReadLayers();
    Arrange(true);
}

/// Chosen amid most entities, so that a few far outliers do not cost precision.
void DrawingScene::ChooseOrigin() {
    constexpr std::size_t kSample = 1000;
    const std::size_t step = m_pDatabase->entityCount() / kSample + 1;
    std::vector<double> xs;
    std::vector<double> ys;
    std::size_t i = 0;
    m_pDatabase->forEachEntity([&](const AcDbEntity& entity) {
        if (i++ % step == 0 && ReadShape(entity, m_shape)) {
            xs.push_back(m_shape.places.front().x);
            ys.push_back(m_shape.places.front().y);
        }
    });
    const auto middle = [](std::vector<double>& values) {
        const auto half = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), half, values.end());
        return *half;
    };
    m_origin = xs.empty() ? PlanePoint{} : PlanePoint{middle(xs), middle(ys)};
}

void DrawingScene::Add(const AcDbEntity& entity, bool isNew) {
    const AcDbObjectId id = entity.objectId();
    const bool hasPlace = ReadShape(entity, m_shape);
    m_relative.clear();
    for (const PlanePoint& place : m_shape.places) {
        m_relative.push_back(Relative(place));
    }
    const std::uint32_t style = hasPlace ? StyleOf(entity) : kNoStyle;
    ItemStore& store = m_stores[Index(m_shape.kind)];
    if (const auto old = isNew ? std::nullopt : Find(id)) {
        if (hasPlace && old->kind == m_shape.kind && IsSame(store.Places(old->item), m_relative)) {
            store.SetStyle(old->item, style);
            return;
        }
        RemoveItem(id);
    }
    if (hasPlace && store.HasRoom(m_relative.size())) {
        m_slots[id.number()] = SlotOf(m_shape.kind, store.Append(id.number(), style, m_relative));
    }
}

void DrawingScene::RemoveItem(AcDbObjectId id) {
    if (const auto place = Find(id)) {
        m_stores[Index(place->kind)].Remove(place->item);
        m_slots[id.number()] = 0;
    }
}

void DrawingScene::Refresh(AcDbObjectId id) {
    if (const AcDbEntity* const pEntity = Entity(id)) {
        Add(*pEntity, false);
    } else {
        RemoveItem(id);
    }
}

void DrawingScene::Arrange(bool all) {
    for (std::size_t kind = 0; kind < kShapeKinds; ++kind) {
        ItemStore& store = m_stores[kind];
        if (!all && !store.IsWorthArranging()) {
            continue;
        }
        store.Arrange(m_ranks);
        for (std::uint32_t item = 0; item < store.Count(); ++item) {
            m_slots[store.Id(item)] = SlotOf(static_cast<ShapeKind>(kind), item);
        }
    }
}

std::uint32_t DrawingScene::StyleOf(const AcDbEntity& entity) {
    const auto color = static_cast<std::uint64_t>(entity.colorIndex());
    const std::uint64_t key = std::uint64_t{entity.layerId().number()} << kColorBits | color;
    // Consecutive entities mostly have the same style.
    if (key == m_lastKey && m_lastStyle != kNoStyle) {
        return m_lastStyle;
    }
    const auto [hit, isNew] =
        m_stylesByKey.emplace(key, static_cast<std::uint32_t>(m_styles.size()));
    if (isNew) {
        m_styles.push_back({entity.layerId(), entity.colorIndex()});
    }
    m_lastKey = key;
    m_lastStyle = hit->second;
    return m_lastStyle;
}

void DrawingScene::ReadLayers() {
    const std::vector<AcDbObjectId> layers =
        m_pDatabase ? m_pDatabase->layers() : std::vector<AcDbObjectId>();
    m_looks.assign(m_styles.size(), {});
    m_ranks.assign(m_styles.size(), 0);
    for (std::size_t i = 1; i < m_styles.size(); ++i) {
        const Style& style = m_styles[i];
        const auto* const pLayer =
            dynamic_cast<const AcDbLayerTableRecord*>(m_pDatabase->peek(style.layer));
        const bool byLayer = style.colorIndex == kColorByLayer;
        m_looks[i].colorIndex = byLayer && pLayer ? pLayer->colorIndex() : style.colorIndex;
        m_looks[i].isVisible = !pLayer || !pLayer->isOff();
        const auto place = std::lower_bound(layers.begin(), layers.end(), style.layer);
        m_ranks[i] = static_cast<std::uint32_t>(place - layers.begin());
    }
}

const AcDbEntity* DrawingScene::Entity(AcDbObjectId id) const {
    const AcDbObject* const pObject = m_pDatabase ? m_pDatabase->peek(id) : nullptr;
    if (!pObject || pObject->isErased() || !pObject->isEntity()) {
        return nullptr;
    }
    const auto* const pEntity = static_cast<const AcDbEntity*>(pObject);
    return pEntity->blockId() == m_pDatabase->modelSpace() ? pEntity : nullptr;
}

bool DrawingScene::Shape(AcDbObjectId id, EntityShape& shape) const {
    const AcDbEntity* const pEntity = Entity(id);
    shape.places.clear();
    return pEntity && ReadShape(*pEntity, shape);
}

std::optional<DrawingScene::ItemPlace> DrawingScene::Find(AcDbObjectId id) const {
    const std::uint32_t slot = id.number() < m_slots.size() ? m_slots[id.number()] : 0;
    if ((slot & kItemMask) == 0) {
        return std::nullopt;
    }
    return ItemPlace{static_cast<ShapeKind>(slot >> kKindShift & 3U), (slot & kItemMask) - 1};
}

bool DrawingScene::IsVisible(AcDbObjectId id) const {
    const auto place = Find(id);
    return place && m_looks[Items(place->kind).Style(place->item)].isVisible;
}

AcGeExtents2d DrawingScene::QuickExtents(bool onlyVisible) const {
    FloatBox box;
    for (const ItemStore& store : m_stores) {
        for (std::uint32_t item = 0; item < store.Count(); ++item) {
            if (!store.IsAlive(item) || (onlyVisible && !m_looks[store.Style(item)].isVisible)) {
                continue;
            }
            for (const FloatPoint& place : store.Places(item)) {
                box.Add(place);
            }
        }
    }
    AcGeExtents2d extents;
    if (box.minX <= box.maxX) {
        extents.add({m_origin.x + box.minX, m_origin.y + box.minY});
        extents.add({m_origin.x + box.maxX, m_origin.y + box.maxY});
    }
    return extents;
}

AcGeExtents2d DrawingScene::ExactExtents(bool onlyVisible) const {
    AcGeExtents2d extents;
    EntityShape shape;
    for (const ItemStore& store : m_stores) {
        for (std::uint32_t item = 0; item < store.Count(); ++item) {
            if (store.IsAlive(item) && (!onlyVisible || m_looks[store.Style(item)].isVisible) &&
                Shape(AcDbObjectId(store.Id(item)), shape)) {
                Include(extents, ExtentsOf(shape));
            }
        }
    }
    return extents;
}

AcGeExtents2d DrawingScene::Extents() const {
    bool onlyVisible = true;
    AcGeExtents2d extents = QuickExtents(onlyVisible);
    if (extents.isEmpty()) {
        onlyVisible = false;
        extents = QuickExtents(onlyVisible);
    }
    if (extents.isEmpty()) {
        return extents;
    }
    const double size = std::max(extents.maxX - extents.minX, extents.maxY - extents.minY);
    const double distance =
        std::max({std::abs(extents.minX - m_origin.x), std::abs(extents.maxX - m_origin.x),
                  std::abs(extents.minY - m_origin.y), std::abs(extents.maxY - m_origin.y)});
    constexpr double kGoodEnough = 1e-4;
    return Uncertainty(distance) < size * kGoodEnough ? extents : ExactExtents(onlyVisible);
}

AcGeExtents2d DrawingScene::Extents(std::span<const AcDbObjectId> ids) const {
    AcGeExtents2d extents;
    EntityShape shape;
    for (const AcDbObjectId id : ids) {
        if (Shape(id, shape)) {
            Include(extents, ExtentsOf(shape));
        }
    }
    return extents;
}

FloatBox DrawingScene::Relative(const AcGeExtents2d& box) const {
    const FloatPoint low = Relative(PlanePoint{box.minX, box.minY});
    const FloatPoint high = Relative(PlanePoint{box.maxX, box.maxY});
    return {low.x, low.y, high.x, high.y};
}

std::size_t DrawingScene::Bytes() const {
    std::size_t bytes = m_slots.capacity() * sizeof(std::uint32_t);
    for (const ItemStore& store : m_stores) {
        bytes += store.Bytes();
    }
    return bytes +
           m_styles.capacity() * (sizeof(Style) + sizeof(StyleLook) + sizeof(std::uint32_t));
}

} // namespace Tessaly
