#include "Town.h"

#include <algorithm>
#include <cmath>

#include "Chance.h"

namespace TownMaker {

namespace {

// Metres. Streets to the east are longer than those to the north, as blocks are usually deep in one
// direction only; houses keep their distance from corners so that parcels never overlap.
constexpr double kBlockWidth = 120;
constexpr double kBlockDepth = 80;
constexpr double kIrregularity = 6;
constexpr double kOriginX = 10000;
constexpr double kOriginY = 20000;
constexpr double kBend = 3;
constexpr double kFreeAtCorner = 22;
constexpr double kParcelWidth = 16;
constexpr double kParcelFront = 6;
constexpr double kParcelBack = 26;
constexpr double kWall = 12;

enum What : std::uint64_t { kCornerPlace, kStreetPlan, kTerrain };

Place Rounded(double x, double y) {
    return {std::round(x * 100) / 100, std::round(y * 100) / 100};
}

double Smooth(double part) {
    return part * part * (3 - 2 * part);
}

} // namespace

Town::Town(std::uint64_t seed, std::uint64_t sections, std::uint64_t extra) : m_seed(seed) {
    const std::uint64_t wanted = sections - std::min(sections, extra);
    // Each corner adds about 13 sections; start with fewer corners and add more as needed.
    const double side = std::sqrt(static_cast<double>(wanted) / 13.0) * 0.9;
    m_columns = m_rows = std::max(2U, static_cast<std::uint32_t>(side));
    std::uint64_t count = CountSections();
    for (bool widen = true; count < wanted; widen = !widen) {
        ++(widen ? m_columns : m_rows);
        count = CountSections();
    }
    std::uint64_t halves = 0;
    ForEachStreet([&](const Street& street) { halves += 2 * street.houses.size(); });
    m_halfHouses = halves - std::min(halves, count - wanted);
}

std::uint64_t Town::CountSections() const {
    std::uint64_t count = 0;
    ForEachStreet([&](const Street& street) { count += 1 + 2 * street.houses.size(); });
    return count;
}

Place Town::PlaceOf(Corner corner) const {
    Chance chance(m_seed, kCornerPlace, corner.column, corner.row);
    const double dx = chance.Between(-kIrregularity, kIrregularity);
    const double dy = chance.Between(-kIrregularity, kIrregularity);
    return Rounded(kOriginX + corner.column * kBlockWidth + dx,
                   kOriginY + corner.row * kBlockDepth + dy);
}

bool Town::Exists(Corner from, bool isEast) const {
    if (isEast) {
        return from.column + 1 < m_columns;
    }
    if (from.row + 1 >= m_rows) {
        return false;
    }
    // Some local streets are missing, which joins blocks; the arterials connect all rows.
    return ClassOf(from, false) != StreetClass::Local ||
           Chance(m_seed, kStreetPlan, from.column, from.row).Happens(0.85);
}

StreetClass Town::ClassOf(Corner from, bool isEast) const {
    const std::uint32_t number = isEast ? from.row : from.column;
    const std::uint32_t last = (isEast ? m_rows : m_columns) - 1;
    if (number == 0 || number == last) {
        return StreetClass::Ring;
    }
    return IsArterial(number) ? StreetClass::Arterial : StreetClass::Local;
}

Street Town::Plan(Corner from, bool isEast) const {
    Street street;
    street.from = from;
    street.to = isEast ? Corner{from.column + 1, from.row} : Corner{from.column, from.row + 1};
    street.isEast = isEast;
    street.street = ClassOf(from, isEast);
    street.isBent = street.street == StreetClass::Local &&
                    Chance(m_seed, kStreetPlan, from.column * 2 + 1, from.row).Happens(0.3);
    AddHouses(street);
    return street;
}

Place Town::Along(const Street& street, double part) const {
    const Place a = PlaceOf(street.from);
    const Place b = PlaceOf(street.to);
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double bend =
        street.isBent ? 4 * part * (1 - part) * kBend / std::sqrt(dx * dx + dy * dy) : 0;
    return Rounded(a.x + dx * part - dy * bend, a.y + dy * part + dx * bend);
}

void Town::AddHouses(Street& street) const {
    const Place a = PlaceOf(street.from);
    const Place b = PlaceOf(street.to);
    const double length = std::sqrt((b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y));
    const double ux = (b.x - a.x) / length;
    const double uy = (b.y - a.y) / length;
    const auto at = [&](double along, double aside) {
        return Rounded(a.x + ux * along - uy * aside, a.y + uy * along + ux * aside);
    };
    const auto slots = static_cast<int>((length - 2 * kFreeAtCorner) / kParcelWidth);
    Chance chance(m_seed, kStreetPlan, street.from.column * 4 + (street.isEast ? 2 : 3),
                  (std::uint64_t{street.from.row} << 32) + 1);
    for (int slot = 0; slot < slots; ++slot) {
        const double begin = kFreeAtCorner + slot * kParcelWidth;
        for (const double side : {1.0, -1.0}) {
            // The connections of the two sides never meet the street at the same point.
            const double along = begin + kParcelWidth / 2 - side * chance.Between(1.5, 5);
            if (!chance.Happens(0.85)) {
                continue;
            }
            House house;
            house.part = along / length;
            house.tee = Along(street, house.part);
            house.house = at(along, side * kWall);
            house.parcel[0] = at(begin, side * kParcelFront);
            house.parcel[1] = at(begin + kParcelWidth, side * kParcelFront);
            house.parcel[2] = at(begin + kParcelWidth, side * kParcelBack);
            house.parcel[3] = at(begin, side * kParcelBack);
            street.houses.push_back(house);
        }
    }
}

double Town::Noise(double x, double y, std::uint64_t layer) const {
    const double left = std::floor(x);
    const double bottom = std::floor(y);
    const auto value = [&](double i, double j) {
        return Chance(m_seed, kTerrain + layer, static_cast<std::uint64_t>(i),
                      static_cast<std::uint64_t>(j))
            .Between(-1, 1);
    };
    const double u = Smooth(x - left);
    const double v = Smooth(y - bottom);
    const double low = value(left, bottom) * (1 - u) + value(left + 1, bottom) * u;
    const double high = value(left, bottom + 1) * (1 - u) + value(left + 1, bottom + 1) * u;
    return low * (1 - v) + high * v;
}

double Town::Ground(Place place) const {
    const double slope = 0.004 * (place.x - kOriginX + place.y - kOriginY);
    // The origin is far enough from 0 that cell numbers are positive outside the town, too.
    const double hills =
        0.8 * Noise(place.x / 600, place.y / 600, 1) + 0.3 * Noise(place.x / 170, place.y / 170, 2);
    return 200 + slope + hills;
}

} // namespace TownMaker
