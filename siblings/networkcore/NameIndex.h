// Search for entities by system and name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Orvane::Topology {

/// The index's view of a table of entities.
class INamedRows {
public:
    virtual std::size_t RowCount() const = 0;
    virtual int SystemOf(std::uint32_t row) const = 0;
    virtual std::string_view NameOf(std::uint32_t row) const = 0;

protected:
    ~INamedRows() = default;
};

/// Takes eight bytes per row, and only after the first search; rows added since the last search
/// are entered by the next one. The table is passed to each call and must be the same one every
/// time.
class NameIndex {
public:
    /// The first row with the name in a system.
    std::optional<std::uint32_t> Find(const INamedRows& rows, int system, std::string_view name);
    /// Call after a row was renamed.
    void Renamed(const INamedRows& rows, std::uint32_t row);

private:
    /// Hash bits are stored next to the row, so most misses never compare names.
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t row = kFree;
    };
    static constexpr std::uint32_t kFree = 0xFFFFFFFF;

    void EnterNewRows(const INamedRows& rows);
    void Enter(const INamedRows& rows, std::uint32_t row);
    /// The slot of a name, or the free slot where it would be entered.
    std::size_t SlotOf(const INamedRows& rows, int system, std::string_view name,
                       std::uint32_t hash) const;
    void Clear();

    std::vector<Slot> m_slots; ///< always a power of two
    std::size_t m_nUsed = 0;   ///< slots in use, including those of former names
    std::size_t m_nRows = 0;   ///< rows entered so far
    /// Some row is not entered because an earlier one has the same name.
    bool m_bHasDuplicates = false;
};

} // namespace Orvane::Topology
