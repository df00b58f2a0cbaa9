// Files that somebody else holds, has damaged, or reaches by unusual ways.
#include <chrono>
#include <csignal>
#include <cstdlib>

#include "platform/win/File.h"
#include "tests/host/storage/FailureFixture.h"

namespace Tessaly {
namespace {

using FaultsTest = FailureTest;

TEST_F(FaultsTest, TheHolderOfALockIsNamedAndWaitingCanBeStopped) {
    using Clock = std::chrono::steady_clock;
    AcDbDatabase database;
    MakePlan(database);
    Rename(database, "changed");
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        Sqlite other(m_folder.Native("plan.gpkg"));
        other.Execute("BEGIN EXCLUSIVE; DELETE FROM orv_columns");
        const bool isTold = write(ready[1], "x", 1) == 1;
        pause();
        _exit(isTold ? 0 : 1);
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    const auto begin = Clock::now();
    const std::string reason = WhyNotSaved(database, "plan.gpkg");
    EXPECT_LT(Clock::now() - begin, std::chrono::milliseconds(2500)) << "a wait of one second";
    EXPECT_TRUE(Contains(reason, ("(" + std::to_string(child) + ")").c_str())) << reason;
    const AcDbProgress stop = [](int) { return false; };
    EXPECT_TRUE(
        Contains(Refused(database, m_storage->Save(database, m_folder.Wide("plan.gpkg"), stop)),
                 "cancelled"));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    Save(database, "plan.gpkg");
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(database));
}

TEST_F(FaultsTest, AMissingTableIsNamedAndTheDrawingReadOnly) {
    AcDbDatabase database;
    MakePlan(database);
    Sqlite(m_folder.Native("plan.gpkg")).Execute("DROP TABLE nodes; DROP TABLE orv_blocks");
    AcDbDatabase again;
    const AcDbStorageResult result = m_storage->Read(again, m_folder.Wide("plan.gpkg"), {});
    EXPECT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
    EXPECT_TRUE(Contains(WideToUtf8(result.readOnlyReason.View()),
                         "plan.gpkg: its tables orv_blocks, nodes are missing"))
        << WideToUtf8(result.readOnlyReason.View());
    EXPECT_TRUE(m_storage->Read(again, m_folder.Wide("plan.gpkg"), {}).ok());
    AddNode(again, 1, 1, "new");
    Save(again, "plan.gpkg");
    AcDbDatabase whole;
    EXPECT_TRUE(m_storage->Read(whole, m_folder.Wide("plan.gpkg"), {}).readOnlyReason.IsEmpty());
}

TEST_F(FaultsTest, DamageOfOneGeometryIsOneRowsWhateverItIs) {
    AcDbDatabase database;
    MakePlan(database, 3);
    AddLine(database, {{0, 0}, {1, 1}, {2, 0}});
    const AcDbObjectId second = AddLine(database, {{5, 5}, {6, 6}});
    Save(database, "plan.gpkg");
    const std::string whole = m_folder.Read("plan.gpkg");
    // The header of a GeoPackage's geometry, and then what is wrong with the rest.
    const std::string header = "47500001"
                               "00000000";
    for (const std::string& wkb :
         {std::string("0102000000FFFFFF7F") + std::string(32, '0'), // points that are not there
          std::string("010200000002000000") + std::string(30, '0'), // cut
          std::string("0199990000"), std::string("00"), std::string("01030000000100000002")}) {
        m_folder.Write("plan.gpkg", whole);
        Sqlite file(m_folder.Native("plan.gpkg"));
        // Its triggers need functions that only GDAL brings.
        file.Execute("DROP TRIGGER IF EXISTS rtree_sections_geom_update6;"
                     "DROP TRIGGER IF EXISTS rtree_sections_geom_update7;"
                     "DROP TRIGGER IF EXISTS rtree_sections_geom_update2;"
                     "DROP TRIGGER IF EXISTS rtree_sections_geom_update4;"
                     "UPDATE sections SET geom = x'" +
                     header + wkb + "' WHERE fid = " + std::to_string(second.number()));
        const auto again = Open("plan.gpkg");
        EXPECT_EQ(again->entityCount(), 4U) << wkb;
        ASSERT_EQ(m_warnings.size(), 1U) << wkb;
        EXPECT_TRUE(Contains(WideToUtf8(m_warnings[0].View()),
                             ("row " + std::to_string(second.number())).c_str()));
    }
}

TEST_F(FaultsTest, LinksAreFollowedAndUnfinishedFilesOfDeadProgramsCleared) {
    AcDbDatabase database;
    MakePlan(database, 9000); // long enough for a progress to be told
    std::filesystem::create_directory(m_folder / "there");
    std::filesystem::create_symlink("there/new.gpkg", m_folder / "link.gpkg");
    std::filesystem::create_symlink("ring.gpkg", m_folder / "ring.gpkg");
    std::filesystem::create_symlink("no-folder/new.gpkg", m_folder / "lost.gpkg");
    Rename(database, "changed");
    EXPECT_TRUE(Contains(WhyNotSavedAs(database, m_folder.Native("ring.gpkg")), "form a loop"));
    EXPECT_TRUE(Contains(WhyNotRead("ring.gpkg"), "form a loop"));
    EXPECT_TRUE(Contains(WhyNotSavedAs(database, m_folder.Native("lost.gpkg")),
                         "its folder does not exist"));
    SaveNew(database, "link.gpkg");
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder / "link.gpkg"));
    EXPECT_EQ(DescribeFile("there/new.gpkg"), Describe(database));

    const pid_t child = fork();
    if (child == 0) {
        m_storage->SaveAs(database, L"", m_folder.Wide("other.gpkg"), [](int) -> bool {
            kill(getpid(), SIGKILL);
            return true;
        });
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    const std::vector<std::string> mine = {"plan.gpkg", "there",     "link.gpkg",
                                           "ring.gpkg", "lost.gpkg", "other.gpkg"};
    if (!WIFSIGNALED(status)) {
        GTEST_SKIP() << "it was done before it could be killed";
    }
    EXPECT_FALSE(Leftovers(mine).empty());
    Open("plan.gpkg");
    EXPECT_TRUE(Leftovers(mine).empty()) << "any drawing of the folder clears them";
}

TEST_F(FaultsTest, NamesThatAreNoUtf8AreNamesOfFiles) {
    AcDbDatabase database;
    MakePlan(database);
    const std::string name = m_folder.Native("pl\xE4"
                                             "n \xC3\xA4\xFF.gpkg");
    const CString wide = WidePath(name);
    EXPECT_EQ(NativePath(wide), name);
    EXPECT_EQ(WidePath("a\xC3\xA4"), CString(L"a\u00E4"));
    EXPECT_TRUE(m_storage->SaveAs(database, L"", wide, {}).ok());
    EXPECT_TRUE(std::filesystem::exists(name));
    AcDbDatabase again;
    const AcDbStorageResult result = m_storage->Read(again, wide, {});
    EXPECT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
    EXPECT_EQ(Describe(again), Describe(database));
}

} // namespace
} // namespace Tessaly
