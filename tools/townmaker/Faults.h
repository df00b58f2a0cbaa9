// Faults that checks are to find, planted on purpose in the fields south of a town.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Town.h"

namespace TownMaker {

struct FaultNode {
    std::string name;
    Place place;
};

struct FaultSection {
    std::string name;
    std::string from;
    std::string to;
    double length = 0;
};

struct Fault {
    std::vector<FaultNode> nodes;
    std::vector<FaultSection> sections;
};

/// The fault of a number. In turn: a node without sections; two nodes at one place, with a
/// section of no length between them; a section that names a missing node; two sections
/// between the same nodes; two sections that cross without a node.
Fault PlantFault(const Town& town, std::uint64_t number);

} // namespace TownMaker
