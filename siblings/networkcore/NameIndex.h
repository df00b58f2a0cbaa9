// Search for entities by system and name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Orvane::Topology {

/// What the index has to know of a table of entities.
class INamedRows {
public:
    virtual std::size_t RowCount() const = 0;
    virtual int SystemOf(std::uint32_t row) const = 0;
    virtual std::string_view NameOf(std::uint32_t row) const = 0;

protected:
    ~INamedRows() = default;
};

/// Holds eight bytes a row, and only from the first search on; rows that were added since
/// the last search are entered at the next one. The table is handed to each call and must
/// be the same one every time.
class NameIndex {
public:
    /// The first row of the name in a system.
    std::optional<std::uint32_t> Find(const INamedRows& rows, int system, std::string_view name);
    /// A row has got another name.
    void Renamed(const INamedRows& rows, std::uint32_t row);

private:
    /// Hash bits stand beside the row, so that most misses never look at a name.
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t row = kFree;
    };
    static constexpr std::uint32_t kFree = 0xFFFFFFFF;

    void EnterNewRows(const INamedRows& rows);
    void Enter(const INamedRows& rows, std::uint32_t row);
    /// The slot of a name, or the free one where it belongs.
    std::size_t SlotOf(const INamedRows& rows, int system, std::string_view name,
                       std::uint32_t hash) const;
    void Clear();

    std::vector<Slot> m_slots; ///< its size is a power of two
    std::size_t m_nUsed = 0;   ///< slots in use, those of former names included
    std::size_t m_nRows = 0;   ///< rows entered so far
    /// Some row is not entered, since an earlier one has its name.
    bool m_bHasDuplicates = false;
};

} // namespace Orvane::Topology
