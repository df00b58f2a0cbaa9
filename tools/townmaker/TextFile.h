// Fast writing of text files in columns.
#pragma once

#include <charconv>
#include <concepts>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "Town.h"

namespace TownMaker {

/// A number and its number of decimals.
struct Fixed {
    double value = 0;
    int decimals = 2;
};

/// Buffers lines and writes them in large blocks. The caller owns the file.
class TextFile {
public:
    explicit TextFile(std::FILE* file) : m_file(file) { m_text.reserve(kPiece + 4096); }

    /// Writes the parts separated by spaces, and a line end.
    template <class... Parts>
    void Line(const Parts&... parts) {
        const std::size_t begin = m_text.size();
        ((Add(parts), m_text += ' '), ...);
        if (m_text.size() > begin) {
            m_text.pop_back();
        }
        m_text += '\n';
        if (m_text.size() >= kPiece) {
            Flush();
        }
    }

    /// True if everything was written to the file.
    bool Finish() {
        Flush();
        return m_isGood && std::fflush(m_file) == 0;
    }

private:
    static constexpr std::size_t kPiece = 1 << 20;

    void Add(std::string_view text) { m_text += text; }
    void Add(const Fixed& number) {
        char buffer[64];
        m_text.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, number.value,
                                            std::chars_format::fixed, number.decimals)
                                  .ptr);
    }
    void Add(const Place& place) {
        Add(Fixed{place.x, 2});
        m_text += ' ';
        Add(Fixed{place.y, 2});
    }

    void Flush() {
        m_isGood =
            m_isGood && std::fwrite(m_text.data(), 1, m_text.size(), m_file) == m_text.size();
        m_text.clear();
    }

    std::FILE* m_file;
    std::string m_text;
    bool m_isGood = true;
};

} // namespace TownMaker
