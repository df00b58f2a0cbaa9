// Streets cut into the sections between corners and tees.
#pragma once

#include <string>
#include <vector>

#include "NetworkNames.h"
#include "Town.h"

namespace TownMaker {

/// A section along a street, from its first corner towards its second.
struct Piece {
    std::string name;
    std::string from;
    std::string to;
    double fromPart = 0; ///< along the street
    double toPart = 1;
    std::vector<Place> vertices; ///< vertices on bent streets
    double length = 0;           ///< along the drawn line, metres
};

double Distance(Place a, Place b);

std::vector<Piece> CutIntoPieces(const Town& town, const NameStyle& style, const Street& street);

} // namespace TownMaker
