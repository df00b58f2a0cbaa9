// Two programs on one drawing: nothing that one was told is saved is lost by the other.
#include <sys/wait.h>

#include "host/storage/OpenGeoPackage.h"
#include "host/storage/SaveHistory.h"
#include "tests/host/storage/TwoProgramsFixture.h"

namespace Tessaly {
namespace {

TEST(NumberRunsTest, TextsGiveBackTheNumbers) {
    const NumberRuns runs({5, 3, 4, 9, 10, 3, 200});
    EXPECT_EQ(runs.ToText(), "3+2 3+1 189");
    NumberRuns read;
    ASSERT_TRUE(read.Add(runs.ToText()));
    ASSERT_TRUE(read.Add("6 2"));
    EXPECT_EQ(read.ToText(), "3+3 2+1 189");
    for (const std::uint32_t number : {3U, 6U, 9U, 200U}) {
        EXPECT_TRUE(read.Contains(number)) << number;
    }
    for (const std::uint32_t number : {0U, 2U, 7U, 8U, 11U, 199U, 201U}) {
        EXPECT_FALSE(read.Contains(number)) << number;
    }
    EXPECT_TRUE(read.Add(""));
    for (const char* broken : {"*", "x", "1+", "3 -1", "99999999999", "1+99999999999", "1,2"}) {
        EXPECT_FALSE(NumberRuns().Add(broken)) << broken;
    }
}

TEST_F(TwoProgramsTest, ASaveOfAnotherIsNotOverwritten) {
    Program alice = OpenPlan();
    Program bob = OpenPlan();
    Import(alice, L"Alice");
    Import(bob, L"Bob");
    ASSERT_TRUE(SaveOf(alice).ok());
    const std::string saved = DescribeFile("plan.gpkg");
    const AcDbStorageResult refused = SaveOf(bob);
    EXPECT_FALSE(refused.ok());
    EXPECT_TRUE(bob.drawing->isModified());
    EXPECT_EQ(refused.conflict.kind, AcDbConflict::Kind::SavedByOthers);
    EXPECT_TRUE(refused.conflict.canTakeOver);
    ASSERT_EQ(refused.conflict.saves.size(), 1U);
    EXPECT_NE(WideToUtf8(refused.reason.View()).find("(" + std::to_string(getpid()) + "), 2"),
              std::string::npos)
        << WideToUtf8(refused.reason.View());
    EXPECT_EQ(DescribeFile("plan.gpkg"), saved);

    // Another name loses nothing either: it is the one drawing, without the other one's changes.
    Program copy = OpenPlan();
    EXPECT_TRUE(bob.storage->SaveAs(*bob.drawing, Path(), m_folder.Wide("bob.gpkg"), {}).ok());
    EXPECT_EQ(DescribeFile("bob.gpkg"), Describe(*bob.drawing));
    EXPECT_EQ(DescribeFile("plan.gpkg"), saved);
    EXPECT_TRUE(SaveOf(copy).ok()) << "nobody has saved since it was opened";
}

TEST_F(TwoProgramsTest, TakingOverKeepsBothNetworksWithTheirReferences) {
    Program alice = OpenPlan();
    Program bob = OpenPlan();
    Import(alice, L"Alice");
    Import(bob, L"Bob");
    Import(bob, L"Ben");
    ASSERT_TRUE(SaveOf(alice).ok());
    AcDbComparison comparison;
    ASSERT_TRUE(TakeOver(bob, comparison).ok());
    EXPECT_FALSE(comparison.HasBoth());
    EXPECT_EQ(comparison.theirs.added.size(), 3U);
    EXPECT_EQ(comparison.mine.added.size(), 6U);
    EXPECT_EQ(comparison.theirs.addedSystems, std::vector<CString>{L"Alice"});
    EXPECT_EQ(comparison.mine.addedSystems, (std::vector<CString>{L"Bob", L"Ben"}));
    const AcDbStorageResult saved = SaveOf(bob);
    ASSERT_TRUE(saved.ok()) << WideToUtf8(saved.reason.View());
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(*bob.drawing));
    for (const char* name : {"Alice", "Bob", "Ben"}) {
        const std::string line = std::string(name) + " line";
        EXPECT_EQ(Referred(*bob.drawing, line, "STARTNODE"), std::string(name) + "0");
        EXPECT_EQ(Referred(*bob.drawing, line, "ENDNODE"), std::string(name) + "1");
        EXPECT_EQ(SystemOf(*bob.drawing, line), name);
    }
    const std::string records = DumpTable(m_folder.Native("plan.gpkg"), "orv_records");
    EXPECT_NE(records.find("'LASTID'|'3'"), std::string::npos) << records;
    EXPECT_NE(records.find("'COUNTER.3.NODE'"), std::string::npos) << records;
}

TEST_F(TwoProgramsTest, WhatBothTouchedStaysWithTheUserAndIsNamed) {
    Program alice = OpenPlan();
    Program bob = OpenPlan();
    Rename(alice, m_ids[0], "Alice's");
    Rename(bob, m_ids[0], "Bob's");
    Rename(alice, m_ids[1], "Alice's");
    Rename(bob, m_ids[2], "Bob's");
    const auto erase = [](AcDbPoint& point) { point.erase(); };
    Edit<AcDbPoint>(*alice.drawing, m_ids[3], erase);
    Edit<AcDbPoint>(*bob.drawing, m_ids[4], erase);
    Edit<AcDbPoint>(*alice.drawing, m_ids[5], erase);
    Edit<AcDbPoint>(*bob.drawing, m_ids[5], erase);
    Edit<AcDbPoint>(*alice.drawing, m_ids[6], erase);
    Rename(bob, m_ids[6], "Bob's");
    ASSERT_TRUE(SaveOf(alice).ok());
    Rename(alice, m_ids[7], "Alice's second");
    ASSERT_TRUE(SaveOf(alice).ok());

    AcDbComparison shown;
    ASSERT_TRUE(bob.storage->Compare(*bob.drawing, {}, shown).ok());
    EXPECT_EQ(shown.theirs.changed, (std::vector{m_ids[0], m_ids[1], m_ids[7]}));
    EXPECT_EQ(shown.theirs.removed, (std::vector{m_ids[3], m_ids[5], m_ids[6]}));
    EXPECT_EQ(shown.mine.changed, (std::vector{m_ids[0], m_ids[2], m_ids[6]}));
    EXPECT_EQ(shown.mine.removed, (std::vector{m_ids[4], m_ids[5]}));
    EXPECT_EQ(shown.both, (std::vector{m_ids[0], m_ids[6]}));

    AcDbComparison taken;
    ASSERT_TRUE(TakeOver(bob, taken).ok());
    EXPECT_EQ(taken.both, shown.both);
    EXPECT_TRUE(bob.drawing->isModified());
    const auto nameOf = [&](AcDbObjectId id) -> std::string {
        const auto* pEntity = dynamic_cast<const AcDbEntity*>(bob.drawing->peek(id));
        return pEntity && !pEntity->isErased()
                   ? std::string(pEntity->attribute(Name("NAME")).asText())
                   : "gone";
    };
    const char* const expected[] = {"Bob's", "Alice's", "Bob's", "gone",
                                    "gone",  "gone",    "Bob's", "Alice's second"};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(nameOf(m_ids[i]), expected[i]) << i;
    }
    ASSERT_TRUE(SaveOf(bob).ok());
    EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(*bob.drawing));
}

TEST_F(TwoProgramsTest, AnotherDrawingInThePlaceIsLeftAlone) {
    Program alice = OpenPlan();
    Program bob = OpenPlan();
    AddNode(*alice.drawing, 1, 1, "Alice's own");
    ASSERT_TRUE(alice.storage->SaveAs(*alice.drawing, L"", Path(), {}).ok());
    const std::string theirs = m_folder.Read("plan.gpkg");
    // As many writes as the drawing knows of: a counter alone says the same file.
    Rename(bob, m_ids[0], "Bob's");
    const AcDbStorageResult refused = SaveOf(bob);
    EXPECT_EQ(refused.conflict.kind, AcDbConflict::Kind::Replaced);
    EXPECT_FALSE(refused.conflict.canTakeOver);
    EXPECT_EQ(refused.conflict.saves.size(), 1U);
    AcDbComparison comparison;
    EXPECT_FALSE(TakeOver(bob, comparison).ok());
    EXPECT_EQ(m_folder.Read("plan.gpkg"), theirs);

    // Two copies of one file that went their own ways reach the same revision.
    Program carol = OpenPlan();
    m_folder.Write("copy", theirs);
    AddNode(*carol.drawing, 1, 1, "Carol's");
    ASSERT_TRUE(SaveOf(carol).ok());
    m_folder.Write("plan.gpkg", theirs);
    Program dave = OpenPlan();
    AddNode(*dave.drawing, 1, 1, "Dave's");
    ASSERT_TRUE(SaveOf(dave).ok());
    AddNode(*carol.drawing, 1, 1, "Carol's second");
    EXPECT_EQ(SaveOf(carol).conflict.kind, AcDbConflict::Kind::Older);
}

TEST_F(TwoProgramsTest, CoordinateSystemsMeetOrAreNotTakenOver) {
    const wchar_t* const town = L"LOCAL_CS[\"a town's own\",UNIT[\"metre\",1]]";
    const wchar_t* const other = L"LOCAL_CS[\"another one\",UNIT[\"metre\",1]]";
    const struct {
        const wchar_t* theirs;
        const wchar_t* mine;
        const wchar_t* merged; ///< null: not to be taken over
    } cases[] = {{town, L"", town}, {L"", town, town}, {town, town, town}, {town, other, nullptr}};
    const std::string plan = m_folder.Read("plan.gpkg");
    for (const auto& row : cases) {
        m_folder.Write("plan.gpkg", plan);
        Program alice = OpenPlan();
        Program bob = OpenPlan();
        alice.drawing->setCoordinateSystem(row.theirs);
        bob.drawing->setCoordinateSystem(row.mine);
        Rename(alice, m_ids[0], "Alice's");
        Rename(bob, m_ids[1], "Bob's");
        ASSERT_TRUE(SaveOf(alice).ok());
        const AcDbStorageResult refused = SaveOf(bob);
        EXPECT_EQ(refused.conflict.kind, AcDbConflict::Kind::SavedByOthers);
        EXPECT_EQ(refused.conflict.canTakeOver, row.merged != nullptr);
        AcDbComparison comparison;
        ASSERT_EQ(TakeOver(bob, comparison).ok(), row.merged != nullptr);
        if (row.merged) {
            EXPECT_EQ(comparison.theirs.changed, std::vector{m_ids[0]});
            ASSERT_TRUE(SaveOf(bob).ok());
            EXPECT_EQ(bob.drawing->coordinateSystem(), CString(row.merged));
            EXPECT_EQ(DescribeFile("plan.gpkg"), Describe(*bob.drawing));
        }
    }
}

TEST_F(TwoProgramsTest, AFileThatLosesItsNameWhileItIsOpenIsNotWrittenTo) {
    const GdalErrors errors;
    OpenGeoPackage file(m_folder.Native("plan.gpkg"), OpenGeoPackage::Mode::Write);
    m_folder.Write("other", m_folder.Read("plan.gpkg"));
    std::filesystem::rename(m_folder / "other", m_folder / "plan.gpkg");
    EXPECT_FALSE(file.BeginWriting());
    EXPECT_NE(WideToUtf8(errors.Reason().View()).find("another file was put in its place"),
              std::string::npos);
}

TEST_F(TwoProgramsTest, EditsOfOtherProgramsAreWelcomeAndAFileWithoutMarksGetsThem) {
    Program bob = OpenPlan();
    Sqlite(m_folder.Native("plan.gpkg"))
        .Execute("UPDATE nodes SET NAME = 'GIS' WHERE fid = " + std::to_string(m_ids[1].number()));
    Rename(bob, m_ids[0], "Bob's");
    EXPECT_TRUE(SaveOf(bob).ok());
    Sqlite old(m_folder.Native("plan.gpkg"));
    EXPECT_EQ(old.Query("SELECT count(*) FROM nodes WHERE NAME IN ('GIS', 'Bob''s')"), "2\n");
    old.Execute("DELETE FROM orv_meta WHERE key IN ('guid', 'revision', 'save_id')");
    Program alice = OpenPlan();
    Program carol = OpenPlan();
    Rename(alice, m_ids[2], "Alice's");
    EXPECT_TRUE(SaveOf(alice).ok());
    EXPECT_EQ(old.Query("SELECT count(*) FROM orv_meta WHERE key = 'guid'"), "1\n");
    Rename(carol, m_ids[3], "Carol's");
    EXPECT_EQ(SaveOf(carol).conflict.kind, AcDbConflict::Kind::SavedByOthers);
}

TEST_F(TwoProgramsTest, ACopyUnderAnotherNameIsAnotherFile) {
    const auto guid = [&](const char* file) {
        return Sqlite(m_folder.Native(file)).Query("SELECT value FROM orv_meta WHERE key = 'guid'");
    };
    Program bob = OpenPlan();
    ASSERT_TRUE(bob.storage->SaveAs(*bob.drawing, Path(), m_folder.Wide("copy.gpkg"), {}).ok());
    EXPECT_NE(guid("copy.gpkg"), guid("plan.gpkg"));
    EXPECT_EQ(Sqlite(m_folder.Native("copy.gpkg")).Query("SELECT revision, changed FROM orv_saves"),
              "1|'*'\n");
    const std::string before = guid("copy.gpkg");
    bob.drawing->setCoordinateSystem(L"LOCAL_CS[\"a town's own\",UNIT[\"metre\",1]]");
    ASSERT_TRUE(bob.storage->Save(*bob.drawing, m_folder.Wide("copy.gpkg"), {}).ok());
    EXPECT_EQ(guid("copy.gpkg"), before);
    EXPECT_EQ(Sqlite(m_folder.Native("copy.gpkg"))
                  .Query("SELECT revision FROM orv_saves ORDER BY revision"),
              "1\n2\n");
}

TEST_F(TwoProgramsTest, NotesOfSavesStayFew) {
    Program bob = OpenPlan();
    for (int i = 0; i < 230; ++i) {
        Rename(bob, m_ids[0], std::to_string(i).c_str());
        ASSERT_TRUE(SaveOf(bob).ok());
    }
    EXPECT_EQ(
        Sqlite(m_folder.Native("plan.gpkg")).Query("SELECT count(*), max(revision) FROM orv_saves"),
        "200|231\n");
}

TEST_F(TwoProgramsTest, ALivingProgramIsSeenAndADeadOneIsNot) {
    Program bob = OpenPlan();
    bob.storage->MarkOpen(*bob.drawing);
    EXPECT_TRUE(m_storage->OthersWith(Path()).empty()) << "this very process";
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        Program other = OpenPlan();
        other.storage->MarkOpen(*other.drawing);
        const bool isTold = write(ready[1], "x", 1) == 1;
        pause();
        _exit(isTold ? 0 : 1);
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    const auto others = m_storage->OthersWith(Path());
    ASSERT_EQ(others.size(), 1U);
    EXPECT_NE(WideToUtf8(others[0].program.View()).find(std::to_string(child)), std::string::npos);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(m_storage->OthersWith(Path()).empty());
    bob.storage->Close(*bob.drawing);
    EXPECT_TRUE(Leftovers({"plan.gpkg"}).empty()) << "its mark was removed";
}

} // namespace
} // namespace Tessaly
