// Commands on configurations and systems.
#include "tests/plugins/repository/Executors.h"

TEST_F(Executors, AQueryIsAddedRunEditedAndUndone) {
    CWsTreeItemData folder = Node(L"QUERY", Workspace::WsItemSystemRepository, &m_system);
    Counter refreshes(L"REFRESH_CHILDREN");
    const CString guid =
        Base(L"ADD_QUERY", {L" Thick ", L"section", L"all", L"diameter >= 300", L""}, &folder);
    ASSERT_TRUE(InSystem(L"QUERY")->GetItem(guid));
    EXPECT_EQ(refreshes.count, 1);
    EXPECT_EQ(refreshes.pLast, &m_system);

    CWsTreeItemData item = SystemItem(L"QUERY", guid);
    Counter selections(L"SELECTION_COMPLETED");
    EXPECT_EQ(Run(L"RUN_QUERY", &item), 1);
    EXPECT_EQ(selections.count, 1);
    EXPECT_NE(Host().TakeOutput().find("Thick: 1 entities of Town"), std::string::npos);
    EXPECT_EQ(
        Base(L"EDIT_QUERY", {L"", L"any", L"-", L"KIND = tank", L"DIAMETER < 300", L""}, &item),
        guid);
    EXPECT_EQ(Run(L"DBLCLICK_QUERY", &item), 1);
    EXPECT_TRUE(Undo().undo());
    EXPECT_TRUE(Undo().undo());
    EXPECT_FALSE(InSystem(L"QUERY")->GetItem(guid));
    EXPECT_EQ(Run(L"RUN_QUERY", &item), -1) << "the item was deleted, but not its node";
}

TEST_F(Executors, WhatMakesNoSenseIsRefusedAndNothingChanges) {
    CWsTreeItemData query = SystemItem(L"QUERY");
    CWsTreeItemData theme = SystemItem(L"THEME", {}, EntitySection);
    CWsTreeItemData label = SystemItem(L"LABEL", {}, EntityNode);
    struct {
        const wchar_t* id;
        CWsTreeItemData* pNode;
        std::initializer_list<const wchar_t*> answers;
        const char* message;
    } const cases[] = {
        {L"ADD_QUERY", &query, {kEscape}, ""},
        {L"ADD_QUERY", &query, {L""}, ""},
        {L"ADD_QUERY", &query, {L"x", L"pipes"}, "\"pipes\" is not one of"},
        {L"ADD_QUERY", &query, {L"x", L"all", L"all", L"DIAMETER"}, "is not a condition"},
        {L"ADD_QUERY", &query, {L"x", L"all", L"all", L"A = 1", kEscape}, ""},
        {L"ADD_THEME_2", &theme, {L"x", L"ranges", L"DIAMETER", L"1,2"}, "not a list of numbers"},
        {L"ADD_THEME_2", &theme, {L"x", L"ranges", L"DIAMETER", L"2 1", L""}, "ascending order"},
        {L"ADD_THEME_2", &theme, {L"x", L"ranges", L"DIAMETER", L"", L"99", L""}, "from 1 to 12"},
        {L"ADD_THEME_2", &theme, {L"x", L"unique", L"DIAMETER", L"1 300"}, "from 1 to 255"},
        {L"ADD_LABEL_1", &label, {L"x", L"{NAME"}, "unmatched brace"},
        {L"ADD_LABEL_1", &label, {L"x", L"", L"-3"}, "is not a valid text height"},
        {L"DEL_QUERY", &query, {L"nothing"}, "There is no configuration \"nothing\"."},
        {L"RPODROP_QUERY", &query, {}, "dropped item cannot be used"},
        {L"ADD_QUERY", &query, {L"x", L"all", L"all", L"DIAMETER != 300"}, "is not a condition"},
        {L"ADD_UNKNOWN", &query, {}, "of the family \"UNKNOWN\""},
        {L"FLY_QUERY", &query, {}, "\"FLY_QUERY\" is not a command"},
    };
    for (const auto& test : cases) {
        EXPECT_TRUE(Base(test.id, test.answers, test.pNode).IsEmpty()) << WideToUtf8(test.id);
        EXPECT_NE(Host().TakeOutput().find(test.message), std::string::npos) << test.message;
    }
    EXPECT_EQ(Undo().undoName() ? *Undo().undoName() : CString(), L"")
        << "no undo step was created";
    for (const wchar_t* tag : {L"QUERY", L"THEME", L"LABEL"}) {
        EXPECT_TRUE(InSystem(tag)->GetItems().empty());
    }
}

TEST_F(Executors, AThemeColoursItsEntitiesOrThoseOfADroppedQuery) {
    CWsTreeItemData folder =
        Node(L"THEME", Workspace::WsItemSystemEntityFolder, &m_system, {}, EntitySection);
    const CString guid =
        Base(L"ADD_THEME_2", {L"D", L"ranges", L"diameter", L"200", L"3 1"}, &folder);
    CWsTreeItemData item = SystemItem(L"THEME", guid, EntitySection);
    EXPECT_EQ(Run(L"RUN_THEME_2", &item), 2);
    EXPECT_EQ(Color(m_thin), 3);
    EXPECT_EQ(Color(m_thick), 1);
    EXPECT_NE(Host().TakeOutput().find("       1    3  x < 200\n"), std::string::npos);
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Color(m_thin), kColorByLayer);

    Query::CQueryDefinition query(L"q", L"thick");
    query.SetConditions({{L"NAME", Query::Operator::Equal, L"S2"}});
    EXPECT_EQ(Run(L"QRYDROP_THEME_2", &item, &query), 1);
    EXPECT_EQ(Color(m_thin), kColorByLayer);
    EXPECT_EQ(Color(m_thick), 1);
    query.SetQueriedType(EntityNode);
    EXPECT_EQ(Run(L"QRYDROP_THEME_2", &item, &query), 0);

    item.SetSystem(&MakeSystem(L"Parcels", TopologyPolygon, 0));
    EXPECT_EQ(Run(L"RUN_THEME_2", &item), -1) << "it belongs to another system";
    CRepositoryFactory& themes = Family(L"THEME");
    EXPECT_TRUE(
        themes.GetSystemStore(item.GetSystem())->Add(*InSystem(L"THEME")->GetItem(guid)).IsEmpty());
    EXPECT_EQ(Run(L"RUN_THEME_2", &item), -1) << "polygons have no sections";
}

TEST_F(Executors, LabelsReplaceTheirOwnOlderOnesAlone) {
    Storage().AddText(m_system, {"by hand", {1, 1}});
    CWsTreeItemData nodes = SystemItem(L"LABEL", {}, EntityNode);
    CWsTreeItemData sections = SystemItem(L"LABEL", {}, EntitySection);
    nodes.SetGuid(Base(L"ADD_LABEL_1", {L"names", L"", L"2.5"}, &nodes));
    sections.SetGuid(Base(L"ADD_LABEL_2", {L"sizes", L"DN {DIAMETER}", L""}, &sections));
    EXPECT_EQ(Run(L"RUN_LABEL_1", &nodes), 3);
    EXPECT_EQ(Run(L"RUN_LABEL_2", &sections), 2);
    EXPECT_EQ(Labels(), "by hand A B C DN 100 DN 400 ");
    EXPECT_EQ(Storage().GetTextVector()[4].GetPosition().x, 5);
    EXPECT_EQ(Run(L"RUN_LABEL_1", &nodes), 3);
    EXPECT_EQ(Labels(), "by hand A B C DN 100 DN 400 ") << "correct labels stay untouched";
    EXPECT_EQ(Base(L"EDIT_LABEL_1", {L"{NAME}{ELEVATION}", L""}, &nodes), nodes.GetGuid());
    EXPECT_EQ(Run(L"RUN_LABEL_1", &nodes), 3);
    EXPECT_EQ(Labels(), "by hand B C DN 100 DN 400 A12.5 ");
    EXPECT_TRUE(Undo().undo());
    EXPECT_EQ(Labels(), "by hand A B C DN 100 DN 400 ");
}

TEST_F(Executors, AProfileFollowsTheShortestWay) {
    CWsTreeItemData node = SystemItem(L"LONGITUDINAL");
    node.SetGuid(Base(L"ADD_LONGITUDINAL", {L"P", L"C", L"-", L"elevation", L"-"}, &node));
    Host().Answer({L"A"});
    EXPECT_EQ(Run(L"RUN_LONGITUDINAL", &node), 2);
    EXPECT_NE(Host().TakeOutput().find("P, Town: C to A, length 30.00"), std::string::npos);
    Host().Answer({L"Z"});
    EXPECT_EQ(Run(L"RUN_LONGITUDINAL", &node), -1);
    EXPECT_NE(Host().TakeOutput().find("Town has no node \"Z\"."), std::string::npos);
}

TEST_F(Executors, ItemsMoveBetweenDrawingAndDisk) {
    CWsTreeItemData node = SystemItem(L"QUERY");
    const CString guid = Base(L"ADD_QUERY", {L"one", L"all", L"all", L""}, &node);
    node.SetGuid(guid);
    EXPECT_TRUE(Base(L"SENDTO_QUERY", {L"net"}, &node).IsEmpty());
    EXPECT_TRUE(Base(L"SENDTO_QUERY", {L"nowhere"}, &node).IsEmpty());
    node.SetS2D(1);
    EXPECT_EQ(Base(L"SENDTO_QUERY", {}, &node), guid);
    EXPECT_TRUE(Base(L"SENDTO_QUERY", {}, &node).IsEmpty()) << "an equal item already exists";

    ItemArgument typed = CString(L"renamed\nin place");
    WrapArgument(node, &typed);
    EXPECT_EQ(Base(L"REN_QUERY", {}, &node), guid);
    EXPECT_EQ(InSystem(L"QUERY")->GetItem(guid)->GetName(), L"renamed in place");
    WrapArgument(node, nullptr);
    EXPECT_TRUE(Base(L"SENDTO_QUERY", {L"no"}, &node).IsEmpty());
    EXPECT_EQ(Base(L"SENDTO_QUERY", {L"yes"}, &node), guid);
    const auto disk = Family(L"QUERY").GetDiskStore();
    EXPECT_EQ(disk->GetItem(guid)->GetName(), L"renamed in place");
    EXPECT_TRUE(Host().Support().Has("repository/QUERY/" + WideToUtf8(guid.View()) + ".xml"));

    const CString copy = Base(L"COPY_QUERY", {L""}, &node);
    EXPECT_EQ(InSystem(L"QUERY")->GetItem(copy)->GetName(), L"renamed in place (2)");
    EXPECT_EQ(Base(L"DEL_QUERY", {L"yeah"}, &node), L"") << "that is not a yes";
    EXPECT_EQ(Base(L"DEL_QUERY", {L"Yes"}, &node), guid);

    // From the disk tree onto a folder of the system, and onto the system itself.
    CWsTreeItemData dragged =
        Node(L"QUERY", Workspace::WsItemRepositoryConfiguration, nullptr, guid);
    EXPECT_EQ(Run(L"RUN_QUERY", &dragged), 5) << "on the active system";
    ItemArgument dropped = std::make_shared<const CWsTreeItemData>(dragged);
    CWsTreeItemData target = Node(L"QUERY", Workspace::WsItemSystemRepository, &m_system);
    WrapArgument(target, &dropped);
    EXPECT_EQ(Base(L"RPODROP_QUERY", {}, &target), guid);
    System::CGisSystem& other = MakeSystem(L"Other");
    CWsTreeItemData system = Node(L"", Workspace::WsItemSystem, &other);
    WrapArgument(system, &dropped);
    EXPECT_EQ(System(L"SYSTEM_DROPITEM", {}, &system), 1);
    EXPECT_EQ(Family(L"QUERY").GetSystemStore(&other)->GetItems().size(), 1U);
}

TEST_F(Executors, OfTwoPeoplesChangesTheUserChooses) {
    Workspace::CWsManager::Instance(); // reads the folders when it comes up
    const auto store = Family(L"QUERY").GetDiskStore();
    const std::string file = "repository/QUERY/Q1.xml";
    const auto theirs = [&] {
        Query::CQueryDefinition item(L"Q1", L"theirs");
        Host().Support().Write(file, WideToUtf8(item.GetXML().View()));
    };
    const auto deleted = [&] { std::filesystem::remove(Host().Support() / file); };
    struct {
        const wchar_t* id;
        std::function<void()> meanwhile;
        std::initializer_list<const wchar_t*> answers;
        const char* names; ///< of all items afterwards
        const char* output;
    } const cases[] = {
        {L"REN_QUERY",
         theirs,
         {L"mine", L"Mine"},
         "mine ",
         "\"shared\" has meanwhile been changed"},
        {L"REN_QUERY", theirs, {L"mine", L"t"}, "theirs ", "stays as the other user left it"},
        {L"REN_QUERY", theirs, {L"mine", L""}, "mine theirs ", "[Mine/Theirs/Both] <Both>"},
        {L"REN_QUERY", theirs, {L"Theirs", L"both"}, "theirs Theirs (2) ", ""},
        {L"REN_QUERY", theirs, {L"theirs"}, "theirs ", "theirs was changed"},
        {L"REN_QUERY", theirs, {L"mine", kEscape}, "theirs ", ""},
        {L"REN_QUERY", deleted, {L"mine", L""}, "mine ", "has meanwhile been deleted"},
        {L"REN_QUERY", deleted, {L"mine", L"_Theirs"}, "", ""},
        {L"DEL_QUERY", theirs, {L"yes", L"no"}, "theirs ", "Delete it all the same?"},
        {L"DEL_QUERY", theirs, {L"yes", L"yes"}, "", ""},
    };
    CWsTreeItemData node = Node(L"QUERY", Workspace::WsItemRepositoryConfiguration, nullptr, L"Q1");
    for (const auto& test : cases) {
        std::filesystem::remove_all(Host().Support() / "repository/QUERY");
        EXPECT_TRUE(store->Add(Query::CQueryDefinition(L"Q1", L"shared")).IsEmpty());
        test.meanwhile();
        Base(test.id, test.answers, &node);
        Family(L"QUERY").LookForChanges();
        std::string names;
        for (const RepositoryItemHead& head : store->GetHeads()) {
            names += WideToUtf8(head.name.View()) + " ";
        }
        const std::string output = Host().TakeOutput();
        EXPECT_EQ(names, test.names) << output;
        EXPECT_NE(output.find(test.output), std::string::npos) << output;
    }
}

TEST_F(Executors, ConfigurationsAreSavedWithTheDrawing) {
    CWsTreeItemData node = SystemItem(L"LABEL", {}, EntityNode);
    const CString guid = Base(L"ADD_LABEL_1", {L"names", L"{NAME}!", L"1.5"}, &node);
    node.SetGuid(guid);
    EXPECT_EQ(Base(L"SETASDEFAULT_LABEL_1", {}, &node), guid);
    EXPECT_EQ(Run(L"RUN_LABEL_1", &node), 3);
    const CString path = Host().Support().Wide("town.gpkg");
    ASSERT_TRUE(acDocManagerPtr()->saveDocumentAs(acDocManagerPtr()->curDocument(), path, {}).ok());
    acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
    AcApDocument* pDoc = nullptr;
    ASSERT_TRUE(acDocManagerPtr()->openDocument(path, {}, pDoc).ok());
    System::CGisSystem* const pSystem =
        System::CSystemManager::Instance()->GetSystemByName(L"Town");
    ASSERT_TRUE(pSystem);
    const auto store = Family(L"LABEL").GetSystemStore(pSystem);
    const auto label = boost::dynamic_pointer_cast<LabelDefinition>(store->GetItem(guid));
    ASSERT_TRUE(label);
    EXPECT_EQ(label->pattern, L"{NAME}!");
    EXPECT_EQ(label->height, 1.5);
    EXPECT_EQ(label->GetEntityType(), EntityNode);
    EXPECT_EQ(store->GetDefault(EntityNode), guid);
    node.SetSystem(pSystem);
    EXPECT_EQ(Run(L"RUN_LABEL_1", &node), 3);
    EXPECT_EQ(Labels(), "A! B! C! ") << "those from the file were replaced";
}

TEST_F(Executors, WithoutANodeTheNameIsAskedForAndFoundOnDisk) {
    const Query::CQueryDefinition query(L"Q1", L"On disk");
    EXPECT_TRUE(Family(L"QUERY").GetDiskStore()->Add(query).IsEmpty());
    Host().Answer({L"on DISK"});
    EXPECT_EQ(Run(L"RUN_QUERY", nullptr), 5);
    System::CSystemManager::Instance()->SetSystemActive(nullptr);
    Host().Answer({L"on disk"});
    EXPECT_EQ(Run(L"RUN_QUERY", nullptr), -1);
    EXPECT_NE(Host().TakeOutput().find("No system is active."), std::string::npos);
    EXPECT_EQ(Base(L"DEL_QUERY", {L"on disk", L"yes"}, nullptr), L"Q1");
}

TEST_F(Executors, SystemsAreMadeChangedAndRemoved) {
    System::CSystemManager& systems = *System::CSystemManager::Instance();
    EXPECT_EQ(System(L"SYSTEM_ADD", {L"Lots", L"2"}, nullptr), 1);
    EXPECT_EQ(System(L"SYSTEM_ADD", {L"Sewer", L"1", L"2"}, nullptr), 1);
    EXPECT_EQ(System(L"SYSTEM_ADD", {L"town", L"", L""}, nullptr), 0) << "the name is taken";
    EXPECT_EQ(System(L"SYSTEM_ADD", {L"x", L"77"}, nullptr), 0);
    System::CGisSystem* const pSewer = systems.GetSystemByName(L"Sewer");
    ASSERT_TRUE(pSewer);
    EXPECT_EQ(pSewer->GetSystemFunction(), 2);
    CWsTreeItemData node = Node(L"", Workspace::WsItemSystem, pSewer);
    EXPECT_EQ(System(L"SYSTEM_DBLCLICK", {}, &node), 1);
    EXPECT_EQ(systems.GetActiveSystem(), pSewer);
    EXPECT_EQ(System(L"SYSTEM_TOGGLEVISIBILITY", {}, &node), 1);
    EXPECT_FALSE(pSewer->GetVisibility());
    EXPECT_EQ(System(L"SYSTEM_EDIT", {L"Lots"}, &node), 0);
    EXPECT_EQ(System(L"SYSTEM_EDIT", {L"Drains"}, &node), 1);
    EXPECT_EQ(System(L"SYSTEM_DEL", {L"no"}, &node), 0);
    EXPECT_EQ(System(L"SYSTEM_DEL", {L"yes"}, &node), 1);
    EXPECT_FALSE(systems.GetSystemByName(L"Drains"));
    EXPECT_TRUE(Undo().undo());
    EXPECT_TRUE(systems.GetSystemByName(L"Drains"));
    EXPECT_EQ(System(L"SYSTEM_DBLCLICK", {L"nobody"}, nullptr), 0);
    EXPECT_EQ(System(L"SYSTEM_DBLCLICK", {L"lots"}, nullptr), 1);
    EXPECT_EQ(System(L"SILENT_SYSTEM_DEL", {}, nullptr), 1);
    EXPECT_FALSE(systems.GetSystemByName(L"Lots"));
    EXPECT_EQ(System(L"SILENT_SYSTEM_DEL", {}, nullptr), 0) << "no system is active";
}
