#include "Pieces.h"

#include <cmath>

namespace TownMaker {

namespace {

/// A long piece of a bent street follows it through a vertex in its middle.
constexpr double kLongPart = 0.12;

void Measure(const Town& town, const Street& street, Piece& piece) {
    if (street.isBent && piece.toPart - piece.fromPart > kLongPart) {
        piece.vertices = {town.Along(street, (piece.fromPart + piece.toPart) / 2)};
    }
    Place last = town.Along(street, piece.fromPart);
    for (const Place& vertex : piece.vertices) {
        piece.length += Distance(last, vertex);
        last = vertex;
    }
    piece.length += Distance(last, town.Along(street, piece.toPart));
}

} // namespace

double Distance(Place a, Place b) {
    return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y));
}

std::vector<Piece> CutIntoPieces(const Town& town, const NameStyle& style, const Street& street) {
    const StreetNames names(town, style, street);
    std::vector<Piece> pieces(street.houses.size() + 1);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const bool isFirst = i == 0;
        const bool isLast = i + 1 == pieces.size();
        pieces[i].name = names.Piece(i);
        pieces[i].from = isFirst ? names.From() : names.Tee(i - 1);
        pieces[i].to = isLast ? names.To() : names.Tee(i);
        pieces[i].fromPart = isFirst ? 0 : street.houses[i - 1].part;
        pieces[i].toPart = isLast ? 1 : street.houses[i].part;
        Measure(town, street, pieces[i]);
    }
    return pieces;
}

} // namespace TownMaker
