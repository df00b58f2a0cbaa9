// A sewer network in SWMM's format: metres, litres per second. All pipes run downhill, that is,
// along the streets to the west or south: from the local streets to the next arterial, along it to
// the southern edge of the town, and along that edge to the outfall.
#include <algorithm>

#include "Faults.h"
#include "Networks.h"
#include "Pieces.h"

namespace TownMaker {

namespace {

constexpr NameStyle kStyle{"MH", "H", "C", "L"};
constexpr double kTopDepth = 1.6; ///< depth of a pipe at the upper end of a street
constexpr double kLateralFall = 0.02;

class SewerWriter {
public:
    SewerWriter(const Town& town, std::uint64_t faults, TextFile& file)
        : m_town(town), m_faults(faults), m_file(file), m_outfall(PlaceOfOutfall()) {}

    void Write(const std::string& origin) {
        m_file.Line("[TITLE]");
        m_file.Line("Sewers of an invented town");
        m_file.Line(origin);
        m_file.Line();
        WriteOptions();
        WriteSubcatchments();
        WriteNodes();
        WriteConduits();
        WriteCrossSections();
        WriteCoordinates();
        WriteVertices();
        WritePolygons();
    }

private:
    Place PlaceOfOutfall() const {
        const Place corner = m_town.PlaceOf({0, 0});
        return {corner.x - 150, corner.y - 80};
    }

    /// Level of the pipes, which falls evenly along every flow path. It is below the ground
    /// everywhere, since the ground falls in the same direction.
    double Invert(Place place) const {
        const double slope = place.x - m_outfall.x + place.y - m_outfall.y;
        return m_outfallLevel + 0.004 * slope;
    }
    double DepthOf(Place place) const {
        return std::max(1.0, m_town.Ground(place) - Invert(place));
    }

    /// True if a corner drains through this street; otherwise the street's pipe starts at a
    /// separate manhole near its upper corner.
    static bool IsDrainOf(const Street& street) {
        const bool leavesWest = !Town::IsArterial(street.to.column) || street.to.row == 0;
        return street.isEast == leavesWest;
    }

    template <class Take>
    void ForEachFault(Take&& take) {
        for (std::uint64_t i = 0; i < m_faults; ++i) {
            take(PlantFault(m_town, i));
        }
    }

    /// The pieces of a street; the last one is shortened if the street does not drain its corner.
    std::vector<Piece> PiecesOf(const Street& street) const {
        std::vector<Piece> pieces = CutIntoPieces(m_town, kStyle, street);
        if (!IsDrainOf(street)) {
            Piece& last = pieces.back();
            last.to = HeadName(street);
            last.vertices.clear();
            last.toPart = HeadPart(street);
            last.length = Distance(m_town.Along(street, last.fromPart), HeadPlace(street));
        }
        return pieces;
    }
    /// After the last house and before the corner.
    static double HeadPart(const Street& street) {
        const double last = street.houses.empty() ? 0.7 : street.houses.back().part;
        return last + (1 - last) * 0.5;
    }
    Place HeadPlace(const Street& street) const { return m_town.Along(street, HeadPart(street)); }
    std::string HeadName(const Street& street) const {
        return StreetNames(m_town, kStyle, street).Tee(street.houses.size());
    }

    /// Calls take(name, place, level, depth) for each manhole and house.
    template <class Take>
    void ForEachNode(Take&& take) {
        const auto takeManhole = [&](const std::string& name, Place place) {
            take(name, place, Invert(place), DepthOf(place));
        };
        for (std::uint32_t row = 0; row < m_town.Rows(); ++row) {
            for (std::uint32_t column = 0; column < m_town.Columns(); ++column) {
                const Corner corner{column, row};
                takeManhole(CornerName(m_town, kStyle, corner), m_town.PlaceOf(corner));
            }
        }
        m_town.ForEachStreet([&](const Street& street) {
            const StreetNames names(m_town, kStyle, street);
            for (std::size_t i = 0; i < street.houses.size(); ++i) {
                const House& house = street.houses[i];
                takeManhole(names.Tee(i), house.tee);
                if (house.isBuilt) {
                    const double fall = kLateralFall * Distance(house.tee, house.house);
                    take(names.House(i), house.house, Invert(house.tee) + fall, 1.0);
                }
            }
            if (!IsDrainOf(street)) {
                takeManhole(HeadName(street), HeadPlace(street));
            }
        });
        ForEachFault([&](const Fault& fault) {
            for (const FaultNode& node : fault.nodes) {
                takeManhole(node.name, node.place);
            }
        });
    }

    void WriteOptions() {
        m_file.Line("[OPTIONS]");
        m_file.Line("FLOW_UNITS LPS");
        m_file.Line("FLOW_ROUTING KINWAVE");
        m_file.Line("LINK_OFFSETS DEPTH");
        m_file.Line();
        m_file.Line("[RAINGAGES]");
        m_file.Line("RAIN INTENSITY 0:05 1.0 TIMESERIES SHOWER");
        m_file.Line();
    }

    template <class Take>
    void ForEachParcel(Take&& take) {
        m_town.ForEachStreet([&](const Street& street) {
            const StreetNames names(m_town, kStyle, street);
            for (std::size_t i = 0; i < street.houses.size(); ++i) {
                if (street.houses[i].isBuilt) {
                    take(names.Parcel(i), names.House(i), street.houses[i]);
                }
            }
        });
    }

    void WriteSubcatchments() {
        m_file.Line("[SUBCATCHMENTS]");
        m_file.Line(";;Name RainGage Outlet Area Imperv Width Slope");
        ForEachParcel([this](const std::string& name, const std::string& house, const House& at) {
            const double width = Distance(at.parcel[0], at.parcel[1]);
            const double depth = Distance(at.parcel[1], at.parcel[2]);
            m_file.Line(name, "RAIN", house, Fixed{width * depth / 10000, 4}, "45", Fixed{width, 1},
                        "0.5");
        });
        m_file.Line();
    }

    void WriteNodes() {
        m_file.Line("[JUNCTIONS]");
        m_file.Line(";;Name Elevation MaxDepth");
        ForEachNode([this](const std::string& name, Place, double level, double depth) {
            m_file.Line(name, Fixed{level, 2}, Fixed{depth, 2});
        });
        m_file.Line();
        m_file.Line("[OUTFALLS]");
        m_file.Line(";;Name Elevation Type");
        m_file.Line("OUTFALL", Fixed{m_outfallLevel, 2}, "FREE");
        m_file.Line();
    }

    void WriteConduits() {
        m_file.Line("[CONDUITS]");
        m_file.Line(";;Name FromNode ToNode Length Roughness InOffset OutOffset");
        ForEachConduit([this](const std::string& name, const std::string& from,
                              const std::string& to, double length, double) {
            m_file.Line(name, from, to, Fixed{length, 2}, "0.013 0 0");
        });
        m_file.Line();
    }

    /// Calls take(name, from, to, length, diameter) for each conduit, in flow direction, which is
    /// opposite to the direction of the streets.
    template <class Take>
    void ForEachConduit(Take&& take) {
        m_town.ForEachStreet([&](const Street& street) {
            const StreetNames names(m_town, kStyle, street);
            for (const Piece& piece : PiecesOf(street)) {
                take(piece.name, piece.to, piece.from, piece.length, DiameterOf(street));
            }
            for (std::size_t i = 0; i < street.houses.size(); ++i) {
                const House& house = street.houses[i];
                if (house.isBuilt) {
                    take(names.Service(i), names.House(i), names.Tee(i),
                         Distance(house.tee, house.house), 0.15);
                }
            }
        });
        take("TRUNK", CornerName(m_town, kStyle, {0, 0}), "OUTFALL",
             Distance(m_town.PlaceOf({0, 0}), m_outfall), 1.2);
        ForEachFault([&](const Fault& fault) {
            for (const FaultSection& section : fault.sections) {
                take(section.name, section.from, section.to, section.length, 0.2);
            }
        });
    }

    static double DiameterOf(const Street& street) {
        if (street.isEast && street.from.row == 0) {
            return 0.8;
        }
        return !street.isEast && Town::IsArterial(street.from.column) ? 0.4 : 0.2;
    }

    void WriteCrossSections() {
        m_file.Line("[XSECTIONS]");
        m_file.Line(";;Link Shape Geom1 Geom2 Geom3 Geom4 Barrels");
        ForEachConduit([this](const std::string& name, const std::string&, const std::string&,
                              double, double diameter) {
            m_file.Line(name, "CIRCULAR", Fixed{diameter, 2}, "0 0 0 1");
        });
        m_file.Line();
    }

    void WriteCoordinates() {
        m_file.Line("[COORDINATES]");
        m_file.Line(";;Node X-Coord Y-Coord");
        ForEachNode([this](const std::string& name, Place place, double, double) {
            m_file.Line(name, place);
        });
        m_file.Line("OUTFALL", m_outfall);
        m_file.Line();
    }

    void WriteVertices() {
        m_file.Line("[VERTICES]");
        m_file.Line(";;Link X-Coord Y-Coord");
        m_town.ForEachStreet([this](const Street& street) {
            for (const Piece& piece : PiecesOf(street)) {
                for (const Place& vertex : piece.vertices) {
                    m_file.Line(piece.name, vertex);
                }
            }
        });
        m_file.Line();
    }

    void WritePolygons() {
        m_file.Line("[Polygons]");
        m_file.Line(";;Subcatchment X-Coord Y-Coord");
        ForEachParcel([this](const std::string& name, const std::string&, const House& house) {
            for (const Place& point : house.parcel) {
                m_file.Line(name, point);
            }
        });
        m_file.Line();
    }

    const Town& m_town;
    std::uint64_t m_faults;
    TextFile& m_file;
    Place m_outfall;
    double m_outfallLevel = m_town.Ground(m_outfall) - kTopDepth - 2;
};

} // namespace

void WriteSewer(const Town& town, const std::string& origin, std::uint64_t faults, TextFile& file) {
    SewerWriter(town, faults, file).Write(origin);
}

} // namespace TownMaker
