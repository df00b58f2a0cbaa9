// Deliberate faults, placed in the fields south of a town, that checks must find.
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

/// Creates a fault; its number selects the kind, cyclically: a node without sections; two nodes at
/// the same position, with a section of zero length between them; a section that names a missing
/// node; two sections between the same nodes; two sections that cross without a node.
Fault PlantFault(const Town& town, std::uint64_t number);

} // namespace TownMaker
