// Reading valid files.
#include "plugins/network/InpReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Orvane::Network;

namespace {

constexpr const char* kWater = R"([TITLE]
;;a comment
Two streets

[coordinates]
 R1   0     0
 J1   10.5  -2e1
 "North side" 20 5
 T1   30    5
[JUNCTIONS]
;ID  Elev  Demand  Pattern
 J1  147   1.5     weekday ; a comment
 "North side" -12.5
[RESERVOIRS]
 R1  220
[TANKS]
 T1  131.9 13.1 .1 32.1 85 0
[PIPES]
 P1  R1 J1  100.5  300  120  0  Open
 P2  J1 "North side" 40  99 100  CV
[PUMPS]
 U1  R1 T1  HEAD curve1 SPEED 1.2
[VALVES]
 V1  J1 T1  250  PRV  39.99  0
[TAGS]
 NODE J1 corner
 LINK P2 iron
[VERTICES]
 P2 11 1
 P1 5  1
 P2 12 2
[LABELS]
 1 2 "Old town; north" anchor
[END]
anything at all
)";

constexpr const char* kSewer = R"([SUBCATCHMENTS]
A1 rain M1 5.5 45 100 0.5
[JUNCTIONS]
M1 970.46 12.9 0 0 0
D1 965 1
[DIVIDERS]
D2 960 L1 CUTOFF
[OUTFALLS]
O1 925.6 FREE NO
[STORAGE]
S1 935 11.3 0 FUNCTIONAL 15
[CONDUITS]
C1 M1 S1 309.4 0.014 0 0 0 0
C2 S1 D1 20 0.014 0 0 0 0
[WEIRS]
W1 D1 D2 TRANSVERSE 1.5 3.33
[ORIFICES]
I1 D1 D2 SIDE 0 0.65
[OUTLETS]
L1 D2 O1 0 FUNCTIONAL/DEPTH 10 0.5 NO
[PUMPS]
U1 M1 O1 curve ON 0 0
[XSECTIONS]
C1 CIRCULAR 1.25 0 0 0 1
C2 TRAPEZOIDAL 3 5 5 5 1
[COORDINATES]
M1 0 0
D1 1 0
D2 2 0
O1 3 0
S1 4 0
[Polygons]
A1 0 0
A1 1 0
A1 1 1
A1 0 0
S1 5 5
S1 6 5
S1 6 6
)";

InpResult Read(std::string_view text) {
    return ReadInp(text, "net.inp");
}

/// The text with other systems' line ends.
std::string WithCarriageReturns(std::string_view text) {
    std::string result;
    for (const char c : text) {
        result += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return result;
}

std::vector<std::string> NamesOf(const TextColumn& column) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < column.size(); ++i) {
        names.emplace_back(column[i]);
    }
    return names;
}

using Names = std::vector<std::string>;

std::string AttributesText(const AttributeTable& table, std::uint32_t owner) {
    std::string text;
    for (const Attribute& attribute : table.Of(owner)) {
        text.append(attribute.name).append("=");
        text += attribute.number ? std::to_string(*attribute.number).substr(0, 4) + "#"
                                 : std::string(attribute.text);
        text += " ";
    }
    return text;
}

} // namespace

TEST(InpReader, WaterNetworkIsReadWithoutProblems) {
    for (const std::string& text :
         {std::string(kWater), WithCarriageReturns(kWater), "\xEF\xBB\xBF" + std::string(kWater)}) {
        const InpResult result = Read(text);
        EXPECT_TRUE(result.ok);
        EXPECT_EQ(result.format, InpFormat::Epanet);
        EXPECT_EQ(result.title, "Two streets");
        EXPECT_EQ(ProblemTexts(result, Severity::Warning), Names{});
        EXPECT_EQ(NamesOf(result.model.nodes.names), (Names{"J1", "North side", "R1", "T1"}));
        EXPECT_EQ(NamesOf(result.model.sections.names), (Names{"P1", "P2", "U1", "V1"}));
    }
}

TEST(InpReader, NodesHaveKindsPositionsAndElevations) {
    const NodeTable nodes = Read(kWater).model.nodes;
    EXPECT_EQ(nodes.kinds, (std::vector{NodeKind::Junction, NodeKind::Junction, NodeKind::Reservoir,
                                        NodeKind::Tank}));
    EXPECT_EQ(nodes.positions, (std::vector<Point>{{10.5, -20}, {20, 5}, {0, 0}, {30, 5}}));
    EXPECT_EQ(nodes.elevations, (std::vector<double>{147, -12.5, 220, 131.9}));
}

TEST(InpReader, SectionsHaveEndsSizesAndInnerVertices) {
    const SectionTable sections = Read(kWater).model.sections;
    EXPECT_EQ(sections.kinds, (std::vector{SectionKind::Pipe, SectionKind::Pipe, SectionKind::Pump,
                                           SectionKind::Valve}));
    EXPECT_EQ(sections.startNodes, (std::vector<std::int32_t>{2, 0, 2, 0}));
    EXPECT_EQ(sections.endNodes, (std::vector<std::int32_t>{0, 1, 3, 3}));
    EXPECT_EQ(sections.statedLengths[0], 100.5);
    EXPECT_TRUE(std::isnan(sections.statedLengths[3]));
    EXPECT_EQ(sections.diameters[1], 99);
    EXPECT_TRUE(std::isnan(sections.diameters[2]));
    EXPECT_EQ(sections.diameters[3], 250);
    EXPECT_EQ(sections.innerVertices.offsets, (std::vector<std::uint32_t>{0, 1, 3, 3, 3}));
    EXPECT_EQ(sections.innerVertices.points, (std::vector<Point>{{5, 1}, {11, 1}, {12, 2}}));
}

TEST(InpReader, FurtherColumnsBecomeAttributes) {
    const NetworkModel water = Read(kWater).model;
    EXPECT_EQ(AttributesText(water.nodes.attributes, 0),
              "Demand=1.50# Pattern=weekday Tag=corner ");
    EXPECT_EQ(AttributesText(water.sections.attributes, 1),
              "Roughness=100.# MinorLoss=CV Tag=iron ");
    EXPECT_EQ(AttributesText(water.sections.attributes, 2), "Head=curve1 Speed=1.20# ");
    EXPECT_EQ(water.nodes.attributes.Find(3, "TankDiameter")->number, 85);
    EXPECT_FALSE(water.nodes.attributes.Find(3, "Demand"));

    const NetworkModel sewer = Read(kSewer).model;
    EXPECT_EQ(sewer.nodes.attributes.Find(0, "MaxDepth")->number, 12.9);
    EXPECT_EQ(sewer.sections.attributes.Find(1, "Height")->number, 3);
    EXPECT_EQ(sewer.sections.attributes.Find(5, "Curve")->text, "curve");
    EXPECT_EQ(sewer.polygons.attributes.Find(0, "Area")->number, 5.5);
}

TEST(InpReader, LabelsKeepSemicolonsInQuotationMarks) {
    const LabelTable labels = Read(kWater).model.labels;
    EXPECT_EQ(NamesOf(labels.texts), Names{"Old town; north"});
    EXPECT_EQ(labels.positions, (std::vector<Point>{{1, 2}}));
}

TEST(InpReader, SewerNetworkIsRead) {
    const InpResult result = Read(kSewer);
    EXPECT_EQ(ProblemTexts(result, Severity::Error), Names{});
    EXPECT_EQ(ProblemTexts(result, Severity::Warning), Names{});
    EXPECT_EQ(result.format, InpFormat::Swmm);
    const NetworkModel& model = result.model;
    EXPECT_EQ(model.nodes.kinds,
              (std::vector{NodeKind::Junction, NodeKind::Junction, NodeKind::Divider,
                           NodeKind::Outfall, NodeKind::Storage}));
    EXPECT_EQ(model.sections.kinds,
              (std::vector{SectionKind::Conduit, SectionKind::Conduit, SectionKind::Weir,
                           SectionKind::Orifice, SectionKind::Outlet, SectionKind::Pump}));
    EXPECT_EQ(model.sections.statedLengths[0], 309.4);
    EXPECT_EQ(model.sections.diameters[0], 1.25);
    EXPECT_TRUE(std::isnan(model.sections.diameters[1])); // its height is not a diameter
}

TEST(InpReader, RingsOfPolygonsAreNotClosed) {
    const PolygonTable polygons = Read(kSewer).model.polygons;
    EXPECT_EQ(NamesOf(polygons.names), (Names{"A1", "S1"}));
    EXPECT_EQ(polygons.rings.offsets, (std::vector<std::uint32_t>{0, 3, 6}));
    EXPECT_EQ(polygons.rings[0].back(), (Point{1, 1}));
}

TEST(InpReader, BytesThatAreNoUtf8AreOfTheAnsiPage) {
    const std::string start = "[JUNCTIONS]\nM";
    const std::string end = "ller 1\n[COORDINATES]\nM";
    EXPECT_EQ(Read(start + "\xFC" + end + "\xFC" + "ller 0 0\n").model.nodes.names[0],
              "M\xC3\xBCller");
    EXPECT_EQ(Read(start + "\xC3\xBC" + end + "\xC3\xBC" + "ller 0 0\n").model.nodes.names[0],
              "M\xC3\xBCller");
}

TEST(InpReader, ShapesOfUtf8AreToldFromAnsi) {
    const struct {
        std::string name;
        bool isUtf8;
    } cases[] = {{"\xE2\x82\xAC", true},
                 {"\xF0\x9F\x9A\xB0", true},
                 {"\xED\x9F\xBF", true},
                 {"\xC0\xAF", false},
                 {"\xE0\x9F\xBF", false},
                 {"\xED\xA0\x80", false},
                 {"\xF4\x90\x80\x80", false},
                 {"\xE2\x82", false},
                 {"\x80", false},
                 {"\xF0\x80\x80\x80", false},
                 {"\xFF", false}};
    for (const auto& [name, isUtf8] : cases) {
        const InpResult result =
            Read("[JUNCTIONS]\n" + name + " 1\n[COORDINATES]\n" + name + " 0 0\n");
        ASSERT_TRUE(result.ok) << name;
        EXPECT_EQ(result.model.nodes.names[0] == name, isUtf8) << name;
    }
}

TEST(InpReader, LastLineNeedsNoEnd) {
    EXPECT_EQ(Read("[JUNCTIONS]\nJ 1\n[COORDINATES]\nJ 3 4").model.nodes.positions,
              (std::vector<Point>{{3, 4}}));
}

TEST(InpReader, SectionsOfAFileMayComeInPartsAndInAnyOrder) {
    const InpResult result = Read("[VERTICES]\nP 1 1\n[PIPES]\nP A B 1 1\n[COORDINATES]\nB 2 2\n"
                                  "[JUNCTIONS]\nA 0\n[COORDINATES]\nA 0 0\n[JUNCTIONS]\nB 0\n");
    EXPECT_EQ(ProblemTexts(result, Severity::Warning), Names{});
    EXPECT_EQ(result.model.sections.endNodes, (std::vector<std::int32_t>{1}));
    EXPECT_EQ(result.model.sections.innerVertices.points.size(), 1U);
}

TEST(InpReader, NamesDifferInCase) {
    const InpResult result = Read("[JUNCTIONS]\na 1\nA 2\n[COORDINATES]\nA 0 0\na 1 1\n");
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.model.nodes.positions, (std::vector<Point>{{1, 1}, {0, 0}}));
}
