// Few different texts that many entities share.
#pragma once

#include <cstdint>
#include <deque>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Orvane::Topology {

/// Each text is kept once and known by a number.
class InternedTexts {
public:
    static constexpr std::uint32_t kUnknown = std::numeric_limits<std::uint32_t>::max();

    InternedTexts() = default;
    InternedTexts(const InternedTexts&) = delete; // the map looks into the texts
    InternedTexts& operator=(const InternedTexts&) = delete;

    std::uint32_t Find(std::string_view text) const {
        const auto hit = m_numbers.find(text);
        return hit == m_numbers.end() ? kUnknown : hit->second;
    }
    std::uint32_t Intern(std::string_view text) {
        if (const std::uint32_t known = Find(text); known != kUnknown) {
            return known;
        }
        const auto number = static_cast<std::uint32_t>(m_texts.size());
        m_numbers.emplace(m_texts.emplace_back(text), number);
        return number;
    }
    /// Valid as long as this object.
    std::string_view operator[](std::uint32_t number) const { return m_texts[number]; }

private:
    std::deque<std::string> m_texts; // texts stay in their place while it grows
    std::unordered_map<std::string_view, std::uint32_t> m_numbers;
};

} // namespace Orvane::Topology
