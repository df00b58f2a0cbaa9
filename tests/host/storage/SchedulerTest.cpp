// Several programs that change and save one drawing by chance, beside what it has to hold.
#include <cstdlib>
#include <map>
#include <random>
#include <sys/wait.h>

#include "tests/host/storage/TwoProgramsFixture.h"

namespace Tessaly {
namespace {

using SchedulerTest = TwoProgramsTest;

/// How often the scheduler lets a program do something; TESSALY_STEPS asks for more.
int StepCount() {
    const char* count = std::getenv("TESSALY_STEPS"); // NOLINT(concurrency-mt-unsafe)
    return count ? std::atoi(count) : 300;
}

/// What every program was told is in the file: names by the place of their node, which nobody
/// moves. Nodes of a place are the model's, whatever their ids are.
using Model = std::map<std::pair<double, double>, std::string>;

Model ModelOf(const AcDbDatabase& drawing) {
    Model model;
    drawing.forEachEntity([&](const AcDbEntity& entity) {
        if (const auto* pPoint = dynamic_cast<const AcDbPoint*>(&entity)) {
            std::string& name = model[{pPoint->position().x, pPoint->position().y}];
            EXPECT_EQ(name, "") << "two nodes in one place, " << pPoint->objectId().number();
            name = std::string(entity.attribute(Name("NAME")).asText());
        }
    });
    return model;
}

/// Programs that edit, save and take over by chance, beside what the file must hold.
class Scheduler {
public:
    Scheduler(const TempFolder& folder, int programs, unsigned seed)
        : m_folder(folder), m_programs(static_cast<std::size_t>(programs)), m_random(seed),
          m_nChanges(100'000 * programs) { // no place of an earlier run
        for (std::size_t i = 0; i < m_programs.size(); ++i) {
            Open(i);
        }
        m_saved = ModelOf(*m_programs[0].program.drawing);
    }

    void Step() {
        const std::size_t who = m_random() % m_programs.size();
        const auto what = m_random() % 10;
        if (what < 6) {
            Change(who);
        } else if (what < 9) {
            Save(who);
        } else {
            Open(who);
        }
    }
    const Model& Saved() const { return m_saved; }
    std::map<std::string, int> m_seen;

private:
    struct Worker {
        Program program;
        Model edits; ///< since the last save; empty name: erased
    };

    CString Path() const { return m_folder.Wide("plan.gpkg"); }

    void Open(std::size_t who) {
        m_programs[who] = Worker();
        ASSERT_TRUE(m_programs[who]
                        .program.storage->Read(*m_programs[who].program.drawing, Path(), {})
                        .ok());
        ++m_seen["opened"];
    }

    void Change(std::size_t who) {
        Worker& worker = m_programs[who];
        AcDbDatabase& drawing = *worker.program.drawing;
        const std::string name = "p" + std::to_string(who) + "." + std::to_string(++m_nChanges);
        std::vector<AcDbObjectId> nodes;
        drawing.forEachEntity(
            [&](const AcDbEntity& entity) { nodes.push_back(entity.objectId()); });
        const auto what = m_random() % 4;
        if (what == 0 || nodes.empty()) {
            const double x = 1000.0 + m_nChanges;
            AddNode(drawing, x, double(who), name.c_str());
            worker.edits[{x, double(who)}] = name;
            return;
        }
        const AcDbObjectId id = nodes[m_random() % nodes.size()];
        Edit<AcDbPoint>(drawing, id, [&](AcDbPoint& point) {
            const std::pair place{point.position().x, point.position().y};
            if (what == 1) {
                point.erase();
                worker.edits[place] = "";
            } else {
                point.setAttribute(Name("NAME"), name.c_str());
                worker.edits[place] = name;
            }
        });
    }

    void Save(std::size_t who) {
        Worker& worker = m_programs[who];
        IDbStorage& storage = *worker.program.storage;
        AcDbStorageResult result = storage.Save(*worker.program.drawing, Path(), {});
        if (!result.ok()) {
            ASSERT_EQ(result.conflict.kind, AcDbConflict::Kind::SavedByOthers)
                << WideToUtf8(result.reason.View());
            ++m_seen["conflicts"];
            AcDbComparison comparison;
            if (!result.conflict.canTakeOver) {
                ++m_seen["too old"];
                Open(who);
                return;
            }
            result = storage.TakeOver(*worker.program.drawing, {}, comparison);
            ASSERT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
            m_seen["both"] += static_cast<int>(comparison.both.size());
            result = storage.Save(*worker.program.drawing, Path(), {});
            ASSERT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
        }
        ++m_seen["saved"];
        for (const auto& [place, name] : worker.edits) {
            if (name.empty()) {
                m_saved.erase(place);
            } else {
                m_saved[place] = name;
            }
        }
        worker.edits.clear();
        ASSERT_EQ(ModelOf(*worker.program.drawing), m_saved);
    }

    const TempFolder& m_folder;
    std::vector<Worker> m_programs;
    std::mt19937 m_random;
    int m_nChanges;
    Model m_saved;
};

TEST_F(SchedulerTest, NothingConfirmedIsLostWhoeverSavesWhen) {
    for (const int programs : {2, 3}) {
        AcDbDatabase other;
        AddNode(other, 1, 1, "of another drawing");
        SaveNew(other, "other.gpkg");
        const std::string untouched = m_folder.Read("other.gpkg");
        Scheduler scheduler(m_folder, programs, 17 + static_cast<unsigned>(programs));
        for (int step = 0; step < StepCount() / 2 && !HasFatalFailure(); ++step) {
            scheduler.Step();
            if (step % 25 == 0) {
                AcDbDatabase fresh;
                ASSERT_TRUE(MakeGeoPackageStorage()->Read(fresh, Path(), {}).ok());
                ASSERT_EQ(ModelOf(fresh), scheduler.Saved()) << "step " << step;
            }
        }
        EXPECT_EQ(m_folder.Read("other.gpkg"), untouched);
        EXPECT_GT(scheduler.m_seen["conflicts"], 0);
        for (const auto& [what, count] : scheduler.m_seen) {
            RecordProperty(what + " by " + std::to_string(programs), count);
        }
    }
}

/// Adds nodes until so many are saved, and writes down each that it was told is saved.
void SaveAgainAndAgain(const TempFolder& folder, int who, int count) {
    Program program;
    const CString path = folder.Wide("plan.gpkg");
    program.storage->Read(*program.drawing, path, {});
    for (int i = 0; i < count; ++i) {
        const std::string name = std::to_string(who) + "." + std::to_string(i);
        AddNode(*program.drawing, who, i, name.c_str());
        if (i % 5 == 4) {
            // Puts the file aside and another in its place, which must not meet a save.
            program.drawing->setCoordinateSystem(
                (L"LOCAL_CS[\"" + Utf8ToWide(name) + L"\",UNIT[\"metre\",1]]").c_str());
        }
        for (int tries = 0; tries < 200; ++tries) {
            const AcDbStorageResult saved = program.storage->Save(*program.drawing, path, {});
            if (saved.ok()) {
                folder.Write("confirmed/" + name, "");
                break;
            }
            AcDbComparison comparison;
            if (saved.conflict.canTakeOver) {
                program.storage->TakeOver(*program.drawing, {}, comparison);
            } else if (saved.conflict) {
                // Everything may be another one: what is not saved yet is given up.
                program.drawing = std::make_unique<AcDbDatabase>();
                program.storage->Read(*program.drawing, path, {});
                break;
            }
        }
    }
}

TEST_F(SchedulerTest, SavesAtTheSameMomentLoseNothingThatWasConfirmed) {
    std::filesystem::create_directory(m_folder / "confirmed");
    std::vector<pid_t> children;
    for (int who = 1; who <= 3; ++who) {
        children.push_back(fork());
        if (children.back() == 0) {
            SaveAgainAndAgain(m_folder, who, 12);
            _exit(0);
        }
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    const std::string drawing = DescribeFile("plan.gpkg");
    int confirmed = 0;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder / "confirmed")) {
        const std::string name = "attribute NAME: '" + entry.path().filename().string() + "'";
        EXPECT_NE(drawing.find(name), std::string::npos) << name;
        ++confirmed;
    }
    EXPECT_GT(confirmed, 12);
    EXPECT_EQ(Sqlite(m_folder.Native("plan.gpkg")).Query("PRAGMA integrity_check"), "'ok'\n");
    EXPECT_TRUE(Leftovers({"plan.gpkg", "confirmed"}).empty());
}

} // namespace
} // namespace Tessaly
