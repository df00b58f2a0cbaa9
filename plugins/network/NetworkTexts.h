// A network's texts in one block of memory, with lookup.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::Network {

/// A growing list of UTF-8 texts in one block: each text takes its bytes plus eight. Views are
/// valid until the next Add.
class TextColumn {
public:
    std::uint32_t Add(std::string_view text) {
        m_pool.append(text);
        m_ends.push_back(m_pool.size());
        return static_cast<std::uint32_t>(m_ends.size() - 1);
    }
    std::string_view operator[](std::size_t index) const {
        const std::size_t begin = index == 0 ? 0 : m_ends[index - 1];
        return std::string_view(m_pool).substr(begin, m_ends[index] - begin);
    }
    std::size_t size() const { return m_ends.size(); }
    bool empty() const { return m_ends.empty(); }
    void Reserve(std::size_t count) { m_ends.reserve(count); }

private:
    std::string m_pool;
    std::vector<std::uint64_t> m_ends;
};

/// Finds texts of a column by content, case-sensitively. Every call must get the same column, which
/// may have grown in between.
class NameIndex {
public:
    /// The number of an equal text in the index, if any.
    std::optional<std::uint32_t> Find(const TextColumn& column, std::string_view text) const;
    /// Adds text number `index` of the column unless the index has an equal text; returns the
    /// number of the text that the index has.
    std::uint32_t Insert(const TextColumn& column, std::uint32_t index);
    std::size_t size() const { return m_count; }

private:
    /// The hash is stored beside the number, so most misses need no text comparison.
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t index = kFree;
    };
    static constexpr std::uint32_t kFree = 0xFFFFFFFF;

    std::size_t SlotOf(const TextColumn& column, std::string_view text, std::uint32_t hash) const;
    void Grow();

    std::vector<Slot> m_slots; ///< its size is a power of two
    std::size_t m_count = 0;
};

/// A column that holds each text once.
class InternedTexts {
public:
    std::uint32_t Intern(std::string_view text);
    std::string_view operator[](std::size_t index) const { return m_texts[index]; }
    std::size_t size() const { return m_texts.size(); }

private:
    TextColumn m_texts;
    NameIndex m_index;
};

} // namespace Orvane::Network
