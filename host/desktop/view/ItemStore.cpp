#include "host/desktop/view/ItemStore.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <utility>

namespace Tessaly {

namespace {

/// Computes sort keys from item positions.
class PlaneGrid {
public:
    static constexpr int kBits = 20;

    explicit PlaneGrid(std::vector<FloatPoint> sample, std::size_t items) {
        m_x = RangeOf(sample, [](const FloatPoint& point) { return point.x; });
        m_y = RangeOf(sample, [](const FloatPoint& point) { return point.y; });
        const double blocks = std::max(1.0, static_cast<double>(items) / ItemStore::kBlockSize);
        m_blockSpan = std::max(m_x.span, m_y.span) / std::sqrt(blocks);
    }

    /// A Z-order number: neighbours in the plane mostly have close numbers.
    std::uint64_t Number(double x, double y) const {
        return Spread(m_x.Cell(x)) | Spread(m_y.Cell(y)) << 1U;
    }
    /// 0 for items smaller than a block, plus 1 for each factor of four in size.
    std::uint64_t SizeClass(double size) const {
        constexpr int kLargest = 15;
        if (!(size > m_blockSpan)) {
            return 0;
        }
        const double ratio = size / std::max(m_blockSpan, std::numeric_limits<double>::min());
        return static_cast<std::uint64_t>(std::min(1 + std::ilogb(ratio) / 2, kLargest));
    }

private:
    struct Range {
        double low = 0;
        double span = 0;
        std::uint64_t Cell(double value) const {
            constexpr double kCells = 1U << kBits;
            const double place = span > 0 ? (value - low) / span * kCells : 0;
            return static_cast<std::uint64_t>(std::clamp(place, 0.0, kCells - 1));
        }
    };

    /// The range of nearly all values, with some room at both ends: a few far outliers must not
    /// squeeze all others into one cell.
    template <class Part>
    static Range RangeOf(std::vector<FloatPoint>& sample, Part part) {
        if (sample.empty()) {
            return {};
        }
        std::sort(sample.begin(), sample.end(),
                  [&](const FloatPoint& left, const FloatPoint& right) {
                      return part(left) < part(right);
                  });
        const std::size_t skip = sample.size() / 500;
        const double low = part(sample[skip]);
        const double span = part(sample[sample.size() - 1 - skip]) - low;
        return {low - span / 2, span * 2};
    }

    /// Inserts a zero bit after each bit.
    static std::uint64_t Spread(std::uint64_t bits) {
        bits = (bits | bits << 16U) & 0x0000ffff0000ffffU;
        bits = (bits | bits << 8U) & 0x00ff00ff00ff00ffU;
        bits = (bits | bits << 4U) & 0x0f0f0f0f0f0f0f0fU;
        bits = (bits | bits << 2U) & 0x3333333333333333U;
        return (bits | bits << 1U) & 0x5555555555555555U;
    }

    Range m_x;
    Range m_y;
    double m_blockSpan = 0;
};

std::vector<FloatPoint> SampleOf(const ItemStore& store) {
    constexpr std::uint32_t kSample = 4096;
    std::vector<FloatPoint> sample;
    const std::uint32_t step = store.Count() / kSample + 1;
    for (std::uint32_t item = 0; item < store.Count(); item += step) {
        sample.push_back(store.Places(item).front());
    }
    return sample;
}

} // namespace

struct ItemStore::Key {
    std::uint64_t order;
    std::uint32_t item;
};

namespace {

/// Radix sort from the lowest byte up, skipping bytes that are equal in all keys. Three times as
/// fast as a comparison sort.
template <class Key>
void SortByOrder(std::vector<Key>& keys) {
    std::vector<Key> other(keys.size());
    for (unsigned shift = 0; shift < 64; shift += 8) {
        std::array<std::size_t, 256> starts{};
        for (const Key& key : keys) {
            ++starts[key.order >> shift & 0xffU];
        }
        if (std::find(starts.begin(), starts.end(), keys.size()) != starts.end()) {
            continue;
        }
        std::size_t sum = 0;
        for (std::size_t& start : starts) {
            start = std::exchange(sum, sum + start);
        }
        for (const Key& key : keys) {
            other[starts[key.order >> shift & 0xffU]++] = key;
        }
        keys.swap(other);
    }
}

} // namespace

bool ItemStore::HasRoom(std::size_t places) const {
    // The scene uses three bits of an item's number.
    constexpr std::uint32_t kMostItems = (1U << 29U) - 2;
    return Count() < kMostItems &&
           places < std::numeric_limits<std::uint32_t>::max() - m_places.size();
}

std::uint32_t ItemStore::Append(std::uint32_t id, std::uint32_t style,
                                std::span<const FloatPoint> places) {
    const std::uint32_t item = Count();
    m_ids.push_back(id);
    m_styles.push_back(style);
    m_first.push_back(PlaceCount());
    m_places.insert(m_places.end(), places.begin(), places.end());
    GrowBlock(item);
    return item;
}

void ItemStore::GrowBlock(std::uint32_t item) {
    if (item % kBlockSize == 0) {
        m_blocks.emplace_back();
    }
    for (const FloatPoint& place : Places(item)) {
        m_blocks.back().Add(place);
    }
}

void ItemStore::Remove(std::uint32_t item) {
    m_styles[item] = kNoStyle;
    ++m_nRemoved;
}

void ItemStore::Clear() {
    *this = ItemStore();
}

bool ItemStore::IsWorthArranging() const {
    constexpr std::uint32_t kFew = 8192;
    const std::uint32_t changed = Count() - m_nArranged + m_nRemoved;
    return changed > std::max(kFew, m_nArranged / 4);
}

std::vector<ItemStore::Key> ItemStore::KeysOf(std::span<const std::uint32_t> ranks) const {
    const PlaneGrid grid(SampleOf(*this), Count());
    std::vector<Key> keys;
    keys.reserve(Count() - m_nRemoved);
    for (std::uint32_t item = 0; item < Count(); ++item) {
        if (!IsAlive(item)) {
            continue;
        }
        constexpr std::uint64_t kMostRank = (1U << 20U) - 1;
        const FloatBox box = BoxOf(Places(item));
        const double width = static_cast<double>(box.maxX) - box.minX;
        const double height = static_cast<double>(box.maxY) - box.minY;
        const std::uint64_t rank = std::min<std::uint64_t>(ranks[m_styles[item]], kMostRank);
        keys.push_back({rank << 44U | grid.SizeClass(std::max(width, height)) << 40U |
                            grid.Number(box.minX + width / 2, box.minY + height / 2),
                        item});
    }
    return keys;
}

void ItemStore::Arrange(std::span<const std::uint32_t> ranks) {
    std::vector<Key> keys = KeysOf(ranks);
    SortByOrder(keys);
    std::size_t places = 0;
    for (const Key& key : keys) {
        places += Places(key.item).size();
    }
    ItemStore sorted;
    sorted.m_ids.reserve(keys.size());
    sorted.m_styles.reserve(keys.size());
    sorted.m_first.reserve(keys.size());
    sorted.m_places.reserve(places);
    sorted.m_blocks.reserve(keys.size() / kBlockSize + 1);
    for (const Key& key : keys) {
        sorted.Append(m_ids[key.item], m_styles[key.item], Places(key.item));
    }
    sorted.m_nArranged = sorted.Count();
    *this = std::move(sorted);
}

std::size_t ItemStore::Bytes() const {
    return (m_ids.capacity() + m_styles.capacity() + m_first.capacity()) * sizeof(std::uint32_t) +
           m_places.capacity() * sizeof(FloatPoint) + m_blocks.capacity() * sizeof(FloatBox);
}

} // namespace Tessaly
