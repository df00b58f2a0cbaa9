// Two programs on one drawing, at their command lines.
#include <chrono>
#include <thread>

#include "tests/host/ProgramTest.h"

namespace Tessaly {
namespace {

constexpr const char* kTown =
    R"({"type":"FeatureCollection","features":[
{"type":"Feature","properties":{"name":"a"},"geometry":{"type":"Point","coordinates":[8.5,47.3]}},
{"type":"Feature","properties":{},"geometry":{"type":"Point","coordinates":[8,47]}}]})";

/// A program at its prompt, while the test does other things.
class RunningProgram {
public:
    explicit RunningProgram(const TempFolder& folder)
        : m_folder(folder),
          m_pInput(popen((TESSALY_STAGE_DIR "/tessaly --console --support " +
                          folder.Native("support2") + " > " + folder.Native("running") + " 2>&1")
                             .c_str(),
                         "w")) {}
    ~RunningProgram() {
        if (m_pInput) {
            pclose(m_pInput);
        }
    }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    void Send(const std::string& lines) {
        std::fputs(lines.c_str(), m_pInput);
        std::fflush(m_pInput);
    }
    /// False if it does not print the text in time.
    bool WaitFor(const std::string& text) const {
        for (int i = 0; i < 600; ++i) {
            if (Output().find(text) != std::string::npos) {
                return true;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return false;
    }
    std::string Output() const { return m_folder.Read("running"); }

private:
    const TempFolder& m_folder;
    std::FILE* m_pInput;
};

class SharedDrawingTest : public ProgramTest {
protected:
    void SetUp() override {
        m_folder.Write("town.geojson", kTown);
        ASSERT_EQ(RunScript("IMPORT\n" + Town() + "SAVE\n" + Plan()), 0) << m_output;
        m_bob.Send("OPEN\n" + Plan());
        ASSERT_TRUE(m_bob.WaitFor("plan.gpkg: 2 entities.")) << m_bob.Output();
    }
    std::string Town() const { return m_folder.Native("town.geojson") + "\n"; }
    std::string Plan() const { return m_folder.Native("plan.gpkg") + "\n"; }

    RunningProgram m_bob{m_folder};
};

TEST_F(SharedDrawingTest, ASecondProgramSaysWhoHasTheDrawingOpen) {
    EXPECT_EQ(RunScript("OPEN\n" + Plan() + "IMPORT\n" + Town() + "SAVE\n"), 0) << m_output;
    EXPECT_TRUE(Printed("plan.gpkg is open elsewhere: ")) << m_output;
    EXPECT_FALSE(Printed("read-only")) << m_output;

    m_folder.Write("script.scr", "OPEN\n" + Plan() + "IMPORT\n" + Town() + "DRAWINGS\nSAVE\nC\n");
    EXPECT_EQ(Run("--read-only --script " + m_folder.Native("script.scr")), 1) << m_output;
    EXPECT_TRUE(Printed(", modified, read-only")) << m_output;
    EXPECT_TRUE(Printed("plan.gpkg is open read-only: another program has it open\n")) << m_output;
    EXPECT_TRUE(Printed("not saved")) << m_output;
    EXPECT_FALSE(Printed("Saved: ")) << m_output;

    m_folder.Write("script.scr", "OPEN\n" + Plan() + "SAVE\nS\n" + m_folder.Native("mine.gpkg") +
                                     "\nIMPORT\n" + Town() + "SAVE\n");
    EXPECT_EQ(Run("--read-only --script " + m_folder.Native("script.scr")), 0) << m_output;
    EXPECT_EQ(Count("Saved: "), 2) << m_output;

    m_bob.Send("CLOSE\n");
    ASSERT_TRUE(m_bob.WaitFor("plan.gpkg is closed.")) << m_bob.Output();
    EXPECT_EQ(RunScript("OPEN\n" + Plan()), 0) << m_output;
    EXPECT_FALSE(Printed("open elsewhere")) << m_output;
}

TEST_F(SharedDrawingTest, AConflictIsShownAndSettled) {
    ASSERT_EQ(RunScript("OPEN\n" + Plan() + "IMPORT\n" + Town() + "SAVE\n"), 0) << m_output;
    m_bob.Send("IMPORT\n" + Town() + "SAVE\n\n");
    ASSERT_TRUE(m_bob.WaitFor("The drawing was not saved.")) << m_bob.Output();
    EXPECT_NE(m_bob.Output().find("plan.gpkg: it has been saved by another program since it was "
                                  "opened here (last save: "),
              std::string::npos)
        << m_bob.Output();
    m_bob.Send("SAVE\nd\nt\n");
    ASSERT_TRUE(m_bob.WaitFor("Saved: ")) << m_bob.Output();
    EXPECT_NE(m_bob.Output().find("In this drawing: 2 entities added, 0 changed, 0 removed\n"
                                  "In the file: 2 entities added, 0 changed, 0 removed\n"),
              std::string::npos)
        << m_bob.Output();
    EXPECT_EQ(RunScript("OPEN\n" + Plan()), 0) << m_output;
    EXPECT_TRUE(Printed("plan.gpkg: 6 entities.")) << m_output;

    // To write over the other's work takes a yes.
    ASSERT_EQ(RunScript("OPEN\n" + Plan() + "IMPORT\n" + Town() + "SAVE\n"), 0) << m_output;
    m_bob.Send("IMPORT\n" + Town() + "SAVEAS\n" + Plan() + "\nSAVEAS\n" + Plan() + "y\n");
    ASSERT_TRUE(m_bob.WaitFor("was left unchanged")) << m_bob.Output();
    m_bob.Send("CLOSE\n");
    ASSERT_TRUE(m_bob.WaitFor("plan.gpkg is closed.")) << m_bob.Output();
}

} // namespace
} // namespace Tessaly
