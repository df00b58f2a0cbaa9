// Texts of a network in one piece of memory, and search among them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::Network {

/// A growing list of UTF-8 texts, kept behind each other: a million names cost their
/// letters and eight bytes each. A view stays valid until the next Add.
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

/// Finds texts of a column by their content, case sensitive. The column is handed to
/// each call; it must be the same one every time, and may have grown in between.
class NameIndex {
public:
    /// The number of an equal text that was entered before, if there is one.
    std::optional<std::uint32_t> Find(const TextColumn& column, std::string_view text) const;
    /// Enters the text number `index` of the column unless an equal one was entered;
    /// returns the number under which the text is known from now on.
    std::uint32_t Insert(const TextColumn& column, std::uint32_t index);
    std::size_t size() const { return m_count; }

private:
    /// Hash bits stand beside the number, so that most misses never look at a text.
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

/// A column in which every text stands once.
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
