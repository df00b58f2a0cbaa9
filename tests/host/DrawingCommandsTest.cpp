// Drawing commands at the command line, run in the real program.
#include "tests/host/ProgramTest.h"
#include "tests/support/Rows.h"

namespace Tessaly {
namespace {

constexpr const char* kTown =
    R"({"type":"FeatureCollection","features":[
{"type":"Feature","properties":{"name":"a"},"geometry":{"type":"Point","coordinates":[8.5,47.3]}},
{"type":"Feature","properties":{},"geometry":{"type":"LineString","coordinates":[[8,47],[9,48]]}},
{"type":"Feature","properties":{},"geometry":{"type":"MultiPoint","coordinates":[[8,47],[9,48]]}},
{"type":"Feature","properties":{},"geometry":{"type":"Polygon",
"coordinates":[[[8,47],[9,47],[9,48],[8,47]]]}}]})";
constexpr const char* kMetres =
    R"({"type":"FeatureCollection","name":"metres",
"crs":{"type":"name","properties":{"name":"urn:ogc:def:crs:EPSG::25832"}},"features":[
{"type":"Feature","properties":{},"geometry":{"type":"Point","coordinates":[500000,5000000]}}]})";

/// In script lines, "@" is replaced by the test's folder.
class DrawingCommandsTest : public ProgramTest {
protected:
    DrawingCommandsTest() {
        m_folder.Write("town.geojson", kTown);
        m_folder.Write("metres.geojson", kMetres);
    }
    std::string InFolder(std::string text) const {
        const std::string folder = m_folder.Native("");
        for (std::size_t at = text.find('@'); at != std::string::npos;
             at = text.find('@', at + folder.size())) {
            text.replace(at, 1, folder);
        }
        return text;
    }
    int Script(const std::string& lines) { return RunScript(InFolder(lines)); }
    /// A drawing with the five entities of the town.
    void MakeTown(const std::string& name) {
        ASSERT_EQ(Script("IMPORT\n@town.geojson\nSAVE\n@" + name + "\n"), 0) << m_output;
    }
};

TEST_F(DrawingCommandsTest, ADrawingIsSavedAndOpenedAgain) {
    EXPECT_EQ(
        Script("IMPORT\n@town.geojson\nSAVE\n@plan\nDRAWINGS\nCLOSE\nDRAWINGS\n"
               "OPEN\n@plan\nDRAWINGS\nIMPORT\n@town.geojson\nSAVE\nCLOSE\nOPEN\n@plan.gpkg\n"),
        0)
        << m_output;
    EXPECT_TRUE(Printed("  town: 3 points, 1 lines, 1 polygons\n")) << m_output;
    EXPECT_TRUE(Printed(InFolder("Saved: @plan.gpkg\n"))) << m_output;
    EXPECT_TRUE(Printed(InFolder("*  1  @plan.gpkg\n"))) << m_output;
    EXPECT_TRUE(Printed("plan.gpkg is closed.\nNo drawing is open.\n")) << m_output;
    EXPECT_TRUE(Printed("plan.gpkg: 5 entities.\n")) << m_output;
    EXPECT_TRUE(Printed("plan.gpkg: 10 entities.\n")) << m_output;
    EXPECT_FALSE(Printed("not saved")) << m_output;
}

TEST_F(DrawingCommandsTest, WhatFailsSaysWhy) {
    MakeTown("plan");
    m_folder.Write("text.gpkg", "no drawing");
    // One session; with each text, how often it comes.
    const std::string lines =
        "SWITCH\n\nSWITCH\n7\nOPEN\n@none\nOPEN\n@text.gpkg\nOPEN\n\nSAVE\n\n"
        "SAVE\n@no-folder/plan\nSAVEAS\n@plan\nn\nOPEN\n@plan\nNEW\nSAVEAS\n@plan\n"
        "IMPORT\n@none.geojson\nIMPORT\n@text.gpkg\nUNDO\nREDO\nAPPLOAD\n@none.arx\n"
        "IMPORT\n@town.geojson\nCLOSE\n\nQUIT\n\nCLOSE\nn\nCLOSE\nCLOSE\n"
        "SAVE\nSAVEAS\nCLOSE\nSWITCH\nUNDO\nIMPORT\n";
    const std::pair<const char*, int> texts[] = {
        {"The current drawing is Drawing1.", 3},
        {"There is no drawing \"7\".", 1},
        {"none.gpkg: ", 1},
        {"Nothing was opened.", 3},
        {"The drawing was not saved.", 4},
        {"its folder does not exist", 1},
        {"plan.gpkg was left unchanged.", 1},
        {"the file belongs to another open drawing", 1},
        {"Nothing was imported.", 2},
        {"There is nothing to undo.", 1},
        {"There is nothing to redo.", 1},
        {"Not loaded: ", 1},
        {"The drawing stays open.", 1},
        {"The program stays open.", 1},
        {"No drawing is open.", 7},
    };
    EXPECT_EQ(Run("", InFolder(lines)), 0);
    for (const auto& [text, count] : texts) {
        EXPECT_EQ(Count(text), count) << text << " in " << m_output;
    }
}

TEST_F(DrawingCommandsTest, WhatFailsStopsTheScript) {
    for (const char* lines : {"OPEN\n@none\nHELP\n", "SAVE\n", "CLOSE\nUNDO\nHELP\n",
                              "IMPORT\n@town.geojson\nQUIT\n", "UNDO\nHELP\n"}) {
        EXPECT_EQ(Script(lines), 1) << lines << m_output;
        EXPECT_TRUE(Printed("stopped at")) << m_output;
        EXPECT_FALSE(Printed("APPLOAD")) << m_output;
    }
}

TEST_F(DrawingCommandsTest, WithoutADrawingNoCommandCrashes) {
    EXPECT_EQ(Run("", InFolder("CLOSE\nDRAWINGS\nNETWORK_STATS\nNETWORK_CHECK\nSYSTEM_LIST\n"
                               "SYSTEM_ACTIVATE\nx\nNETWORK_IMPORT\n" TESSALY_SOURCE_DIR
                               "/share/sample/town-water.inp\nTown\ntest\nlist\nexit\nNEW\n"
                               "IMPORT\n@town.geojson\nDRAWINGS\n")),
              0)
        << m_output;
    EXPECT_TRUE(Printed("*  1  Drawing2, modified\n")) << m_output;
}

TEST_F(DrawingCommandsTest, AnImportIsOneStepOfTheHistory) {
    MakeTown("plan");
    EXPECT_EQ(
        Script("OPEN\n@plan\nIMPORT\n@metres.geojson\nUNDO\nREDO\nUNDO\nSAVEAS\n@undone\nREDO\n"
               "SAVE\nUNDO\nDRAWINGS\nCLOSE\nn\nOPEN\n@undone\nCLOSE\nOPEN\n@plan\nUNDO\n"),
        1)
        << "nothing to undo in a drawing just opened";
    EXPECT_EQ(Count("Undone: IMPORT\n"), 3) << m_output;
    EXPECT_EQ(Count("Redone: IMPORT\n"), 2) << m_output;
    EXPECT_TRUE(Printed("undone.gpkg, modified\n")) << "what was saved was undone: " << m_output;
    EXPECT_TRUE(Printed("undone.gpkg: 6 entities.\n")) << m_output;
    EXPECT_TRUE(Printed("plan.gpkg: 5 entities.\n")) << m_output;
}

TEST_F(DrawingCommandsTest, AnEmptyDrawingTakesTheCoordinateSystemOfAnImport) {
    constexpr const char* kWarning = "metres: its coordinate system is ETRS89 / UTM zone 32N, the "
                                     "drawing's is WGS 84; positions are not converted\n";
    EXPECT_EQ(Script("IMPORT\n@town.geojson\nIMPORT\n@town.geojson\nSAVE\n@plan\n"), 0);
    EXPECT_FALSE(Printed("coordinate system")) << m_output;
    EXPECT_EQ(Script("OPEN\n@plan\nIMPORT\n@town.geojson\nIMPORT\n@metres.geojson\n"), 0);
    EXPECT_EQ(Count("coordinate system"), 1) << "no warning for the same system: " << m_output;
    EXPECT_TRUE(Printed(kWarning)) << m_output;
    EXPECT_EQ(Script("IMPORT\n@town.geojson\nUNDO\nIMPORT\n@metres.geojson\n"), 0);
    EXPECT_FALSE(Printed("coordinate system")) << "undone together with the import: " << m_output;
}

TEST_F(DrawingCommandsTest, ReplacingAFileIsAskedFor) {
    MakeTown("plan");
    MakeTown("other");
    EXPECT_EQ(Run("", InFolder("SAVE\n@plan\nno\nSAVE\n@plan\nperhaps\nOPEN\n@plan\nSAVEAS\n@plan\n"
                               "NEW\nSAVE\n@other\ny\nDRAWINGS\n")),
              0);
    EXPECT_EQ(Count("exists. Replace it?"), 3) << "not asked for its own file: " << m_output;
    EXPECT_TRUE(Printed("\"perhaps\" is not one of Yes/No.\n")) << m_output;
    EXPECT_TRUE(Printed("plan.gpkg: 5 entities.\n")) << "unchanged: " << m_output;
    EXPECT_TRUE(Printed(InFolder("*  3  @other.gpkg\n"))) << m_output;
}

TEST_F(DrawingCommandsTest, ClosingAsksAboutChanges) {
    const Rows<const char*, bool, bool> cases = {
        {"Yes", true, true},      {"y", true, true},   {"no", true, false}, {"N", true, false},
        {"CANCEL", false, false}, {"c", false, false}, {"", false, false},  {"nope", false, false},
    };
    // All answers in one run of the program, and all files in another.
    MakeTown("plan");
    std::string lines;
    std::string look;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const std::string file = std::to_string(i) + ".gpkg";
        std::filesystem::copy(m_folder / "plan.gpkg", m_folder / file);
        look += "OPEN\n@" + file + "\n";
        lines +=
            "OPEN\n@" + file + "\nIMPORT\n@town.geojson\nCLOSE\n" + std::get<0>(cases[i]) + "\n";
    }
    Run("", InFolder(lines));
    const std::string closing = m_output;
    Run("", InFolder(look));
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto& [answer, isClosed, isSaved] = cases[i];
        const std::string file = std::to_string(i) + ".gpkg";
        EXPECT_EQ(closing.find(file + " is closed.") != closing.npos, isClosed) << answer;
        EXPECT_EQ(closing.find(file + " has unsaved changes.\n") != closing.npos, !isClosed)
            << answer << closing;
        EXPECT_EQ(Printed(file + ": 10 entities"), isSaved) << answer << m_output;
    }
}

TEST_F(DrawingCommandsTest, LeavingAsksAboutEachDrawing) {
    const std::string twoChanged = "IMPORT\n@town.geojson\nNEW\nNEW\nIMPORT\n@town.geojson\n";
    EXPECT_EQ(Script(twoChanged + "QUIT\ny\n@first\nn\nHELP\n"), 0) << m_output;
    EXPECT_EQ(Count("Save the changes to "), 2) << m_output;
    EXPECT_FALSE(Printed("APPLOAD")) << "the program has exited: " << m_output;
    EXPECT_FALSE(Printed("not saved")) << m_output;
    EXPECT_TRUE(m_folder.Has("first.gpkg"));

    EXPECT_EQ(Run("", InFolder(twoChanged + "QUIT\nn\nc\nHELP\n")), 0);
    EXPECT_TRUE(Printed("APPLOAD")) << "the program stays open: " << m_output;
    EXPECT_TRUE(Printed("Drawing1 has unsaved changes.\n"
                        "Drawing3 has unsaved changes.\n"))
        << m_output;
    EXPECT_EQ(Run("", InFolder(twoChanged + "QUIT\ny\n@no-folder/x\nHELP\n")), 0);
    EXPECT_TRUE(Printed("APPLOAD")) << "a failed save does not discard changes: " << m_output;
}

TEST_F(DrawingCommandsTest, DrawingsAreFoundByNumberNameAndFile) {
    MakeTown("plan");
    std::filesystem::create_directory(m_folder / "sub");
    MakeTown("sub/plan");
    const std::string open = "OPEN\n@plan\nOPEN\n@sub/plan\nNEW\n"; // Drawing1 is the first
    const Rows<const char*, const char*> cases = {{"1", "*  1  Drawing1"},
                                                  {"drawing1", "*  1  Drawing1"},
                                                  {"2", "*  2  @plan.gpkg"},
                                                  {"@sub/plan", "*  3  @sub/plan.gpkg"},
                                                  {"plan.gpkg", ""},
                                                  {"0", ""},
                                                  {"5", ""},
                                                  {"1x", ""},
                                                  {"Drawing2", "*  4  Drawing2"}};
    for (const auto& [answer, current] : cases) {
        EXPECT_EQ(Script(open + "SWITCH\n" + answer + "\nDRAWINGS\n"), *current ? 0 : 1)
            << answer << m_output;
        EXPECT_TRUE(Printed(InFolder(current))) << answer << m_output;
    }
}

TEST_F(DrawingCommandsTest, ADrawingCanBeNamedAtTheStart) {
    MakeTown("plan");
    EXPECT_EQ(Run(m_folder.Native("plan.gpkg"), "DRAWINGS\n"), 0);
    EXPECT_TRUE(Printed(InFolder("*  1  @plan.gpkg\n"))) << m_output;
    EXPECT_EQ(Run(m_folder.Native("none.gpkg"), "DRAWINGS\n"), 0);
    EXPECT_TRUE(Printed("none.gpkg: ")) << m_output;
    EXPECT_TRUE(Printed("*  1  Drawing1\n")) << m_output;
    m_folder.Write("list.scr", "DRAWINGS\n");
    const std::string script = " --script " + m_folder.Native("list.scr");
    EXPECT_EQ(Run(m_folder.Native("none.gpkg") + script), 1);
    EXPECT_FALSE(Printed("Drawing1")) << "a script for another drawing is not run: " << m_output;
}

} // namespace
} // namespace Tessaly
