// The entities of one kind, packed for drawing and searching: arrays of numbers, and blocks of
// neighbours with a bounding box each. Independent of drawings, layers and colours.
#pragma once

#include <cmath>
#include <cstdint>
#include <span>
#include <vector>

namespace Tessaly {

/// Relative to the scene's origin. NaN lifts the pen.
struct FloatPoint {
    float x = 0;
    float y = 0;
};

struct FloatBox {
    float minX = INFINITY;
    float minY = INFINITY;
    float maxX = -INFINITY;
    float maxY = -INFINITY;

    void Add(const FloatPoint& point) {
        // NaN leaves the box unchanged.
        minX = point.x < minX ? point.x : minX;
        minY = point.y < minY ? point.y : minY;
        maxX = point.x > maxX ? point.x : maxX;
        maxY = point.y > maxY ? point.y : maxY;
    }
    bool Meets(const FloatBox& other) const {
        return minX <= other.maxX && maxX >= other.minX && minY <= other.maxY && maxY >= other.minY;
    }
    bool Holds(const FloatBox& other) const {
        return minX <= other.minX && maxX >= other.maxX && minY <= other.minY && maxY >= other.maxY;
    }
};

inline FloatBox BoxOf(std::span<const FloatPoint> places) {
    FloatBox box;
    for (const FloatPoint& place : places) {
        box.Add(place);
    }
    return box;
}

/// The style of removed items. Never drawn or found.
inline constexpr std::uint32_t kNoStyle = 0;

/// Items are numbered from 0. Twelve bytes per item, eight per point and a box per 64 items;
/// nothing else is allocated.
class ItemStore {
public:
    static constexpr std::uint32_t kBlockSize = 64;

    std::uint32_t Count() const { return static_cast<std::uint32_t>(m_ids.size()); }
    bool IsAlive(std::uint32_t item) const { return m_styles[item] != kNoStyle; }
    std::uint32_t Id(std::uint32_t item) const { return m_ids[item]; }
    std::uint32_t Style(std::uint32_t item) const { return m_styles[item]; }
    std::span<const FloatPoint> Places(std::uint32_t item) const {
        return {m_places.data() + m_first[item], FirstPlace(item + 1) - m_first[item]};
    }
    /// Index of an item's first point; the total number of points for the item after the last.
    std::uint32_t FirstPlace(std::uint32_t item) const {
        return item < Count() ? m_first[item] : PlaceCount();
    }
    std::uint32_t PlaceCount() const { return static_cast<std::uint32_t>(m_places.size()); }

    /// Block b has the items from kBlockSize * b on.
    std::uint32_t BlockCount() const { return static_cast<std::uint32_t>(m_blocks.size()); }
    const FloatBox& Block(std::uint32_t block) const { return m_blocks[block]; }
    std::uint32_t BlockEnd(std::uint32_t block) const {
        const std::uint32_t end = (block + 1) * kBlockSize;
        return end < Count() ? end : Count();
    }

    /// Whether an item with this many points can be added.
    bool HasRoom(std::size_t places) const;
    /// Appends an item and returns its number.
    std::uint32_t Append(std::uint32_t id, std::uint32_t style, std::span<const FloatPoint> places);
    void Remove(std::uint32_t item);
    void SetStyle(std::uint32_t item, std::uint32_t style) { m_styles[item] = style; }
    void Clear();

    /// Whether so many items were added or removed that blocks are no longer compact.
    bool IsWorthArranging() const;
    /// Sorts the items so that blocks have neighbours of the same rank and similar size, and frees
    /// removed items. Renumbers the items. Takes about 150 ns per item.
    /// \param ranks by style; lower ones come first
    void Arrange(std::span<const std::uint32_t> ranks);

    std::size_t Bytes() const;

private:
    struct Key;
    std::vector<Key> KeysOf(std::span<const std::uint32_t> ranks) const;
    void GrowBlock(std::uint32_t item);

    std::vector<std::uint32_t> m_ids;
    std::vector<std::uint32_t> m_styles;
    std::vector<std::uint32_t> m_first;
    std::vector<FloatPoint> m_places;
    std::vector<FloatBox> m_blocks;
    std::uint32_t m_nArranged = 0; ///< number of items after the last Arrange
    std::uint32_t m_nRemoved = 0;
};

} // namespace Tessaly
