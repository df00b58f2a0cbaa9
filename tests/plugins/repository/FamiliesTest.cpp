// Rules for families of every kind, including one from another plug-in.
#include "plugins/repository/RepositoryDefaults.h"
#include "tests/plugins/repository/Executors.h"
#include "workspacecore/core/WsManager.h"

TEST_F(Executors, NothingComesToStandWhereItsTopologyIsMissing) {
    System::CGisSystem& lots = MakeSystem(L"Lots", TopologyPolygon, 0);
    CWsTreeItemData folder = Node(L"", Workspace::WsItemSystem, &lots);
    struct {
        const wchar_t* tag;
        const wchar_t* add;
        std::vector<const wchar_t*> answers;
        const wchar_t* send;
        const wchar_t* drop;
        enmEntityType type;
        int expected;
    } const cases[] = {
        {L"THEME",
         L"ADD_THEME_2",
         {L"t", L"none"},
         L"SENDTO_THEME_2",
         L"RPODROP_THEME_2",
         EntitySection,
         0},
        {L"LONGITUDINAL",
         L"ADD_LONGITUDINAL",
         {L"p", L"-", L"-", L"ELEVATION", L"-"},
         L"SENDTO_LONGITUDINAL",
         L"RPODROP_LONGITUDINAL",
         EntityNone,
         0},
        {L"QUERY",
         L"ADD_QUERY",
         {L"q", L"all", L"all", L""},
         L"SENDTO_QUERY",
         L"RPODROP_QUERY",
         EntityNone,
         1},
    };
    for (const auto& test : cases) {
        CWsTreeItemData item = SystemItem(test.tag, {}, test.type);
        for (const wchar_t* answer : test.answers) {
            Host().Answer({answer});
        }
        item.SetGuid(Base(test.add, {}, &item));
        ASSERT_FALSE(item.GetGuid().IsEmpty()) << Host().Output();
        Host().TakeOutput();
        EXPECT_EQ(!Base(test.send, {L"Lots"}, &item).IsEmpty(), test.expected);
        EXPECT_EQ(Host().TakeOutput().find("Lots contains no entities of this kind") !=
                      std::string::npos,
                  !test.expected);
        CWsTreeItemData target = Node(test.tag, Workspace::WsItemSystemRepository, &lots);
        for (CWsTreeItemData* pTarget : {&target, &folder}) {
            InSystem(test.tag)->Rename(item.GetGuid(), pTarget == &target ? L"one" : L"two");
            Host().Answer(test.expected ? std::initializer_list<const wchar_t*>{L"yes"}
                                        : std::initializer_list<const wchar_t*>{});
            ItemArgument dropped = std::make_shared<const CWsTreeItemData>(item);
            WrapArgument(*pTarget, &dropped);
            const int done = pTarget == &target ? !Base(test.drop, {}, pTarget).IsEmpty()
                                                : System(L"SYSTEM_DROPITEM", {}, pTarget);
            EXPECT_EQ(done, test.expected) << WideToUtf8(test.drop);
        }
        EXPECT_EQ(Family(test.tag).GetSystemStore(&lots)->GetHeads().size(), test.expected);
        CWsTreeItemData there = Node(test.tag, Workspace::WsItemSystemRepository, &lots);
        if (!test.expected) {
            EXPECT_TRUE(Base(test.add, {}, &there).IsEmpty()) << "not even the name is asked for";
        }
    }
}

TEST_F(Executors, TheEntityTypeOfTheCommandDecidesBetweenEqualNames) {
    CWsTreeItemData nodes = SystemItem(L"THEME", {}, EntityNode);
    CWsTreeItemData sections = SystemItem(L"THEME", {}, EntitySection);
    const CString ofNodes = Base(L"ADD_THEME_1", {L"Same", L"none"}, &nodes);
    const CString ofSections = Base(L"ADD_THEME_2", {L"Same", L"none"}, &sections);
    Host().Answer({L"same"});
    EXPECT_EQ(Run(L"RUN_THEME_2", nullptr), 2);
    Host().Answer({L"same"});
    EXPECT_EQ(Run(L"RUN_THEME_1", nullptr), 3);
    sections.SetGuid(ofNodes);
    EXPECT_EQ(Run(L"RUN_THEME_2", &sections), -1) << "the node of another kind";
    EXPECT_EQ(Base(L"DEL_THEME_2", {L"Same", L"yes"}, nullptr), ofSections);
    EXPECT_EQ(Base(L"DEL_THEME_2", {L"Same"}, nullptr), L"");
    EXPECT_EQ(Base(L"DEL_THEME_1", {L"Same", L"yes"}, nullptr), ofNodes);
}

TEST_F(Executors, DefaultsAreShownWhenTheDrawingIsOpened) {
    CWsTreeItemData theme = SystemItem(L"THEME", {}, EntitySection);
    CWsTreeItemData label = SystemItem(L"LABEL", {}, EntityNode);
    theme.SetGuid(Base(L"ADD_THEME_2", {L"D", L"ranges", L"DIAMETER", L"200", L"3 1"}, &theme));
    label.SetGuid(Base(L"ADD_LABEL_1", {L"names", L"{NAME}", L"2"}, &label));
    EXPECT_FALSE(Base(L"SETASDEFAULT_THEME_2", {}, &theme).IsEmpty());
    EXPECT_FALSE(Base(L"SETASDEFAULT_LABEL_1", {}, &label).IsEmpty());
    EXPECT_EQ(Labels(), "") << "nothing is shown before the drawing is opened";
    const CString path = Host().Support().Wide("town.gpkg");
    DefaultsAtOpening defaults;
    Workspace::CWsManager::Instance()->RegisterWsListener(&defaults);
    const auto reopen = [&](bool save) {
        AcApDocument* pDoc = acDocManagerPtr()->curDocument();
        if (save) {
            ASSERT_TRUE(acDocManagerPtr()->saveDocumentAs(pDoc, path, {}).ok());
        }
        acDocManagerPtr()->closeDocument(pDoc);
        Host().TakeOutput();
        ASSERT_TRUE(acDocManagerPtr()->openDocument(path, {}, pDoc).ok());
    };
    reopen(true);
    EXPECT_EQ(Host().TakeOutput(), "Town: the default \"D\" is shown.\n"
                                   "Town: the default \"names\" is shown.\n");
    EXPECT_EQ(Labels(), "A B C ");
    AcApDocument* const pDoc = acDocManagerPtr()->curDocument();
    EXPECT_TRUE(pDoc->isModified());
    reopen(true);
    EXPECT_EQ(Labels(), "A B C ");
    EXPECT_FALSE(acDocManagerPtr()->curDocument()->isModified()) << "already shown";
    EXPECT_FALSE(acDocManagerPtr()->curDocument()->database()->undo().undoName());
    acDocManagerPtr()->newDocument(L"b.dwg");
    Host().TakeOutput();
    acDocManagerPtr()->setCurDocument(acDocManagerPtr()->documents()[0].get());
    EXPECT_EQ(Host().TakeOutput(), "") << "once";
    Workspace::CWsManager::Instance()->UnregisterWsListener(&defaults);
}

TEST_F(Executors, AFamilyOfAnotherPluginTakesEveryCommand) {
    Workspace::CWsManager& workspace = *Workspace::CWsManager::Instance();
    workspace.RegisterBaseExecutor(&m_base);
    ASSERT_TRUE(workspace.PluginMgr()->LoadModule(L"" TESSALY_FIXTURES_DIR "/BringsFamily.arx"));
    // Without a tree: each command by its id, on an item given by name.
    struct {
        const wchar_t* id;
        std::initializer_list<const wchar_t*> answers;
        int number;
        const char* output;
    } const cases[] = {
        {L"ADD_NOTE_2", {L"old", L"Pipes of iron"}, -1, "old was added."},
        {L"ADD_NOTE_1", {L"old", L"Nodes"}, -1, "old was added."},
        {L"EDIT_NOTE_2", {L"old", L"Pipes of lead"}, -1, "old was changed."},
        {L"REN_NOTE_2", {L"old", L"lead"}, -1, "lead was changed."},
        {L"COPY_NOTE_2", {L"lead", L""}, -1, "lead (2) was added."},
        {L"RUN_NOTE_2", {L"LEAD"}, 2, "Note on Town: Pipes of lead\n"},
        {L"DBLCLICK_NOTE_1", {L"old"}, 3, "Note on Town: Nodes\n"},
        {L"SETASDEFAULT_NOTE_2", {L"lead"}, -1, "lead is the default now"},
        {L"SENDTO_NOTE_2", {L"lead", L"disk"}, -1, "lead was sent."},
        {L"DEL_NOTE_2", {L"lead (2)", L"yes"}, -1, "lead (2) was deleted."},
    };
    Workspace::CWsCommandManager& commands = *workspace.CmdMgr();
    for (const auto& test : cases) {
        Host().TakeOutput();
        Host().Answer(test.answers);
        const auto result = commands.Execute(test.id, nullptr, nullptr);
        EXPECT_TRUE(Host().AllAnswered());
        EXPECT_EQ(result->m_nStatus, 1) << WideToUtf8(test.id) << Host().Output();
        EXPECT_EQ(result->m_nNumber, test.number) << WideToUtf8(test.id);
        EXPECT_NE(Host().Output().find(test.output), std::string::npos) << Host().Output();
    }
    // Drops need nodes: the disk item on another system, a query on the item.
    const auto item = InSystem(L"NOTE")->GetItemByName(L"lead");
    ASSERT_TRUE(item);
    EXPECT_EQ(InSystem(L"NOTE")->GetDefault(EntitySection), item->GetGuid());
    System::CGisSystem& other = MakeSystem(L"Other");
    CWsTreeItemData dragged =
        Node(L"NOTE", Workspace::WsItemRepositoryConfiguration, nullptr, item->GetGuid());
    CWsTreeItemData target = Node(L"NOTE", Workspace::WsItemSystemEntityFolder, &other);
    ItemArgument dropped = std::make_shared<const CWsTreeItemData>(dragged);
    WrapArgument(target, &dropped);
    EXPECT_EQ(commands.Execute(L"RPODROP_NOTE_1", nullptr, &target)->m_nStatus, 0);
    EXPECT_EQ(commands.Execute(L"RPODROP_NOTE_2", nullptr, &target)->m_nStatus, 1);
    EXPECT_EQ(Family(L"NOTE").GetSystemStore(&other)->GetHeads(EntitySection).size(), 1U);
    Query::CQueryDefinition query(L"q", L"iron");
    CWsTreeItemData node = SystemItem(L"NOTE", item->GetGuid(), EntitySection);
    EXPECT_EQ(commands.Execute(L"QRYDROP_NOTE_2", &query, &node)->m_nNumber, 2);
    EXPECT_NE(Host().Output().find("Pipes of lead, for iron"), std::string::npos);
    EXPECT_EQ(commands.ExecuteExplicite(L"RUN_NOTE_2", item.get(), nullptr, nullptr)->m_nNumber, 2);
    EXPECT_EQ(commands.ExecuteExplicite(L"RUN_NOTE_2", &query, nullptr, nullptr)->m_nStatus, 0);
    EXPECT_NE(Host().Output().find("can only run configurations of its own family"),
              std::string::npos);
}
