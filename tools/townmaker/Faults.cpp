#include "Faults.h"

namespace TownMaker {

namespace {

constexpr double kField = 60;

Place FieldOf(const Town& town, std::uint64_t number) {
    const Place corner = town.PlaceOf({0, 0});
    const std::uint64_t perRow = 2 * std::uint64_t{town.Columns()};
    const std::uint64_t row = number / perRow;
    return {corner.x + static_cast<double>(number % perRow) * kField,
            corner.y - 500 - static_cast<double>(row) * kField};
}

} // namespace

Fault PlantFault(const Town& town, std::uint64_t number) {
    const std::string id = std::to_string(number + 1);
    const Place at = FieldOf(town, number);
    const std::string a = "FAULT" + id + "A";
    const std::string b = "FAULT" + id + "B";
    const std::string c = "FAULT" + id + "C";
    const std::string d = "FAULT" + id + "D";
    const std::string one = "FAULT" + id + "-1";
    const std::string two = "FAULT" + id + "-2";
    const Place east{at.x + 30, at.y};
    const Place north{at.x, at.y + 40};
    const Place far{at.x + 30, at.y + 40};
    switch (number % 5) {
    case 0:
        return {{{a, at}}, {}};
    case 1:
        return {{{a, at}, {b, at}}, {{one, a, b, 1}}};
    case 2:
        return {{{a, at}}, {{one, a, "MISSING" + id, 30}}};
    case 3:
        return {{{a, at}, {b, east}}, {{one, a, b, 30}, {two, b, a, 30}}};
    default:
        return {{{a, at}, {b, east}, {c, north}, {d, far}}, {{one, a, d, 50}, {two, b, c, 50}}};
    }
}

} // namespace TownMaker
