// Failures while saving and opening: file and drawing stay intact, and the reason is reported.
#include <csignal>
#include <map>
#include <random>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

#include "tests/host/storage/FailureFixture.h"

namespace Tessaly {
namespace {

TEST_F(FailureTest, FilesThatAreNoDrawingsAreRefusedWithTheReason) {
    m_folder.Write("empty.gpkg", "");
    m_folder.Write("text.gpkg",
                   "This is a text, and long enough to be one.\n" + std::string(200, 'x'));
    std::filesystem::create_directory(m_folder / "folder.gpkg");
    EXPECT_TRUE(Contains(WhyNotRead("missing.gpkg"), "there is no such file"));
    EXPECT_TRUE(Contains(WhyNotRead("folder.gpkg"), "it is a folder"));
    EXPECT_TRUE(Contains(WhyNotRead("empty.gpkg"), "it is empty"));
    EXPECT_TRUE(Contains(WhyNotRead("text.gpkg"), "it is not a GeoPackage"));
    Sqlite(m_folder.Native("plain.gpkg")).Execute("CREATE TABLE t (x); INSERT INTO t VALUES (1);");
    EXPECT_FALSE(WhyNotRead("plain.gpkg").empty());
}

TEST_F(FailureTest, NotesOfANewerOrImpossibleDrawingAreRefused) {
    AcDbDatabase database;
    MakePlan(database);
    Sqlite(m_folder.Native("plan.gpkg"))
        .Execute("UPDATE orv_meta SET value = '2' WHERE key = 'version'");
    EXPECT_TRUE(
        Contains(WhyNotRead("plan.gpkg"), "its version is 2, this program reads versions up to 1"));
    Rename(database, "changed");
    EXPECT_TRUE(Contains(WhyNotSaved(database, "plan.gpkg"), "its version is 2"));
    for (const std::string number : {"-1", "0", "4294967296", "99999999999999999999", "x"}) {
        Sqlite(m_folder.Native("plan.gpkg"))
            .Execute("UPDATE orv_meta SET value = '1' WHERE key = 'version';"
                     "UPDATE orv_meta SET value = '" +
                     number + "' WHERE key = 'next_id'");
        EXPECT_TRUE(Contains(WhyNotRead("plan.gpkg"), "invalid next id")) << number;
    }
    Sqlite(m_folder.Native("plan.gpkg")).Execute("DELETE FROM orv_meta");
    EXPECT_TRUE(Contains(WhyNotRead("plan.gpkg"), "has no version"));
}

TEST_F(FailureTest, ACutFileIsRefusedWhereverItIsCut) {
    AcDbDatabase database;
    MakePlan(database);
    const std::string whole = m_folder.Read("plan.gpkg");
    for (std::size_t length = 0; length < whole.size();
         length += length < 8192 ? 509 : whole.size() / 50) {
        m_folder.Write("cut.gpkg", whole.substr(0, length));
        EXPECT_FALSE(WhyNotRead("cut.gpkg").empty()) << length << " of " << whole.size();
    }
}

TEST_F(FailureTest, ALockOfAnotherProgramIsWaitedForShortlyAndTold) {
    AcDbDatabase database;
    MakePlan(database);
    const std::string before = DescribeFile("plan.gpkg");
    Rename(database, "changed");
    {
        Sqlite other(m_folder.Native("plan.gpkg"));
        other.Execute("BEGIN");
        other.Query("SELECT count(*) FROM nodes");
        EXPECT_TRUE(Contains(WhyNotSaved(database, "plan.gpkg"), "locked")) << "a reader";
        other.Execute("COMMIT; BEGIN EXCLUSIVE");
        const std::string locked = "plan.gpkg: another program has locked it";
        EXPECT_TRUE(Contains(WhyNotSaved(database, "plan.gpkg"), locked.c_str()));
        EXPECT_TRUE(Contains(WhyNotRead("plan.gpkg"), locked.c_str()));
        other.Execute("ROLLBACK");
    }
    EXPECT_EQ(DescribeFile("plan.gpkg"), before);
    Save(database, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database)) << "the lock was released";
    Rename(database, "changed again");
    Sqlite brief(m_folder.Native("plan.gpkg"));
    brief.Execute("BEGIN IMMEDIATE");
    std::thread end([&] {
        usleep(200'000);
        brief.Execute("ROLLBACK");
    });
    Save(database, "plan.gpkg");
    end.join();
    EXPECT_TRUE(Leftovers({"plan.gpkg"}).empty());
}

TEST_F(FailureTest, AFileInUseWithAWriteAheadLogIsReadAndSaved) {
    AcDbDatabase database;
    MakePlan(database);
    Sqlite other(m_folder.Native("plan.gpkg"));
    other.Execute("PRAGMA journal_mode = WAL; UPDATE nodes SET NAME = 'theirs';");
    const auto again = Open("plan.gpkg");
    EXPECT_EQ(again->peek(m_ids[0])->isErased(), false);
    EXPECT_TRUE(Contains(Describe(*again), "'theirs'"));
    AddNode(*again, 1, 1, "ours");
    EXPECT_TRUE(
        m_storage->SaveAs(*again, m_folder.Wide("plan.gpkg"), m_folder.Wide("copy.gpkg"), {}).ok());
    EXPECT_EQ(DescribeFile("copy.gpkg"), Describe(*again));
    EXPECT_TRUE(Contains(Describe(*again), "'theirs'"));

    // A new coordinate system requires a new file, for which the old log could be mistaken.
    const auto there = Open("plan.gpkg");
    there->setCoordinateSystem(L"LOCAL_CS[\"a town's own\",UNIT[\"metre\",1]]");
    EXPECT_TRUE(Contains(WhyNotSaved(*there, "plan.gpkg"), "another program has it open"));
    std::filesystem::create_symlink(m_folder / "plan.gpkg", m_folder / "link.gpkg");
    EXPECT_TRUE(Contains(WhyNotSavedAs(*there, m_folder.Native("link.gpkg")), "has it open"));
    other.Execute("PRAGMA journal_mode = DELETE");
    Save(*there, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(*there));
}

TEST_F(FailureTest, AnOlderFileInItsPlaceIsNotTakenForTheDrawing) {
    AcDbDatabase database;
    MakePlan(database);
    const std::string backup = m_folder.Read("plan.gpkg");
    AddNode(database, 1, 1, "saved after the backup");
    Save(database, "plan.gpkg");
    m_folder.Write("plan.gpkg", backup);
    Rename(database, "changed");
    EXPECT_TRUE(Contains(WhyNotSaved(database, "plan.gpkg"), "was replaced by"));
    EXPECT_EQ(m_folder.Read("plan.gpkg"), backup);
    const CString path = m_folder.Wide("plan.gpkg");
    EXPECT_TRUE(m_storage->SaveAs(database, path, path, {}).ok());
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));
}

TEST_F(FailureTest, JournalsOfAFileThatIsGoneAreNotTakenForTheNewOnes) {
    AcDbDatabase database;
    MakePlan(database);
    for (const char* companion : {"-journal", "-wal"}) {
        std::filesystem::rename(m_folder / "plan.gpkg", m_folder / "kept.gpkg");
        m_folder.Write("plan.gpkg" + std::string(companion), "what is left");
        SaveNew(database, "plan.gpkg");
        EXPECT_TRUE(Leftovers({"plan.gpkg", "kept.gpkg"}).empty()) << companion;
        EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));
    }
}

TEST_F(FailureTest, PlacesThatCannotBeWrittenToAreToldApart) {
    AcDbDatabase database;
    MakePlan(database);
    Rename(database, "changed");
    EXPECT_TRUE(Contains(WhyNotSavedAs(database, m_folder.Native("no/such/plan.gpkg")),
                         "its folder does not exist"));
    std::filesystem::create_directory(m_folder / "folder");
    EXPECT_TRUE(Contains(WhyNotSavedAs(database, m_folder.Native("folder")), "it is a folder"));
    EXPECT_FALSE(WhyNotSavedAs(database, "/proc/plan.gpkg").empty());
    EXPECT_TRUE(Contains(WhyNotSaved(database, "other.gpkg"), "not opened from this file"));
    std::filesystem::rename(m_folder / "plan.gpkg", m_folder / "moved.gpkg");
    EXPECT_TRUE(Contains(WhyNotSaved(database, "plan.gpkg"), "there is no such file"));
    EXPECT_TRUE(Leftovers({"moved.gpkg", "folder"}).empty());
}

TEST_F(FailureTest, WriteProtectionIsRespected) {
    AcDbDatabase database;
    MakePlan(database);
    const std::string before = m_folder.Read("plan.gpkg");
    Rename(database, "changed");
    chmod(m_folder.Native("plan.gpkg").c_str(), 0444);
    AsNobody([&] {
        EXPECT_TRUE(Contains(WhyNotSaved(database, "plan.gpkg"), "it is write-protected"));
        EXPECT_TRUE(Contains(WhyNotSavedAs(database, m_folder.Native("plan.gpkg")),
                             "it is write-protected"));
        EXPECT_TRUE(Open("plan.gpkg")->entityCount() > 0) << "reading is allowed";
    });
    chmod(m_folder.Native("plan.gpkg").c_str(), 0666);
    AsNobody([&] {
        chmod(m_folder.Native("").c_str(), 0555);
        EXPECT_TRUE(Contains(WhyNotSaved(database, "plan.gpkg"), "its folder is write-protected"));
        EXPECT_FALSE(WhyNotSavedAs(database, m_folder.Native("new.gpkg")).empty());
        chmod(m_folder.Native("").c_str(), 0755);
    });
    EXPECT_EQ(m_folder.Read("plan.gpkg"), before);
    EXPECT_TRUE(Leftovers({"plan.gpkg"}).empty());
}

TEST_F(FailureTest, AFullDiskLosesNothing) {
    AcDbDatabase database;
    MakePlan(database, 3000);
    const std::string before = DescribeFile("plan.gpkg");
    std::signal(SIGXFSZ, SIG_IGN);
    const pid_t child = fork();
    if (child == 0) {
        // A file size limit simulates a full disk.
        const auto size = std::filesystem::file_size(m_folder / "plan.gpkg");
        const rlimit limit{size + 20000, size + 20000};
        setrlimit(RLIMIT_FSIZE, &limit);
        Rename(database, std::string(500, 'x').c_str());
        EXPECT_FALSE(WhyNotSaved(database, "plan.gpkg").empty());
        EXPECT_FALSE(WhyNotSavedAs(database, m_folder.Native("copy.gpkg")).empty());
        const AcDbStorageResult whole =
            m_storage->SaveAs(database, L"", m_folder.Wide("new.gpkg"), {});
        EXPECT_FALSE(whole.ok());
        EXPECT_TRUE(Leftovers({"plan.gpkg"}).empty());
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(DescribeFile("plan.gpkg"), before);
    EXPECT_EQ(Sqlite(m_folder.Native("plan.gpkg")).Query("PRAGMA integrity_check"), "'ok'\n");
}

/// A file system of a few pages, if the machine allows mounting one.
class SmallDisk {
public:
    SmallDisk(std::string folder, std::size_t bytes) : m_folder(std::move(folder)) {
        std::filesystem::create_directory(m_folder);
        const std::string size = "size=" + std::to_string(bytes);
        m_bThere = mount("none", m_folder.c_str(), "tmpfs", 0, size.c_str()) == 0;
    }
    ~SmallDisk() {
        if (m_bThere) {
            umount(m_folder.c_str());
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    bool IsThere() const { return m_bThere; }

private:
    std::string m_folder;
    bool m_bThere = false;
};

TEST_F(FailureTest, ADiskThatRunsFullIsToldAndSavingGoesOnOnceThereIsRoom) {
    const SmallDisk disk(m_folder.Native("disk"), 3'000'000);
    if (!disk.IsThere()) {
        GTEST_SKIP() << "cannot mount a file system here";
    }
    AcDbDatabase database;
    for (int i = 0; i < 1000; ++i) {
        m_ids.push_back(AddNode(database, i, i, "a node of the plan"));
    }
    SaveNew(database, "disk/plan.gpkg");
    const std::string before = DescribeFile("disk/plan.gpkg");
    m_folder.Write("disk/filler", std::string(3'000'000, 'x'));
    Rename(database, std::string(600, 'y').c_str());
    EXPECT_TRUE(Contains(WhyNotSaved(database, "disk/plan.gpkg"), "the disk is full"));
    EXPECT_TRUE(Contains(WhyNotSavedAs(database, m_folder.Native("disk/copy.gpkg")), "full"));
    EXPECT_TRUE(DescribeFile("disk/plan.gpkg") == before);
    std::filesystem::remove(m_folder / "disk/filler");
    Save(database, "disk/plan.gpkg");
    EXPECT_TRUE(DescribeFile("disk/plan.gpkg") == Describe(database));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "disk/copy.gpkg"));
}

TEST_F(FailureTest, StoppingLeavesEverythingAsItWas) {
    AcDbDatabase database;
    MakePlan(database, 9000);
    const std::string before = DescribeFile("plan.gpkg");
    AcDbDatabase empty;
    const std::string nothing = Describe(empty);
    int calls = 0;
    const AcDbProgress stop = [&](int) { return ++calls < 2; };
    EXPECT_FALSE(m_storage->Read(empty, m_folder.Wide("plan.gpkg"), stop).ok());
    EXPECT_EQ(Describe(empty), nothing);
    Rename(database, "changed");
    calls = 0;
    EXPECT_TRUE(Contains(
        Refused(database, m_storage->Save(database, m_folder.Wide("plan.gpkg"), stop)), "stopped"));
    EXPECT_EQ(DescribeFile("plan.gpkg"), before);
    Save(database, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));
}

TEST_F(FailureTest, AnObjectInAnImpossiblePlaceIsNamedAndNothingIsSaved) {
    AcDbDatabase database;
    MakePlan(database);
    const std::string before = DescribeFile("plan.gpkg");
    Rename(database, "changed");
    const AcDbObjectId far = AddLine(database, {{0, 0}, {1e300, 0}});
    EXPECT_TRUE(Contains(WhyNotSaved(database, "plan.gpkg"),
                         ("object " + std::to_string(far.number()) + " on layer \"0\"").c_str()));
    EXPECT_EQ(DescribeFile("plan.gpkg"), before);
    Edit<AcDbPolyline>(database, far, [](AcDbPolyline& line) { line.erase(); });
    Save(database, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));
}

/// The number of killed processes; set TESSALY_KILLS to test more of them.
int KillCount() {
    const char* count = std::getenv("TESSALY_KILLS"); // NOLINT(concurrency-mt-unsafe)
    return count ? std::atoi(count) : 25;
}

TEST_F(FailureTest, AKillAtAnyMomentLeavesTheOldOrTheNewDrawing) {
    using Clock = std::chrono::steady_clock;
    AcDbDatabase database;
    MakePlan(database, 2000);
    const std::string oldState = DescribeFile("plan.gpkg");
    m_folder.Write("kept", m_folder.Read("plan.gpkg"));
    Rename(database, "a longer name for each of the nodes, so that pages have to be split");
    const std::string newState = Describe(database);
    std::mt19937 random(11);
    std::map<std::string, int> seen;
    useconds_t longest = 0; // the duration of a save here; the first two are not killed
    for (int run = -2; run < KillCount(); ++run) {
        const bool isCopy = run % 3 == 0 || run == -2;
        const auto begin = Clock::now();
        const pid_t child = fork();
        if (child == 0) {
            if (isCopy) {
                m_storage->SaveAs(database, m_folder.Wide("plan.gpkg"), m_folder.Wide("plan.gpkg"),
                                  {});
            } else {
                m_storage->Save(database, m_folder.Wide("plan.gpkg"), {});
            }
            _exit(0);
        }
        if (run >= 0) {
            usleep(static_cast<useconds_t>(random() % (longest + longest / 4)));
            kill(child, SIGKILL);
        }
        int status = 0;
        waitpid(child, &status, 0);
        const auto micros =
            std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin).count();
        longest = run < 0 ? std::max(longest, static_cast<useconds_t>(micros)) : longest;
        seen["in the middle"] += Leftovers({"plan.gpkg", "kept"}).empty() ? 0 : 1;
        const std::string state = DescribeFile("plan.gpkg");
        EXPECT_TRUE(state == oldState || state == newState) << "run " << run;
        ++seen[state == oldState ? "old" : "new"];
        EXPECT_EQ(Sqlite(m_folder.Native("plan.gpkg")).Query("PRAGMA integrity_check"), "'ok'\n");
        m_folder.Write("plan.gpkg", m_folder.Read("kept"));
    }
    RecordProperty("old", seen["old"]);
    RecordProperty("new", seen["new"]);
    RecordProperty("in the middle", seen["in the middle"]);
    // The next save removes files that the killed ones have left.
    EXPECT_TRUE(
        m_storage->SaveAs(database, m_folder.Wide("plan.gpkg"), m_folder.Wide("plan.gpkg"), {})
            .ok());
    EXPECT_TRUE(DescribeFile("plan.gpkg") == newState);
    EXPECT_TRUE(Leftovers({"plan.gpkg", "kept"}).empty());
}

} // namespace
} // namespace Tessaly
