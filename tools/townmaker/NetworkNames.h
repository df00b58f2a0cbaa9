// Names of the entities along a street: the number of its first corner, E or N for a street to the
// east or north, and a running number, such as "J17E3".
#pragma once

#include <string>

#include "Town.h"

namespace TownMaker {

/// Prefixes of the names in a kind of network.
struct NameStyle {
    const char* node = "";
    const char* house = "";
    const char* main = "";
    const char* service = "";
};

class StreetNames {
public:
    StreetNames(const Town& town, const NameStyle& style, const Street& street)
        : m_style(style), m_from(style.node + std::to_string(town.NumberOf(street.from))),
          m_to(style.node + std::to_string(town.NumberOf(street.to))),
          m_street(std::to_string(town.NumberOf(street.from)) + (street.isEast ? "E" : "N")) {}

    const std::string& From() const { return m_from; }
    const std::string& To() const { return m_to; }
    std::string Tee(std::size_t house) const { return Name(m_style.node, house + 1); }
    std::string House(std::size_t house) const { return Name(m_style.house, house + 1); }
    std::string Service(std::size_t house) const { return Name(m_style.service, house + 1); }
    std::string Piece(std::size_t piece) const { return Name(m_style.main, piece + 1); }
    std::string Parcel(std::size_t house) const { return Name("PARCEL", house + 1); }

private:
    std::string Name(const char* prefix, std::size_t number) const {
        return prefix + m_street + "-" + std::to_string(number);
    }

    const NameStyle& m_style;
    std::string m_from;
    std::string m_to;
    std::string m_street;
};

inline std::string CornerName(const Town& town, const NameStyle& style, Corner corner) {
    return style.node + std::to_string(town.NumberOf(corner));
}

} // namespace TownMaker
