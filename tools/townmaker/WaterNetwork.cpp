// A water supply network in EPANET's format: metres, millimetres, litres per second.
#include "Faults.h"
#include "Networks.h"
#include "Pieces.h"

namespace TownMaker {

namespace {

constexpr NameStyle kStyle{"J", "H", "P", "S"};
constexpr double kCover = 1.3; ///< earth above the pipes, in metres

struct Material {
    const char* name = "";
    double roughness = 0; ///< Hazen-Williams
};

constexpr Material kDuctileIron{"ductile-iron", 120};
constexpr Material kCastIron{"cast-iron", 95};
constexpr Material kPlastic{"PE", 140};

struct MainPipe {
    int diameter = 0;
    Material material;
};

/// The centre of the town is older than its edge.
MainPipe MainOf(const Town& town, const Street& street) {
    if (street.street == StreetClass::Ring) {
        return {400, kDuctileIron};
    }
    if (street.street == StreetClass::Arterial) {
        return {250, kDuctileIron};
    }
    const auto isInner = [](std::uint32_t at, std::uint32_t count) {
        return at * 3 > count && at * 3 < count * 2;
    };
    const bool isOld =
        isInner(street.from.column, town.Columns()) && isInner(street.from.row, town.Rows());
    return isOld ? MainPipe{100, kCastIron} : MainPipe{125, kPlastic};
}

/// The works outside the town, from the reservoir in the west to the tank in the east.
struct Works {
    explicit Works(const Town& town)
        : inlet{0, town.Rows() / 2}, outlet{town.Columns() - 1, town.Rows() / 2},
          inletPlace(town.PlaceOf(inlet)), outletPlace(town.PlaceOf(outlet)) {}

    Place West(double metres) const { return {inletPlace.x - metres, inletPlace.y}; }
    Place East(double metres) const { return {outletPlace.x + metres, outletPlace.y}; }

    Corner inlet;
    Corner outlet;
    Place inletPlace;
    Place outletPlace;
};

class WaterWriter {
public:
    WaterWriter(const Town& town, std::uint64_t faults, TextFile& file)
        : m_town(town), m_works(town), m_faults(faults), m_file(file) {}

    void Write(const std::string& origin) {
        m_file.Line("[TITLE]");
        m_file.Line("Water supply of an invented town");
        m_file.Line(origin);
        m_file.Line();
        WriteNodes();
        WriteSections();
        WriteTags();
        WriteOptions();
        WriteCoordinates();
        WriteVertices();
        WriteLabels();
        m_file.Line("[END]");
    }

private:
    template <class Take>
    void ForEachCorner(Take&& take) {
        for (std::uint32_t row = 0; row < m_town.Rows(); ++row) {
            for (std::uint32_t column = 0; column < m_town.Columns(); ++column) {
                const Corner corner{column, row};
                take(CornerName(m_town, kStyle, corner), m_town.PlaceOf(corner));
            }
        }
    }

    /// Calls take(name, place, demand) for each junction; positions are rounded.
    template <class Take>
    void ForEachJunction(Take&& take) {
        ForEachCorner([&](const std::string& name, Place place) { take(name, place, 0.0); });
        m_town.ForEachStreet([&](const Street& street) {
            const StreetNames names(m_town, kStyle, street);
            for (std::size_t i = 0; i < street.houses.size(); ++i) {
                take(names.Tee(i), street.houses[i].tee, 0.0);
                if (street.houses[i].isBuilt) {
                    take(names.House(i), street.houses[i].house, 0.006);
                }
            }
        });
        take("PS-IN", m_works.West(320), 0.0);
        take("PS-OUT", m_works.West(305), 0.0);
        take("PRV-IN", m_works.East(200), 0.0);
        take("PRV-OUT", m_works.East(185), 0.0);
        ForEachFault([&](const Fault& fault) {
            for (const FaultNode& node : fault.nodes) {
                take(node.name, node.place, 0.0);
            }
        });
    }

    template <class Take>
    void ForEachFault(Take&& take) {
        for (std::uint64_t i = 0; i < m_faults; ++i) {
            take(PlantFault(m_town, i));
        }
    }

    double LevelOf(Place place) const { return m_town.Ground(place) - kCover; }

    void WriteNodes() {
        m_file.Line("[JUNCTIONS]");
        m_file.Line(";ID Elevation Demand");
        ForEachJunction([&](const std::string& name, Place place, double demand) {
            m_file.Line(name, Fixed{LevelOf(place), 2}, Fixed{demand, 3});
        });
        m_file.Line();
        m_file.Line("[RESERVOIRS]");
        m_file.Line(";ID Head");
        m_file.Line("RESERVOIR", Fixed{m_town.Ground(m_works.West(700)) + 3, 2});
        m_file.Line();
        m_file.Line("[TANKS]");
        m_file.Line(";ID Elevation InitLevel MinLevel MaxLevel Diameter MinVol");
        m_file.Line("TANK", Fixed{m_town.Ground(m_works.East(400)) + 35, 2}, "4 1 6 18 0");
        m_file.Line();
    }

    void WritePipe(const std::string& name, const std::string& from, const std::string& to,
                   double length, int diameter, const Material& material) {
        m_file.Line(name, from, to, Fixed{length, 2}, Fixed{double(diameter), 0},
                    Fixed{material.roughness, 0}, "0 Open");
    }

    void WriteSections() {
        m_file.Line("[PIPES]");
        m_file.Line(";ID Node1 Node2 Length Diameter Roughness MinorLoss Status");
        m_town.ForEachStreet([this](const Street& street) { WriteStreet(street); });
        const std::string inlet = CornerName(m_town, kStyle, m_works.inlet);
        const std::string outlet = CornerName(m_town, kStyle, m_works.outlet);
        WritePipe("INTAKE", "RESERVOIR", "PS-IN", 380, 500, kDuctileIron);
        WritePipe("MAIN-WEST", "PS-OUT", inlet, 305, 500, kDuctileIron);
        WritePipe("MAIN-EAST", "PRV-OUT", outlet, 185, 400, kDuctileIron);
        WritePipe("MAIN-TANK", "TANK", "PRV-IN", 200, 400, kDuctileIron);
        ForEachFault([this](const Fault& fault) {
            for (const FaultSection& section : fault.sections) {
                WritePipe(section.name, section.from, section.to, section.length, 100, kPlastic);
            }
        });
        m_file.Line();
        m_file.Line("[PUMPS]");
        m_file.Line(";ID Node1 Node2 Parameters");
        m_file.Line("PUMP PS-IN PS-OUT HEAD PUMP-CURVE");
        m_file.Line();
        m_file.Line("[VALVES]");
        m_file.Line(";ID Node1 Node2 Diameter Type Setting MinorLoss");
        m_file.Line("PRV PRV-IN PRV-OUT 400 PRV 55 0");
        m_file.Line();
    }

    void WriteStreet(const Street& street) {
        const StreetNames names(m_town, kStyle, street);
        const MainPipe pipe = MainOf(m_town, street);
        for (const Piece& piece : CutIntoPieces(m_town, kStyle, street)) {
            WritePipe(piece.name, piece.from, piece.to, piece.length, pipe.diameter, pipe.material);
        }
        for (std::size_t i = 0; i < street.houses.size(); ++i) {
            const House& house = street.houses[i];
            if (house.isBuilt) {
                WritePipe(names.Service(i), names.Tee(i), names.House(i),
                          Distance(house.tee, house.house), 32, kPlastic);
            }
        }
    }

    void WriteTags() {
        m_file.Line("[TAGS]");
        m_town.ForEachStreet([this](const Street& street) {
            const StreetNames names(m_town, kStyle, street);
            const char* material = MainOf(m_town, street).material.name;
            for (std::size_t i = 0; i <= street.houses.size(); ++i) {
                m_file.Line("LINK", names.Piece(i), material);
            }
        });
        m_file.Line();
    }

    void WriteOptions() {
        m_file.Line("[CURVES]");
        m_file.Line("PUMP-CURVE 120 65");
        m_file.Line();
        m_file.Line("[OPTIONS]");
        m_file.Line("Units LPS");
        m_file.Line("Headloss H-W");
        m_file.Line();
    }

    void WriteCoordinates() {
        m_file.Line("[COORDINATES]");
        m_file.Line(";Node X-Coord Y-Coord");
        ForEachJunction(
            [&](const std::string& name, Place place, double) { m_file.Line(name, place); });
        m_file.Line("RESERVOIR", m_works.West(700));
        m_file.Line("TANK", m_works.East(400));
        m_file.Line();
    }

    void WriteVertices() {
        m_file.Line("[VERTICES]");
        m_file.Line(";Link X-Coord Y-Coord");
        m_town.ForEachStreet([this](const Street& street) {
            for (const Piece& piece : CutIntoPieces(m_town, kStyle, street)) {
                for (const Place& vertex : piece.vertices) {
                    m_file.Line(piece.name, vertex);
                }
            }
        });
        m_file.Line();
    }

    void WriteLabels() {
        m_file.Line("[LABELS]");
        m_file.Line(";X-Coord Y-Coord Label");
        m_file.Line(Place{m_works.West(700).x, m_works.West(0).y + 25}, "\"Reservoir\"");
        m_file.Line(Place{m_works.West(320).x, m_works.West(0).y + 25}, "\"Pumping station\"");
        m_file.Line(Place{m_works.East(400).x, m_works.East(0).y + 25}, "\"Water tower\"");
        m_file.Line();
    }

    const Town& m_town;
    Works m_works;
    std::uint64_t m_faults;
    TextFile& m_file;
};

} // namespace

void WriteWater(const Town& town, const std::string& origin, std::uint64_t faults, TextFile& file) {
    WaterWriter(town, faults, file).Write(origin);
}

} // namespace TownMaker
