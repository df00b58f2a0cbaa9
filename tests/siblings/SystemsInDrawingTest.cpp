// Systems and their entities in the drawing: saved, undone, shared.
#include <gtest/gtest.h>

#include "platform/arx/DbUndoScopes.h"
#include "platform/arx/EdEditor.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscoreadds/NodeIndex.h"
#include "siblings/giscoreadds/PolygonIndex.h"
#include "tests/support/SystemEventLog.h"
#include "tests/support/TestDrawing.h"

using namespace Orvane;
using namespace Orvane::Topology;
using System::CGisSystem;
using System::CGisSystems;
using System::CSystemManager;

namespace {

class SystemsInDrawingTest : public TestDrawing {
protected:
    AcDbDatabase& Database() const { return *Document()->database(); }
    static CSystemManager& Manager() { return *CSystemManager::Instance(); }
    AcDbObjectId Node(CGisSystem& system, const char* name, double x = 0, double y = 0) {
        return Storage().AddNode(system, {name, {x, y}});
    }
    void Save() { acedEditor()->fireBeginSave(&Database(), L""); }
    AcDbEntity& Open(AcDbObjectId id) {
        AcDbEntity* pEntity = nullptr;
        EXPECT_EQ(acdbOpenObject(pEntity, id, AcDb::kForWrite), Acad::eOk);
        return *pEntity;
    }
    static int Count(const CGisSystem& system, System::enmStatistic statistic) {
        int value = -1;
        return system.GetStatisticValue_int(statistic, value) ? value : -1;
    }
    /// Everything about the systems of a drawing, as text.
    static std::string Describe(const CGisSystems& systems) {
        CString text;
        for (const CGisSystem* pSystem : systems.GetSystemList()) {
            text.AppendFormat(L"%d %s %s %d/%d %d %s", pSystem->GetSystemId(),
                              pSystem->GetSystemName(), pSystem->GetGuid(),
                              pSystem->GetTopologyType(), pSystem->GetSystemFunction(),
                              pSystem->GetVisibility(), pSystem->GetCoordinateSystem());
            for (const System::CGisSystemLayer& layer : pSystem->GetLayers()) {
                text.AppendFormat(L" %s=%s:%d", layer.GetReference(), layer.GetLayerName(),
                                  layer.GetColorIndex());
            }
            for (const auto& [name, value] : pSystem->GetCounters()) {
                text.AppendFormat(L" %s:%d", name, value);
            }
            text += pSystem->GetActive() ? L" active\n" : L"\n";
        }
        return WideToUtf8(text.View());
    }
};

} // namespace

TEST_F(SystemsInDrawingTest, ADrawingGivesBackTheSystemsThatItWasSavedWith) {
    CGisSystem& water = MakeSystem(L"Wäter");
    MakeSystem(L"Parcels", TopologyPolygon, 0);
    CGisSystem& road = MakeSystem(L"Road", TopologyLine, kFunctionAlignment);
    Manager().SetSystemInvisible(&road);
    water.SetCoordinateSystem(L"LOCAL_CS[\"x\"]");
    Manager().SetSystemActive(&water);
    Storage().LoadCountersFromSystem(&water);
    Node(water, "");
    Node(water, "");
    Save();
    const std::string now = Describe(*Manager().GetSystems());
    EXPECT_EQ(Describe(CGisSystems(&Database())), now);
    EXPECT_NE(now.find(" node:2 active"), std::string::npos) << now;
    EXPECT_NE(now.find("DIONICA=Wäter sections:150"), std::string::npos) << now;
    EXPECT_NE(now.find("MALIGNMENT=Road alignments:1"), std::string::npos) << now;
    EXPECT_EQ(now.find("DIONICA=Road"), std::string::npos) << now;
    EXPECT_NE(now.find("POLYGON_SHELL=Parcels polygons:92"), std::string::npos) << now;
    EXPECT_NE(now.find("POLYGON_TEMP="), std::string::npos) << now;
    EXPECT_EQ(water.GetLayerByReference(L"SCHEME"), nullptr);
}

TEST_F(SystemsInDrawingTest, UndoAndRedoTakeSystemsAndTheirEntitiesAlong) {
    SystemEventLog log;
    AcDbUndo& undo = Database().undo();
    {
        const AcDbUndoGroup group(Database(), L"import");
        Node(MakeSystem(L"A"), "n");
    }
    EXPECT_EQ(log.Take(), "new A;");
    CGisSystem* const pFirst = Manager().GetSystemByName(L"A");
    const CString guid = pFirst->GetGuid();
    Manager().SetSystemActive(pFirst);
    ASSERT_TRUE(undo.undo());
    EXPECT_EQ(log.Take(), "active A A;gone A A;inactive A none;active none none;after;");
    EXPECT_EQ(Manager().GetSystems()->GetCount(), 0);
    EXPECT_EQ(Manager().GetActiveSystem(), nullptr);
    EXPECT_TRUE(Storage().GetNodeVector().empty());

    ASSERT_TRUE(undo.redo());
    EXPECT_EQ(log.Take(), "new A;active A A;");
    EXPECT_EQ(Manager().GetActiveSystem(), Manager().GetSystemByName(L"A"));
    CGisSystem* const pAgain = Manager().GetSystemByName(L"A");
    ASSERT_NE(pAgain, nullptr);
    EXPECT_EQ(pAgain->GetGuid(), guid);
    ASSERT_EQ(Storage().GetNodeVector().size(), 1U);
    EXPECT_EQ(Storage().GetNodeVector()[0].GetSystem(), pAgain);
    const CNode node = Storage().GetNodeVector()[0];
    EXPECT_EQ(Storage().GetNodeByGuid(node.GetGuid()).GetObjectId(), node.GetObjectId());
    EXPECT_FALSE(Storage().GetSectionByGuid(node.GetGuid()));
    EXPECT_FALSE(Storage().GetNodeByGuid(L"x" + node.GetGuid()));
    EXPECT_FALSE(Storage().GetNodeByGuid(L""));

    Manager().RenameSystem(pAgain, L"B");
    Manager().SetSystemInvisible(pAgain);
    Manager().DeleteSystem(pAgain);
    EXPECT_TRUE(Storage().GetNodeVector().empty());
    log.Take();
    ASSERT_TRUE(undo.undo());
    ASSERT_EQ(Storage().GetNodeVector().size(), 1U);
    CGisSystem* const pBack = Storage().GetNodeVector()[0].GetSystem();
    ASSERT_NE(pBack, nullptr);
    EXPECT_EQ(pBack->GetVisibility(), 0);
    ASSERT_TRUE(undo.undo());
    ASSERT_TRUE(undo.undo());
    EXPECT_EQ(log.Take(), "new B;active B B;shown B;changed A;");
    EXPECT_EQ(pBack->GetLayers().size(), 3U);
    EXPECT_GT(MakeSystem(L"C").GetSystemId(), pBack->GetSystemId());
}

TEST_F(SystemsInDrawingTest, LayersFollowTheSystem) {
    Database().layer(L"Town sections"); // somebody else's layer
    CGisSystem& system = MakeSystem(L"Town");
    const System::CGisSystemLayer* const pLayer = system.GetLayerByReference(L"DIONICA");
    ASSERT_NE(pLayer, nullptr);
    EXPECT_EQ(pLayer->GetLayerName().Str(), L"Town sections 2");
    const AcDbObjectId section = Storage().AddSection(system, {"S", {}, {}});
    const auto layerOf = [&](AcDbObjectId id) {
        return static_cast<const AcDbEntity*>(Database().peek(id))->layer();
    };
    EXPECT_EQ(layerOf(section), L"Town sections 2");
    EXPECT_EQ(layerOf(Node(system, "N")), L"Town nodes");
    Manager().SetSystemInvisible(&system);
    const auto isOff = [&] {
        return static_cast<const AcDbLayerTableRecord*>(Database().peek(pLayer->GetLayerId()))
            ->isOff();
    };
    EXPECT_TRUE(isOff());
    Database().undo().undo();
    EXPECT_FALSE(isOff());
    EXPECT_EQ(system.GetVisibility(), 1);
    EXPECT_EQ(Manager().GetSystems()->CreateMissingLayers(), 0);

    const AcDbObjectId texts = system.GetLayerByReference(L"TEXT")->GetLayerId();
    AcDbLayerTableRecord* pTexts = nullptr;
    ASSERT_EQ(acdbOpenObject(pTexts, texts, AcDb::kForWrite), Acad::eOk);
    pTexts->erase();
    pTexts->close();
    EXPECT_EQ(system.GetLayerByReference(L"TEXT")->GetColorIndex(), 0);
    EXPECT_EQ(Manager().GetSystems()->CreateMissingLayers(), 1);
    EXPECT_EQ(system.GetLayerByReference(L"TEXT")->GetColorIndex(), 7);
    Manager().DeleteSystem(&system);
    EXPECT_TRUE(Database().findLayer(L"Town sections 2").isNull());
    EXPECT_FALSE(Database().findLayer(L"Town sections").isNull());
}

TEST_F(SystemsInDrawingTest, SystemsThatOthersLeftIncompleteAreCompleted) {
    const auto set = [&](const wchar_t* dictionary, const wchar_t* record, const wchar_t* text) {
        AcDbDictionary* pDictionary = nullptr;
        ASSERT_EQ(acdbOpenObject(pDictionary, Database().dictionary(dictionary), AcDb::kForWrite),
                  Acad::eOk);
        pDictionary->setAt(record, text);
        pDictionary->close();
    };
    set(L"ORVZ_SYSTEM_3", L"NAME", L"Water");
    set(L"ORVZ_SYSTEM_3", L"TOPOLOGY", L"1");
    set(L"ORVZ_SYSTEM_12", L"NAME", L"water");
    set(L"ORVZ_SYSTEM_20", L"GUID", L"ABC");
    set(L"ORVZ_SYSTEM_07", L"NAME", L"no number of a system");
    set(L"ORVZ_SYSTEM_-1", L"NAME", L"nor this");
    CGisSystems& systems = *Manager().GetSystems();
    ASSERT_EQ(systems.GetCount(), 3);
    EXPECT_EQ(systems.UpgradeSystems(), 3);
    EXPECT_EQ(systems.UpgradeSystems(), 0);
    EXPECT_EQ(systems.GetSystemById(12)->GetSystemName().Str(), L"water (2)");
    EXPECT_EQ(systems.GetSystemById(20)->GetSystemName().Str(), L"System 20");
    EXPECT_EQ(systems.GetSystemById(20)->GetGuid().Str(), L"ABC");
    EXPECT_FALSE(systems.GetSystemById(3)->GetGuid().IsEmpty());
    EXPECT_EQ(MakeSystem(L"new").GetSystemId(), 21);
}

TEST_F(SystemsInDrawingTest, ANodeMayBelongToSeveralSystems) {
    CGisSystem& sewer = MakeSystem(L"Sewer", TopologyLine, 2);
    CGisSystem& storm = MakeSystem(L"Storm", TopologyLine, 3);
    const AcDbObjectId shared = Node(sewer, "M", 5, 5);
    const AcDbObjectId own = Node(storm, "S");
    EXPECT_FALSE(Storage().GetNodeById(shared).IsMultiSystem());
    Storage().AddSection(storm, {"d", {own}, {shared}});
    EXPECT_TRUE(Storage().GetNodeById(shared).IsMultiSystem());
    EXPECT_EQ(Storage().GetNodeById(shared).GetSystems(),
              (std::vector<int>{sewer.GetSystemId(), storm.GetSystemId()}));
    EXPECT_EQ(Storage().GetSystemNodes(storm.GetSystemId()),
              (std::vector<AcDbObjectId>{shared, own}));
    EXPECT_EQ(Count(storm, System::StatisticNodes), 2);
    Manager().DeleteSystem(&sewer);
    const CNode node = Storage().GetNodeById(shared);
    ASSERT_TRUE(node);
    EXPECT_EQ(node.GetSystem(), &storm);
    EXPECT_FALSE(node.IsMultiSystem());
    EXPECT_EQ(node.GetExtents().minX, 5);
    EXPECT_EQ(static_cast<const AcDbEntity*>(Database().peek(shared))->layer(), L"Storm nodes");
    EXPECT_EQ(Storage().SetSystems(shared, {}), 0);
}

TEST_F(SystemsInDrawingTest, SchemesStandInTheAuxiliaryTopology) {
    CGisSystem& scheme = MakeSystem(L"Scheme", TopologyScheme, 1);
    CTopologyStorage& aux = *CTopologyMultiStorage::Instance()->GetAuxTopology();
    EXPECT_TRUE(Node(scheme, "A").isNull()) << "it is not the main topology's";
    const AcDbObjectId id = aux.AddNode(scheme, {"A", {1, 1}});
    EXPECT_TRUE(aux.GetNodeById(id));
    EXPECT_FALSE(Storage().GetNodeById(id));
    EXPECT_EQ(aux.GetNodeVector().size(), 1U);
    EXPECT_TRUE(Storage().GetNodeVector().empty());
    EXPECT_EQ(Count(scheme, System::StatisticNodes), 1);
    Manager().DeleteSystem(&scheme);
    EXPECT_TRUE(aux.GetNodeVector().empty());
    EXPECT_TRUE(Database().peek(id)->isErased());
}

TEST_F(SystemsInDrawingTest, WhatOtherCodeDoesToEntitiesCountsAtOnce) {
    CGisSystem& system = MakeSystem(L"Water");
    const AcDbObjectId a = Node(system, "A");
    const AcDbObjectId b = Node(system, "B", 10, 0);
    const AcDbObjectId s = Storage().AddSection(system, {"S", {a}, {b}});
    EXPECT_EQ(Storage().FindNodeByName(system.GetSystemId(), "B").GetObjectId(), b);

    AcDbEntity& renamed = Open(b);
    renamed.setAttribute(AcDbIntern("NAME"), "C");
    static_cast<AcDbPoint&>(renamed).setPosition({0, 7});
    renamed.close();
    EXPECT_FALSE(Storage().FindNodeByName(system.GetSystemId(), "B"));
    EXPECT_EQ(Storage().FindNodeByName(system.GetSystemId(), "C").GetObjectId(), b);
    EXPECT_EQ(Storage().GetSectionById(s).GetDrawnLength(), 7);
    EXPECT_EQ(Selection::CNodeIndex::Instance()->GetNearestNode(0, 7, 0), b);

    AcDbEntity& erased = Open(b);
    erased.erase();
    erased.close();
    EXPECT_TRUE(Storage().GetSectionById(s).GetEndNodeId().isNull());
    EXPECT_EQ(Storage().GetNodeVector().size(), 1U);
    Database().undo().undo();
    EXPECT_EQ(Storage().GetSectionById(s).GetEndNodeId(), b);
    EXPECT_EQ(Storage().GetNodeVector()[1].GetObjectId(), b);

    AcDbEntity& leaving = Open(a);
    leaving.removeAttribute(AcDbIntern("SYSTEMID"));
    leaving.close();
    EXPECT_FALSE(Storage().GetNodeById(a));
    EXPECT_EQ(Storage().GetNodeVector().size(), 1U);

    auto stranger = std::make_unique<AcDbPoint>(AcGePoint3d{1, 1});
    stranger->setAttribute(AcDbIntern("SYSTEMID"), 99); // a system that does not exist here
    const AcDbObjectId free = Database().appendEntity(std::move(stranger));
    EXPECT_FALSE(Storage().GetNodeById(free));
    EXPECT_NE(Selection::CNodeIndex::Instance()->GetNodeById(free), nullptr);
    EXPECT_EQ(Selection::CNodeIndex::Instance()->GetNodeById(s), nullptr);
}

TEST_F(SystemsInDrawingTest, SectionsWithNodesThatAreNowhereKeepTheirVertices) {
    constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
    CGisSystem& system = MakeSystem(L"Water");
    const AcDbObjectId placed = Node(system, "A");
    const AcDbObjectId nowhere = Node(system, "B", kNowhere, kNowhere);
    const Point vertices[] = {{1, 0}, {2, 0}};
    for (const auto& [start, end] :
         {std::pair(placed, nowhere), {nowhere, placed}, {nowhere, nowhere}, {placed, placed}}) {
        const CSection section =
            Storage().GetSectionById(Storage().AddSection(system, {"", {start}, {end}, vertices}));
        ASSERT_EQ(section.GetInnerVertices().size(), 2U);
        EXPECT_EQ(section.GetInnerVertices()[0].x, 1);
    }
}

TEST_F(SystemsInDrawingTest, StatisticsAreThoseOfTheKindOfSystem) {
    using namespace System;
    CGisSystem& net = MakeSystem(L"Net");
    // A triangle with a tail of 5, and an isolated node.
    const AcDbObjectId ids[] = {Node(net, "a"), Node(net, "b", 3, 0), Node(net, "c", 3, 4),
                                Node(net, "d", 3, 9), Node(net, "e", 50, 50)};
    for (const auto& [from, to] : {std::pair(0, 1), {1, 2}, {2, 0}, {2, 3}}) {
        Storage().AddSection(net, {"", {ids[from]}, {ids[to]}});
    }
    const std::pair<enmStatistic, int> expected[] = {
        {StatisticSections, 4},     {StatisticNodes, 5},       {StatisticEndNodes, 1},
        {StatisticThroughNodes, 2}, {StatisticBranchNodes, 1}, {StatisticIsolatedNodes, 1},
        {StatisticLoops, 1},        {StatisticParts, 2},       {StatisticLength, 17},
        {StatisticPolygons, -1},    {StatisticAlignments, -1}, {StatisticLongitudinalSections, -1}};
    for (const auto& [statistic, value] : expected) {
        EXPECT_EQ(Count(net, statistic), value) << statistic;
    }
    EXPECT_EQ(Count(net, static_cast<enmStatistic>(99)), -1);

    CGisSystem& parcels = MakeSystem(L"Parcels", TopologyPolygon, 0);
    const AcDbMPolygon::Ring rings[] = {{{{0, 0}, {4, 0}, {4, 4}, {0, 4}}},
                                        {{{1, 1}, {2, 1}, {2, 2}, {1, 2}}, true}};
    const AcDbObjectId holed = Storage().AddPolygon(parcels, {"P", rings});
    EXPECT_EQ(Count(parcels, StatisticPolygons), 1);
    EXPECT_EQ(Count(parcels, StatisticPolygonNodes), 8);
    EXPECT_EQ(Count(parcels, StatisticArea), 15);
    EXPECT_EQ(Count(parcels, StatisticNodes), -1);
    Selection::CPolygonIndex& index = *Selection::CPolygonIndex::Instance();
    EXPECT_TRUE(index.GetPolygonsAt(1.5, 1.5).empty());
    EXPECT_EQ(index.GetPolygonsAt(3, 3), (std::vector<AcDbObjectId>{holed}));
    EXPECT_EQ(Count(net, StatisticNodes), 5);

    CGisSystem& road = MakeSystem(L"Road", TopologyLine, kFunctionAlignment);
    Node(road, "p");
    EXPECT_EQ(Count(road, StatisticAlignments), 1);
    EXPECT_EQ(Count(road, StatisticMainPoints), 1);
    EXPECT_EQ(Count(road, StatisticCrossSections), -1);
}

TEST_F(SystemsInDrawingTest, AttributesWithNamesOfOurOwnStepAside) {
    CGisSystem& system = MakeSystem(L"Water");
    const AttributeData attributes[] = {{"SYSTEMID", 77}, {"NAME", "theirs"}, {"depth", 2}};
    const CNode node =
        Storage().GetNodeById(Storage().AddNode(system, {"ours", {}, "", attributes}));
    EXPECT_EQ(node.GetSystem(), &system);
    EXPECT_EQ(node.GetNameUtf8(), "ours");
    EXPECT_EQ(node.GetAttribute(AcDbIntern("SYSTEMID_")).asInteger(), 77);
    EXPECT_EQ(node.GetAttribute(AcDbIntern("NAME_")).asText(), "theirs");
    EXPECT_EQ(node.GetAttributes().size(), 3U);
}
