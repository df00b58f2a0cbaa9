#include "siblings/networkcore/TopologyStorage.h"

#include <gtest/gtest.h>
#include <random>

#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/networkcore/TopologyMultiStorage.h"
#include "tests/support/TestDrawing.h"

using namespace Orvane;
using namespace Orvane::Topology;

namespace {

class TopologyStorageTest : public TestDrawing {
protected:
    AcDbObjectId Node(System::CGisSystem& system, std::string_view name, double x = 0,
                      double y = 0) {
        return Storage().AddNode(system, {name, {x, y}});
    }
    static std::string NameOf(const CEntity& entity) { return std::string(entity.GetNameUtf8()); }
};

} // namespace

TEST_F(TopologyStorageTest, ASectionKeepsEverythingItWasMadeOf) {
    System::CGisSystem& system = MakeSystem(L"Water");
    const AcDbObjectId a = Storage().AddNode(system, {"A", {0, 0, 12.5}, "Tank"});
    const AcDbObjectId b = Node(system, "B", 3, 8);
    const Point vertices[] = {{3, 0}, {3, 4}};
    const AttributeData attributes[] = {{"diameter", 0.2}, {"note", "Größe"}};
    const AcDbObjectId id =
        Storage().AddSection(system, {"AB", {a}, {b}, vertices, "Pipe", attributes});
    const CSection section = Storage().GetSectionById(id);
    ASSERT_TRUE(section);
    EXPECT_EQ(section.GetName().Str(), L"AB");
    EXPECT_EQ(section.GetKind().Str(), L"Pipe");
    EXPECT_EQ(section.GetSystem(), &system);
    EXPECT_EQ(section.GetEntityType(), EntitySection);
    EXPECT_EQ(section.GetStartNode().GetKind().Str(), L"Tank");
    EXPECT_EQ(section.GetStartNode().GetPosition().z, 12.5);
    EXPECT_EQ(section.GetEndNodeId(), b);
    EXPECT_DOUBLE_EQ(section.GetDrawnLength(), 3 + 4 + 4);
    EXPECT_EQ(section.GetInnerVertices()[1].y, 4);
    EXPECT_EQ(section.GetNumber(AcDbIntern("diameter")), 0.2);
    EXPECT_EQ(section.GetNumber(AcDbIntern("note")), std::nullopt);
    EXPECT_EQ(section.GetAttribute(AcDbIntern("note")).asText(), "Größe");
    EXPECT_TRUE(section.GetAttribute(AcDbIntern("Diameter")).isNull());
}

TEST_F(TopologyStorageTest, AMissingNodeIsKnownByItsStatedName) {
    System::CGisSystem& system = MakeSystem(L"Water");
    const AcDbObjectId node = Node(system, "A", 1, 1);
    const Point vertex[] = {{4, 5}};
    const AcDbObjectId other = Storage().AddSection(system, {"T", {node, "not looked at"}, {node}});
    const CSection section =
        Storage().GetSectionById(Storage().AddSection(system, {"S", {node}, {other, "B"}, vertex}));
    EXPECT_EQ(section.GetEndNodeId(), AcDbObjectId()); // a section is not a node
    EXPECT_FALSE(section.GetEndNode());
    EXPECT_EQ(section.GetMissingStart(), "");
    EXPECT_EQ(section.GetMissingEnd(), "B");
    EXPECT_DOUBLE_EQ(section.GetDrawnLength(), 5);
    EXPECT_EQ(Storage().GetSectionById(other).GetMissingStart(), "");
}

TEST_F(TopologyStorageTest, AttributesAreSetAddedAndRemoved) {
    System::CGisSystem& system = MakeSystem(L"Water");
    const AttributeData twice[] = {{"a", "1"}, {"", "nameless"}, {"a", 2.0}};
    const AcDbObjectId first = Storage().AddNode(system, {"A", {}, "", twice});
    const AcDbObjectId second = Node(system, "B");
    for (const char* name : {"x", "y", "z"}) {
        // Alternating, so that the attributes of both have to move.
        EXPECT_EQ(Storage().SetAttribute(first, {name, name}), 1);
        EXPECT_EQ(Storage().SetAttribute(second, {name, 1.0}), 1);
    }
    EXPECT_EQ(Storage().SetAttribute(first, {"y", 7.0}), 1);
    EXPECT_EQ(Storage().RemoveAttribute(first, AcDbIntern("x")), 1);
    EXPECT_EQ(Storage().RemoveAttribute(first, AcDbIntern("x")), 0);
    std::string text;
    for (const AttributeData& attribute : Storage().GetNodeById(first).GetAttributes()) {
        text += std::string(attribute.name) + '=' + std::string(attribute.value.asText()) +
                std::to_string(attribute.value.asInteger().value_or(0)) + ' ';
    }
    EXPECT_EQ(text, "a=2 y=7 z=z0 ");
    EXPECT_EQ(Storage().GetNodeById(second).GetAttributes().size(), 3U);
    EXPECT_EQ(Storage().SetAttribute(second, {"", 1.0}), 0);
    EXPECT_EQ(Storage().SetAttribute(AcDbObjectId(99), {"a", 1.0}), 0);
    EXPECT_EQ(Storage().RemoveAttribute(AcDbObjectId(99), AcDbIntern("a")), 0);
    EXPECT_EQ(Storage().SetAttribute(second, {"SYSTEMID", 7}), 0);
    EXPECT_EQ(Storage().RemoveAttribute(second, AcDbIntern("NAME")), 0);
}

TEST_F(TopologyStorageTest, NamesAreFoundAsAPlainSearchFindsThem) {
    System::CGisSystem& water = MakeSystem(L"Water");
    System::CGisSystem& sewer = MakeSystem(L"Sewer");
    std::mt19937 random(7);
    const auto anyName = [&] { return "n" + std::to_string(random() % 400); };
    std::vector<std::pair<int, std::string>> names; // by node, in order of creation
    std::vector<AcDbObjectId> ids;
    for (int step = 0; step < 6000; ++step) {
        if (step % 3 == 0 || ids.empty()) {
            System::CGisSystem& system = random() % 2 ? water : sewer;
            names.emplace_back(system.GetSystemId(), anyName());
            ids.push_back(Node(system, names.back().second));
        } else if (step % 7 == 0) {
            const std::size_t i = random() % ids.size();
            names[i].second = anyName();
            Storage().SetName(ids[i], Utf8ToWide(names[i].second).c_str());
        } else {
            const auto wanted = std::pair(water.GetSystemId(), anyName());
            const auto hit = std::find(names.begin(), names.end(), wanted);
            const CNode found = Storage().FindNodeByName(wanted.first, wanted.second);
            const AcDbObjectId expected = hit == names.end()
                                              ? AcDbObjectId()
                                              : ids[static_cast<std::size_t>(hit - names.begin())];
            ASSERT_EQ(found.GetObjectId(), expected) << step;
        }
    }
}

TEST_F(TopologyStorageTest, ASystemGoesAndTheOthersStay) {
    System::CGisSystem& water = MakeSystem(L"Water");
    System::CGisSystem& sewer = MakeSystem(L"Sewer");
    const AttributeData kept[] = {{"depth", 3.0}};
    const AcDbObjectId w0 = Node(water, "W0");
    const AcDbObjectId w1 = Node(water, "W1");
    const AcDbObjectId s1 = Storage().AddNode(sewer, {"S1", {7, 8}, "Manhole", kept});
    const Point vertices[] = {{1, 2}};
    const AcDbObjectId ww = Storage().AddSection(water, {"WW", {w1}, {w1}, vertices});
    const AcDbObjectId sw = Storage().AddSection(sewer, {"SW", {s1}, {w1}, vertices});
    const AcDbMPolygon::Ring rings[] = {{{{0, 0}, {1, 0}, {0, 1}}}};
    const AcDbObjectId polygon = Storage().AddPolygon(sewer, {"P", rings});
    const AcDbObjectId text = Storage().AddText(sewer, {"label", {5, 6}});
    const std::uint64_t stamp = Storage().GetChangeStamp();

    Storage().RemoveSystemEntities(water.GetSystemId());
    EXPECT_NE(Storage().GetChangeStamp(), stamp);
    EXPECT_FALSE(Storage().GetNodeById(w0));
    EXPECT_FALSE(Storage().GetSectionById(ww));
    const CNode node = Storage().GetNodeById(s1);
    EXPECT_EQ(NameOf(node), "S1");
    EXPECT_EQ(node.GetPosition().y, 8);
    EXPECT_EQ(node.GetKindUtf8(), "Manhole");
    EXPECT_EQ(node.GetNumber(AcDbIntern("depth")), 3.0);
    const CSection section = Storage().GetSectionById(sw);
    EXPECT_EQ(section.GetStartNodeId(), s1);
    EXPECT_EQ(section.GetEndNodeId(), w1) << "the other system's section still ends there";
    EXPECT_EQ(section.GetEndNode().GetSystem(), &sewer);
    EXPECT_FALSE(section.GetEndNode().IsMultiSystem());
    EXPECT_EQ(section.GetInnerVertices()[0].y, 2);
    EXPECT_EQ(Storage().GetPolygonById(polygon).GetRings()[0].points[1].x, 1);
    EXPECT_EQ(Storage().GetTextById(text).GetName().Str(), L"label");
    EXPECT_EQ(Storage().GetTextById(text).GetPosition().x, 5);
    EXPECT_EQ(Storage().FindNodeByName(sewer.GetSystemId(), "S1").GetObjectId(), s1);
    EXPECT_GT(Node(sewer, "new"), text); // ids are not reused

    const std::uint64_t after = Storage().GetChangeStamp();
    Storage().RemoveSystemEntities(water.GetSystemId());
    EXPECT_EQ(Storage().GetChangeStamp(), after); // nothing to remove
}

TEST_F(TopologyStorageTest, EntitiesOfAnotherDrawingsSystemAreRefused) {
    System::CGisSystem& system = MakeSystem(L"Water");
    CTopologyStorage other(nullptr);
    EXPECT_EQ(other.AddNode(system, {"A", {}}), AcDbObjectId());
    EXPECT_EQ(other.AddSection(system, {"A", {}, {}}), AcDbObjectId());
    EXPECT_EQ(other.AddPolygon(system, {"A", {}}), AcDbObjectId());
    EXPECT_EQ(other.AddText(system, {"A", {}}), AcDbObjectId());
    EXPECT_TRUE(other.GetNodeVector().empty());
}

TEST_F(TopologyStorageTest, EachDrawingHasItsOwnStorageAndLosesItWithTheDocument) {
    System::CGisSystem& system = MakeSystem(L"Water");
    Node(system, "A");
    CTopologyStorage* const pFirst = &Storage();
    AcApDocument* const pSecond = acDocManagerPtr()->newDocument(L"b.dwg");
    EXPECT_NE(&Storage(), pFirst);
    EXPECT_TRUE(Storage().GetNodeVector().empty());
    EXPECT_NE(Storage().GetChangeStamp(), pFirst->GetChangeStamp());
    acDocManagerPtr()->closeDocument(pSecond);
    EXPECT_EQ(&Storage(), pFirst);
    acDocManagerPtr()->closeDocument(Document());
    ASSERT_NE(CTopologyMultiStorage::Instance()->GetTopology(), nullptr);
    EXPECT_TRUE(Storage().GetNodeVector().empty());
}
