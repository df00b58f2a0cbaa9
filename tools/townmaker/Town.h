// The plan of a town: streets around slightly irregular blocks, and houses along them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace TownMaker {

/// A position in metres, rounded to centimetres.
struct Place {
    double x = 0;
    double y = 0;
};

/// A street crossing: column from the west, row from the south.
struct Corner {
    std::uint32_t column = 0;
    std::uint32_t row = 0;
};

enum class StreetClass : std::uint8_t { Local, Arterial, Ring };

/// A house with its connection to the street.
struct House {
    Place tee;           ///< on the street's axis
    Place house;         ///< at the wall
    Place parcel[4];     ///< two are shared with the neighbours
    double part = 0;     ///< position of the tee along the street, from 0 to 1
    bool isBuilt = true; ///< false: the tee exists but leads nowhere yet
};

/// The stretch of a street from one corner to its eastern or northern neighbour.
struct Street {
    Corner from;
    Corner to;
    bool isEast = false;
    StreetClass street = StreetClass::Local;
    bool isBent = false;
    std::vector<House> houses; ///< in the order of their tees
};

/// A town, determined by seed and size. Every part is computed on demand, so even a large town
/// takes no memory.
class Town {
public:
    /// A town with exactly the given number of sections, which include the pieces of street between
    /// tees and corners, the house connections, and `extra` further ones. At least kFewestSections.
    Town(std::uint64_t seed, std::uint64_t sections, std::uint64_t extra);
    static constexpr std::uint64_t kFewestSections = 30;

    std::uint64_t Seed() const { return m_seed; }
    std::uint32_t Columns() const { return m_columns; }
    std::uint32_t Rows() const { return m_rows; }

    Place PlaceOf(Corner corner) const;
    /// A unique number of the corner, from 1.
    std::uint64_t NumberOf(Corner corner) const {
        return std::uint64_t{corner.row} * m_columns + corner.column + 1;
    }
    /// A point on the axis of a street, which may be slightly bent. `part` is from 0 to 1.
    Place Along(const Street& street, double part) const;
    /// Height of the ground in metres: a gentle slope down to the south-west, with hills.
    double Ground(Place place) const;
    /// Streets whose number is divisible by five run through the whole town.
    static bool IsArterial(std::uint32_t number) { return number % 5 == 0; }

    /// Calls take(street) for each street, always in the same order.
    template <class Take>
    void ForEachStreet(Take&& take) const;

private:
    static constexpr std::uint64_t kAllHouses = ~std::uint64_t{0};

    bool Exists(Corner from, bool isEast) const;
    Street Plan(Corner from, bool isEast) const;
    void AddHouses(Street& street) const;
    StreetClass ClassOf(Corner from, bool isEast) const;
    double Noise(double x, double y, std::uint64_t layer) const;
    std::uint64_t CountSections() const;

    std::uint64_t m_seed;
    std::uint32_t m_columns = 2;
    std::uint32_t m_rows = 2;
    /// Number of half-houses to keep from the start of the plan; an odd one is a tee without a
    /// house.
    std::uint64_t m_halfHouses = kAllHouses;
};

template <class Take>
void Town::ForEachStreet(Take&& take) const {
    std::uint64_t left = m_halfHouses;
    for (std::uint32_t row = 0; row < m_rows; ++row) {
        for (std::uint32_t column = 0; column < m_columns; ++column) {
            for (const bool isEast : {true, false}) {
                if (!Exists({column, row}, isEast)) {
                    continue;
                }
                Street street = Plan({column, row}, isEast);
                if (2 * street.houses.size() > left) {
                    street.houses.resize((left + 1) / 2);
                    if (left % 2 == 1) {
                        street.houses.back().isBuilt = false;
                    }
                    left = 0;
                } else if (left != kAllHouses) {
                    left -= 2 * street.houses.size();
                }
                take(street);
            }
        }
    }
}

} // namespace TownMaker
