// Storage of configurations: in folders, including damaged files, and in systems of a drawing.
#include <boost/make_shared.hpp>
#include <csignal>
#include <functional>
#include <sys/wait.h>

#include "platform/arx/DbUndoScopes.h"
#include "platform/win/FileLock.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/notification/Subscriber.h"
#include "siblings/giscore/query/QueryDefinition.h"
#include "siblings/giscore/repository/RepositoryFolder.h"
#include "siblings/giscore/repository/RepositoryItemFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/repository/RepositoryRecords.h"
#include "siblings/giscore/repository/StoredRepositoryFactory.h"
#include "siblings/giscore/systems/DrawingRecords.h"
#include "tests/support/TestDrawing.h"

using namespace Orvane;
using Query::CQueryDefinition;

namespace {

class QueryItems final : public CRepositoryItemFactory {
    boost::shared_ptr<CRepositoryItem> CreateItem(const wchar_t* guid,
                                                  const wchar_t* name) override {
        return boost::make_shared<CQueryDefinition>(guid, name);
    }
};

class CountedItems final : public CRepositoryItemFactory {
public:
    boost::shared_ptr<CRepositoryItem> CreateItem(const wchar_t* guid,
                                                  const wchar_t* name) override {
        ++count;
        return boost::make_shared<CQueryDefinition>(guid, name);
    }
    int count = 0;
};

/// Records the events of configurations.
class Events final : public System::ISystemEvents {
public:
    Events() { System::CGisEvents::Instance()->Register(this); }
    ~Events() { System::CGisEvents::Instance()->Unregister(this); }
    Events(const Events&) = delete;
    Events& operator=(const Events&) = delete;

    void OnNewConfigDefinitionAdded(System::CGisSystem* p, const wchar_t* tag,
                                    const wchar_t* guid) override {
        Note("added", p, tag, guid);
    }
    void OnBeforeConfigDefinitionDeleted(System::CGisSystem* p, const wchar_t* tag,
                                         const wchar_t* guid) override {
        Note("deleted", p, tag, guid);
    }
    void OnConfigDefinitionChanged(System::CGisSystem* p, const wchar_t* tag,
                                   const wchar_t* guid) override {
        Note("changed", p, tag, guid);
    }
    void OnConfigBecomeDefault(System::CGisSystem* p, const wchar_t* tag,
                               const wchar_t* guid) override {
        Note("default", p, tag, guid);
    }
    void OnSystemChanged(System::CGisSystem*) override { ++systemChanges; }
    std::string Take() { return std::exchange(m_text, {}); }
    int systemChanges = 0;

private:
    void Note(const char* what, const System::CGisSystem* pSystem, const CString& tag,
              const CString& guid) {
        m_text += std::string(what) + (pSystem ? " in " : " ") +
                  WideToUtf8((pSystem ? pSystem->GetSystemName() + L" " : CString()).View()) +
                  WideToUtf8((tag + L"/" + guid).View()) + "; ";
    }
    std::string m_text;
};

std::string Names(const std::vector<CRepositoryStore::ItemPtr>& items) {
    std::string text;
    for (const auto& item : items) {
        text += (text.empty() ? "" : ", ") + WideToUtf8(item->GetName().View());
    }
    return text;
}

std::string Problems() {
    std::string text;
    for (const CString& problem : CModuleConfiguration::Instance()->GetProblems()) {
        text += WideToUtf8(problem.View()) + "\n";
    }
    return text;
}

/// Counts how often trees were told to fill themselves again.
class Refreshes final : public Notification::CSubscriber {
public:
    Refreshes() {
        Notification::CNotificationFramework::Instance()
            ->GetPublisher(L"REFRESH_CHILDREN")
            ->RegisterSubscriber(this);
    }
    ~Refreshes() override { Notification::CNotificationFramework::UnregisterSubscriber(this); }
    Refreshes(const Refreshes&) = delete;
    Refreshes& operator=(const Refreshes&) = delete;
    void Update(Notification::CPublisher*, void*, void*) override { ++count; }
    int count = 0;
};

std::string QueryText(const std::string& guid, const std::string& name,
                      const std::string& rest = R"(of="2" match="all"/>)") {
    return R"(<item tag="QUERY" guid=")" + guid + R"(" name=")" + name + R"(" entityType="0" )" +
           rest;
}

class RepositoryStore : public TestDrawing {
protected:
    RepositoryStore() {
        CRepositoryManager::Instance()->RegisterRepositoryItemFactory(L"QUERY", &m_items);
        std::filesystem::create_directories(m_folder / "QUERY");
    }
    CRepositoryFolder Folder() const { return {L"QUERY", m_folder.Wide(""), L"test"}; }

    QueryItems m_items;
    TempFolder m_folder;
};

} // namespace

TEST_F(RepositoryStore, DamagedFilesAreSkippedWithAReason) {
    struct {
        const char* file;
        std::string content;
        const char* problem; ///< empty: it can be read
    } const cases[] = {
        {"A1.xml", QueryText("A1", "good"), ""},
        {"b2.xml", QueryText("B2", "also good"), ""},
        {"B2.xml", QueryText("b2", "twice"), ""},
        {"CUT.xml", QueryText("CUT", "x").substr(0, 40), "CUT.xml: line 1: "},
        {"EMPTY.xml", "", "EMPTY.xml: line 1: "},
        {"BIN.xml", std::string("\0\xff\xfe<", 4), "BIN.xml: line 1: "},
        {"ROOT.xml", R"(<query tag="QUERY" guid="ROOT" name="x"/>)", "its root is \"query\""},
        {"TAG.xml", R"(<item tag="THEME" guid="TAG" name="x"/>)", "to the family \"THEME\""},
        {"NAME.xml", QueryText("NAME", " "), "NAME.xml: it has no name"},
        {"OTHER.xml", QueryText("A1", "copied by hand"), "OTHER.xml: it has the GUID \"A1\""},
        {"OP.xml", QueryText("OP", "x", R"(of="2" match="all"><condition attribute="A"/></item>)"),
         "OP.xml: it has an invalid condition"},
        {"OF.xml", QueryText("OF", "x", R"(of="9999999999" match="all"/>)"),
         "OF.xml: the entity type to query is missing"},
        {"DTD.xml", "<!DOCTYPE item [<!ENTITY a \"b\">]>" + QueryText("DTD", "&a;"),
         "document type declarations are not allowed"},
        {"notes.txt", "x", "notes.txt: its file name is not a GUID"},
        {"A1.xml.new-77", "x", "A1.xml.new-77: its file name is not a GUID"},
        {"not a guid.xml", QueryText("x", "x"), "not a guid.xml: its file name is not a GUID"},
    };
    for (const auto& test : cases) {
        m_folder.Write(std::string("QUERY/") + test.file, test.content);
    }
    const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::minutes(1);
    std::filesystem::last_write_time(m_folder / "QUERY/A1.xml.new-77", longAgo);
    m_folder.Write("QUERY/A1.xml.new-88", "is just being written");
    m_folder.Write("QUERY/.nfs0001", "hidden");
    std::string deep = QueryText("DEEP", "x", R"(of="2" match="all">)");
    for (int i = 0; i < 100'000; ++i) {
        deep += "<a>";
    }
    m_folder.Write("QUERY/DEEP.xml", deep);
    std::filesystem::create_symlink("nowhere", m_folder / "QUERY/GONE.xml");

    const CRepositoryFolder store = Folder();
    EXPECT_EQ(Names(store.GetItems()), "good, twice") << "capital letters come first";
    const std::string problems = Problems();
    for (const auto& test : cases) {
        EXPECT_NE(problems.find(test.problem), std::string::npos) << test.file << "\n" << problems;
    }
    EXPECT_NE(problems.find("DEEP.xml: line 1: the elements are nested too deeply"),
              std::string::npos);
    EXPECT_NE(problems.find("GONE.xml: "), std::string::npos);
    EXPECT_EQ(problems.find("new-88"), std::string::npos);
    EXPECT_EQ(problems.find("nfs"), std::string::npos);
    EXPECT_NE(problems.find("b2.xml: another item has the same GUID"), std::string::npos);
    EXPECT_FALSE(store.GetItem(L"OTHER"));
    EXPECT_FALSE(store.GetItem(L"CUT"));
    EXPECT_FALSE(store.GetItem(L"../QUERY/A1"));
}

TEST_F(RepositoryStore, WhatIsWrittenComesBackWhateverItsTexts) {
    const wchar_t* const kHard = L"<\"&'> \x17E\x4E2D\x1F600 =3D \t";
    CRepositoryFolder store = Folder();
    CQueryDefinition query(L"Q1", L"x");
    query.SetName(CString(kHard) + L"end");
    query.SetQueriedType(EntitySection);
    query.SetMatchAny(true);
    query.SetConditions({{L"A & B", Query::Operator::Contains, CString(kHard) + L"\x1\xD800|"}});
    Events events;
    EXPECT_TRUE(store.Add(query).IsEmpty());
    EXPECT_EQ(events.Take(), "added QUERY/Q1; ");
    const auto again = boost::dynamic_pointer_cast<CQueryDefinition>(Folder().GetItem(L"Q1"));
    ASSERT_TRUE(again);
    EXPECT_EQ(again->GetName(), query.GetName());
    EXPECT_EQ(again->GetQueriedType(), EntitySection);
    EXPECT_TRUE(again->GetMatchAny());
    ASSERT_EQ(again->GetConditions().size(), 1U);
    EXPECT_EQ(again->GetConditions()[0].value, CString(kHard) + L"|");
}

TEST_F(RepositoryStore, ChangesOfAFolder) {
    CRepositoryFolder store = Folder();
    const auto add = [&](const wchar_t* guid, const wchar_t* name) {
        return store.Add(CQueryDefinition(guid, name)).IsEmpty();
    };
    EXPECT_TRUE(add(L"Q1", L"one"));
    EXPECT_TRUE(add(L"Q2", L"two"));
    EXPECT_FALSE(add(L"q1", L"three")) << "the GUID is taken";
    EXPECT_FALSE(add(L"Q3", L"ONE")) << "the name is taken";
    EXPECT_FALSE(add(L"Q3", L"")) << "there is no name";
    EXPECT_FALSE(add(L"../Q3", L"three")) << "a GUID that leads out of the folder";
    Events events;
    EXPECT_FALSE(store.Rename(L"Q2", L"one").IsEmpty());
    EXPECT_TRUE(store.Rename(L"Q2", L"TWO").IsEmpty());
    EXPECT_FALSE(store.Rename(L"Q9", L"nine").IsEmpty());
    EXPECT_FALSE(store.Replace(CQueryDefinition(L"Q9", L"nine")).IsEmpty());
    EXPECT_FALSE(store.SetDefault(L"Q1").IsEmpty()) << "folders have no default";
    EXPECT_TRUE(store.Remove(L"Q1").IsEmpty());
    EXPECT_FALSE(store.Remove(L"Q1").IsEmpty());
    EXPECT_EQ(events.Take(), "changed QUERY/Q2; deleted QUERY/Q1; ");
    EXPECT_EQ(Names(Folder().GetItems()), "TWO");
    EXPECT_EQ(FreeItemName(store, EntityNone, L"two"), L"two (2)");

    std::filesystem::remove_all(m_folder / "QUERY");
    m_folder.Write("QUERY", "a file in the place of the folder");
    EXPECT_FALSE(add(L"Q4", L"four"));
    EXPECT_EQ(Names(store.GetItems()), "") << "neither what was there nor what was not written";
}

TEST_F(RepositoryStore, WhatOthersChangedSinceItWasReadIsNotOverwritten) {
    namespace fs = std::filesystem;
    const std::string original = QueryText("A1", "shared");
    const fs::path file = m_folder / "QUERY/a1.xml"; // its name differs from the GUID in case
    struct {
        const char* what;
        std::function<void()> meanwhile;
        const char* conflict; ///< of replacing
        std::string after;    ///< what replacing leaves behind
        bool isRemoved;
    } const cases[] = {
        {"nothing", [] {}, "", "mine", true},
        {"the same bytes again", [&] { m_folder.Write("QUERY/a1.xml", original); }, "", "mine",
         true},
        {"changed", [&] { m_folder.Write("QUERY/a1.xml", QueryText("A1", "theirs")); },
         "has been changed by ", "theirs", true},
        {"damaged", [&] { m_folder.Write("QUERY/a1.xml", ""); }, "has been changed by ", "", false},
        {"deleted", [&] { fs::remove(file); }, "no longer exists", "", false},
        {"write-protected", [&] { fs::permissions(file, fs::perms::owner_read); },
         "it is write-protected", "shared", false},
    };
    for (const auto& test : cases) {
        for (const bool removes : {false, true}) {
            fs::remove(file);
            m_folder.Write("QUERY/a1.xml", original);
            fs::permissions(file, fs::perms::owner_all);
            CRepositoryFolder store = Folder();
            const auto item = store.GetItem(L"A1");
            ASSERT_TRUE(item);
            test.meanwhile();
            if (removes) {
                EXPECT_EQ(store.Remove(L"A1").IsEmpty(), test.isRemoved) << test.what;
                EXPECT_EQ(fs::exists(file), !test.isRemoved && test.what != std::string("deleted"))
                    << test.what;
                continue;
            }
            item->SetName(L"mine");
            const std::string reason = WideToUtf8(store.Replace(*item).View());
            EXPECT_NE(reason.find(test.conflict), std::string::npos) << test.what << reason;
            EXPECT_EQ(reason.empty(), *test.conflict == 0) << test.what << reason;
            EXPECT_EQ(Names(Folder().GetItems()), test.after) << test.what;
            EXPECT_FALSE(m_folder.Has("QUERY/A1.xml")) << test.what;
            if (reason.empty()) {
                item->SetName(L"mine again");
                EXPECT_TRUE(store.Replace(*item).IsEmpty()) << "the change was our own";
            }
        }
    }
}

TEST_F(RepositoryStore, NoChangeOfSeveralProgramsIsLost) {
    constexpr int kPrograms = 3;
    constexpr int kChanges = 10;
    m_folder.Write("QUERY/A1.xml", QueryText("A1", "x"));
    for (int program = 0; program < kPrograms; ++program) {
        if (fork() == 0) {
            CRepositoryFolder store = Folder();
            for (int change = 0; change < kChanges;) {
                store.Reload();
                const auto item = store.GetItem(L"A1");
                CString name = item ? item->GetName() : CString();
                name.AppendFormat(L" %d-%d", program, change);
                if (item) {
                    item->SetName(name);
                    change += store.Replace(*item).IsEmpty() ? 1 : 0;
                }
            }
            _exit(0);
        }
    }
    while (wait(nullptr) > 0) {
    }
    const CString name = Folder().GetItem(L"A1")->GetName();
    EXPECT_EQ(std::count(name.Str().begin(), name.Str().end(), L'-'), kPrograms * kChanges);
}

TEST_F(RepositoryStore, ALockEndsWithItsOwner) {
    const CString path = m_folder.Wide("QUERY/.lock");
    const pid_t other = fork();
    if (other == 0) {
        const auto lock = FileLock::Take(path, 0);
        m_folder.Write("locked", "");
        pause();
    }
    while (!m_folder.Has("locked")) {
        usleep(1000);
    }
    EXPECT_FALSE(FileLock::Take(path, 0));
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    EXPECT_TRUE(FileLock::Take(path, 0));
    EXPECT_TRUE(FileLock::Take(m_folder.Wide("no folder/.lock"), 0)) << "the write will tell why";
}

TEST_F(RepositoryStore, ReloadingReadsWhatHasChangedAlone) {
    CountedItems items;
    CRepositoryManager::Instance()->RegisterRepositoryItemFactory(L"QUERY", &items);
    for (const char* guid : {"A1", "A2", "A3", "A4"}) {
        m_folder.Write(std::string("QUERY/") + guid + ".xml", QueryText(guid, guid));
    }
    CRepositoryFolder store = Folder();
    struct {
        const char* what;
        std::function<void()> change;
        int read;
        const char* names;
    } const cases[] = {
        {"first", [] {}, 4, "A1, A2, A3, A4"},
        {"look",
         [&] {
             store.GetHeads();
             store.GetItemByName(L"none");
         },
         0, "A1, A2, A3, A4"},
        {"reload", [&] { store.Reload(); }, 0, "A1, A2, A3, A4"},
        {"change",
         [&] {
             m_folder.Write("QUERY/A2.xml", QueryText("A2", "changed"));
             store.Reload();
         },
         1, "A1, A3, A4, changed"},
        {"replace",
         [&] {
             m_folder.Write("QUERY/new", QueryText("A3", "B3"));
             std::filesystem::last_write_time(
                 m_folder / "QUERY/new",
                 std::filesystem::last_write_time(m_folder / "QUERY/A3.xml"));
             std::filesystem::rename(m_folder / "QUERY/new", m_folder / "QUERY/A3.xml");
             store.Reload();
         },
         1, "A1, A4, B3, changed"},
        {"remove",
         [&] {
             std::filesystem::remove(m_folder / "QUERY/A1.xml");
             store.Reload();
         },
         0, "A4, B3, changed"},
        {"rename", [&] { EXPECT_TRUE(store.Rename(L"A4", L"four").IsEmpty()); }, 2,
         "B3, changed, four"},
        {"reload", [&] { store.Reload(); }, 0, "B3, changed, four"},
    };
    for (const auto& test : cases) {
        test.change();
        EXPECT_EQ(items.count, test.read) << test.what;
        std::string names;
        for (const RepositoryItemHead& head : store.GetHeads()) {
            names += (names.empty() ? "" : ", ") + WideToUtf8(head.name.View());
        }
        EXPECT_EQ(names, test.names) << test.what;
        items.count = 0;
    }
}

TEST_F(RepositoryStore, ItemsOfASystemAreUndoneAndGoWithIt) {
    System::CGisSystem* pSystem = &MakeSystem(L"Town");
    AcDbUndo& undo = Document()->database()->undo();
    CQueryDefinition query(L"Q1", L"one");
    Events events;
    EXPECT_TRUE(CRepositoryRecords(L"QUERY", *pSystem).Add(query).IsEmpty());
    EXPECT_TRUE(CRepositoryRecords(L"QUERY", *pSystem).SetDefault(L"Q1").IsEmpty());
    EXPECT_EQ(events.Take(), "added in Town QUERY/Q1; default in Town QUERY/Q1; ");
    EXPECT_TRUE(CRepositoryRecords(L"THEME", *pSystem).GetItems().empty());
    EXPECT_TRUE(CRepositoryRecords(L"QUERY", *pSystem).Remove(L"Q1").IsEmpty());
    EXPECT_TRUE(CRepositoryRecords(L"QUERY", *pSystem).GetDefault(EntityNone).IsEmpty());

    events.systemChanges = 0;
    EXPECT_TRUE(undo.undo()) << "the item and that it is the default are one step";
    EXPECT_EQ(events.systemChanges, 1);
    const CRepositoryRecords store(L"QUERY", *pSystem);
    EXPECT_EQ(Names(store.GetItems()), "one");
    EXPECT_EQ(store.GetDefault(EntityNone), L"Q1");

    System::CSystemManager::Instance()->DeleteSystem(pSystem);
    EXPECT_TRUE(undo.undo());
    pSystem = System::CSystemManager::Instance()->GetSystemByName(L"Town");
    ASSERT_TRUE(pSystem);
    EXPECT_EQ(Names(CRepositoryRecords(L"QUERY", *pSystem).GetItems()), "one");
}

TEST_F(RepositoryStore, RecordsThatOthersSpoiltAreSkipped) {
    System::CGisSystem& system = MakeSystem(L"Town");
    System::DrawingRecords records = system.GetRecords();
    records.Set(L"ITEM.QUERY.A1", CString(Utf8ToWide(QueryText("A1", "good"))));
    records.Set(L"ITEM.QUERY.A2", CString(Utf8ToWide(QueryText("A2", "cut").substr(0, 30))));
    records.Set(L"ITEM.QUERY.a b", L"x");
    records.Set(L"ITEM.QUERY.DEFAULT.0", L"no such item");
    const CRepositoryRecords store(L"QUERY", system);
    EXPECT_EQ(Names(store.GetItems()), "good");
    EXPECT_NE(Problems().find("Town: ITEM.QUERY.A2: line 1: "), std::string::npos) << Problems();
    EXPECT_NE(Problems().find("Town: ITEM.QUERY.a b: its file name is not"), std::string::npos);
    EXPECT_FALSE(store.GetItem(store.GetDefault(EntityNone)));

    // What is right is not read again at each look, whoever looks; what has changed is.
    CountedItems items;
    CRepositoryManager::Instance()->RegisterRepositoryItemFactory(L"QUERY", &items);
    EXPECT_EQ(CRepositoryRecords(L"QUERY", system).GetHeads().size(), 1U);
    EXPECT_EQ(items.count, 0);
    records.Set(L"ITEM.QUERY.A1", CString(Utf8ToWide(QueryText("A1", "changed"))));
    EXPECT_EQ(CRepositoryRecords(L"QUERY", system).GetHeads().at(0).name, L"changed");
    EXPECT_EQ(items.count, 1);
    CRepositoryManager::Instance()->RegisterRepositoryItemFactory(L"QUERY", &m_items);

    AcDbDictionary* pOpen = nullptr;
    ASSERT_EQ(acdbOpenObject(pOpen, records.Dictionary()->objectId(), AcDb::kForWrite), Acad::eOk);
    EXPECT_FALSE(CRepositoryRecords(L"QUERY", system).Add(CQueryDefinition(L"Q", L"q")).IsEmpty());
    pOpen->close();
}

TEST_F(RepositoryStore, TheNetRepositoryIsTheFolderOfTheSetting) {
    // The manager knows it to the end of the process.
    static CStoredRepositoryFactory family(L"QUERY", false);
    CRepositoryManager::Instance()->RegisterRepositoryFactory(L"QUERY", &family);
    EXPECT_FALSE(family.GetNetStore());
    EXPECT_TRUE(family.GetDiskStore()->GetItems().empty()) << "there is no folder yet";
    m_folder.Write("QUERY/A1.xml", QueryText("A1", "shared"));
    Host().Support().Write("Settings.ini",
                           "[General]\nNET_REPOSITORY=" + m_folder.Native("") + "\n");
    CModuleConfiguration::Instance()->ReloadGeneralSettings();
    ASSERT_TRUE(family.GetNetStore());
    EXPECT_EQ(Names(family.GetNetStore()->GetItems()), "shared");

    Refreshes refreshes;
    CRepositoryManager::Instance()->LookForChanges();
    EXPECT_EQ(refreshes.count, 0) << "nothing has changed";
    m_folder.Write("QUERY/A2.xml", QueryText("A2", "by a colleague"));
    m_folder.Write("QUERY/A3.xml", "");
    CRepositoryManager::Instance()->LookForChanges();
    EXPECT_EQ(refreshes.count, 1);
    EXPECT_EQ(Names(family.GetNetStore()->GetItems()), "by a colleague, shared");
    ASSERT_EQ(family.GetNetStore()->GetProblems().size(), 1U);
    EXPECT_NE(family.GetNetStore()->GetProblems()[0].Find(L"A3.xml: "), -1);

    Host().Support().Write("Settings.ini", "[General]\nNET_REPOSITORY=/no/such/folder\n");
    CModuleConfiguration::Instance()->ReloadGeneralSettings();
    EXPECT_EQ(refreshes.count, 2);
    EXPECT_TRUE(family.GetNetStore()->GetItems().empty());
    EXPECT_NE(Problems().find("/no/such/folder: there is no such folder"), std::string::npos);
    EXPECT_FALSE(family.GetNetStore()->Add(CQueryDefinition(L"Q", L"q")).IsEmpty());
}
