// Union-find: groups members into connected parts.
#pragma once

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

namespace Orvane::Topology {

/// Members are numbered from 0; initially each is a part of its own. Joining n members takes
/// almost linear time.
class Components {
public:
    explicit Components(std::size_t count) : m_parents(count), m_sizes(count, 1) {
        std::iota(m_parents.begin(), m_parents.end(), 0U);
    }

    void Join(std::size_t a, std::size_t b) {
        std::uint32_t large = Root(a);
        std::uint32_t small = Root(b);
        if (large == small) {
            return;
        }
        if (m_sizes[large] < m_sizes[small]) {
            std::swap(large, small);
        }
        m_parents[small] = large;
        m_sizes[large] += m_sizes[small];
        --m_count;
    }

    std::size_t Count() const { return m_count; }
    std::size_t Largest() const {
        return m_sizes.empty() ? 0 : *std::max_element(m_sizes.begin(), m_sizes.end());
    }

private:
    std::uint32_t Root(std::size_t member) {
        auto at = static_cast<std::uint32_t>(member);
        while (m_parents[at] != at) {
            m_parents[at] = m_parents[m_parents[at]]; // path halving: shortens later searches
            at = m_parents[at];
        }
        return at;
    }

    std::vector<std::uint32_t> m_parents; ///< each points towards the root of its part
    std::vector<std::uint32_t> m_sizes;
    std::size_t m_count = m_parents.size();
};

} // namespace Orvane::Topology
