// Texts behind each other in one piece of memory.
#pragma once

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Orvane::Topology {

/// Where a text stands in its pool.
struct TextRef {
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
};

/// A million names cost their letters and a reference each. Texts are never taken out;
/// who drops many copies the others to a new pool.
class TextPool {
public:
    TextRef Add(std::string_view text) {
        if (text.size() > std::numeric_limits<std::uint32_t>::max() - m_bytes.size()) {
            throw std::length_error("the texts of a drawing exceed 4 GiB");
        }
        const auto offset = static_cast<std::uint32_t>(m_bytes.size());
        m_bytes += text;
        return {offset, static_cast<std::uint32_t>(text.size())};
    }
    /// Valid until the next Add.
    std::string_view operator[](TextRef ref) const {
        return std::string_view(m_bytes).substr(ref.offset, ref.length);
    }

private:
    std::string m_bytes;
};

} // namespace Orvane::Topology
