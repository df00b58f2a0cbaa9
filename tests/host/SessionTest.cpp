#include "host/Options.h"
#include "tests/host/ProgramTest.h"

namespace Tessaly {
namespace {

constexpr const char* kImportTown =
    "NETWORK_IMPORT\n" TESSALY_SOURCE_DIR "/share/sample/town-water.inp\nTown\n";

TEST_F(ProgramTest, ImportsAndChecksANetworkByScript) {
    EXPECT_EQ(RunScript(std::string("# comment\n\n") + kImportTown +
                        "system_list\nSYSTEM_ACTIVATE\ntown\nNetwork_Stats\nNETWORK_CHECK\n"),
              0)
        << m_output;
    EXPECT_TRUE(Printed("  Town (Water supply)\n")) << m_output;
    EXPECT_TRUE(Printed("Town is the active system.")) << m_output;
    EXPECT_TRUE(Printed("components")) << m_output;
}

TEST_F(ProgramTest, AScriptStopsAtItsFirstFailureWithItsLine) {
    EXPECT_EQ(RunScript("SYSTEM_LIST\nNO_SUCH_COMMAND\nSYSTEM_LIST\n"), 1);
    EXPECT_TRUE(Printed("Unknown command \"NO_SUCH_COMMAND\"")) << m_output;
    EXPECT_TRUE(Printed("script.scr:2: stopped at \"NO_SUCH_COMMAND\"")) << m_output;

    EXPECT_EQ(RunScript("NETWORK_IMPORT\nno-such-file.inp\nTown\nSYSTEM_LIST\n"), 1);
    EXPECT_TRUE(Printed("no-such-file.inp")) << m_output;
    EXPECT_TRUE(Printed("script.scr:1: stopped")) << m_output;
    EXPECT_EQ(RunScript("SYSTEM_LISTX\n"), 1) << "only whole ids count at the host's prompt";
    EXPECT_EQ(Run("--script " + m_folder.Native("missing.scr")), 2);
}

TEST_F(ProgramTest, ImportsLinesOfAnyFileAsANetwork) {
    m_folder.Write("pipes.geojson", R"({"type": "LineString", "coordinates": [[0, 0], [5, 1]]})");
    const std::string import = "NETWORK_IMPORT\n" + m_folder.Native("pipes.geojson") + "\nNet\n";
    EXPECT_EQ(RunScript(import + "sewer\n0.5\nNETWORK_STATS\n"), 0) << m_output;
    EXPECT_TRUE(
        Printed("Net: 2 nodes, 1 sections.\n2 of the nodes were created at the ends of lines."))
        << m_output;
    EXPECT_TRUE(Printed("Net (Sewer)")) << m_output;
    EXPECT_TRUE(Printed("share a node <1e-06>: ")) << m_output;
    EXPECT_EQ(RunScript(import + "\n\nUNDO\nSYSTEM_LIST\n"), 0) << m_output;
    EXPECT_TRUE(Printed("The drawing has no systems.")) << m_output;
    // In the text console each command is an undo step of its own.
    EXPECT_EQ(RunScript("test\n" + import + "\n\nexit\nUNDO\nSYSTEM_LIST\n"), 0) << m_output;
    EXPECT_TRUE(Printed("Undone: NETWORK_IMPORT\n")) << m_output;
    EXPECT_TRUE(Printed("The drawing has no systems.")) << m_output;
    EXPECT_EQ(RunScript(import + "99\n"), 1) << m_output;
    EXPECT_EQ(RunScript(import + "1\n-1\n"), 1) << m_output;
    EXPECT_EQ(RunScript("NEW\nCLOSE\nCLOSE\nNETWORK_STATS\n"), 1) << m_output;
    EXPECT_TRUE(Printed("No drawing is open.")) << m_output;
}

TEST_F(ProgramTest, AFailedImportLeavesTheDrawingAsItWas) {
    m_folder.Write("cut.inp", "[JUNCTIONS]\n J1 10\n[PIPES]\n P1 J1\n[COORDINATES]\n J1 0 0\n");
    EXPECT_EQ(Run("", "NETWORK_IMPORT\n" + m_folder.Native("cut.inp") +
                          "\nCut\nSYSTEM_LIST\nNETWORK_CHECK\n"),
              0);
    EXPECT_TRUE(Printed("cut.inp:4: ")) << m_output;
    EXPECT_TRUE(Printed("Nothing was imported.")) << m_output;
    EXPECT_TRUE(Printed("The drawing has no systems.")) << m_output;

    const std::string twice = std::string(kImportTown) + kImportTown + "SYSTEM_LIST\n";
    EXPECT_EQ(Run("", twice), 0);
    EXPECT_EQ(m_output.find("Town (Water supply)"), m_output.rfind("Town (Water supply)"))
        << "a duplicate name adds nothing";
}

TEST_F(ProgramTest, TheConsoleRunsInsideTheHost) {
    EXPECT_EQ(Run("", "test\nlist\nsystem_list\nnonsense\n\x1B\nexit\nSYSTEM_LIST\nQUIT\nHELP\n"),
              0);
    for (const char* text : {"Halvane Command processor.", "cmdId (description)\n",
                             "SYSTEM_LIST (lists the systems of the drawing)",
                             "The drawing has no systems.", "Unknown command!"}) {
        EXPECT_TRUE(Printed(text)) << text << " in " << m_output;
    }
    EXPECT_FALSE(Printed("APPLOAD")) << "nothing runs after QUIT";
}

TEST_F(ProgramTest, TheEndOfTheInputEndsEveryPrompt) {
    EXPECT_EQ(Run("", "test\nlist\n"), 0) << "the console is told to quit";
    EXPECT_EQ(Run("", "NETWORK_IMPORT\n"), 0);
    EXPECT_TRUE(Printed("Nothing was imported")) << m_output;
}

TEST_F(ProgramTest, WritesATraceOnlyWhenAsked) {
    EXPECT_EQ(Run("--trace " + m_folder.Native("trace.log"), "QUIT\n"), 0);
    const std::string trace = m_folder.Read("trace.log");
    std::size_t at = 0;
    for (const char* text :
         {"CWsManager - 1", "CWsManager - 2", "Module = ORVZNetwork.arx, ON", "DLL Loaded",
          "Plugin entry found", "---------------------------", "CWsManager - 3", "CWsManager - 4",
          "CWsManager - 5", "CWsManager - 6", "CWsManager - 7", "CAD will close"}) {
        at = trace.find(std::string("], ") + text + "\n", at);
        EXPECT_NE(at, std::string::npos) << text;
    }
    std::filesystem::remove(m_folder / "trace.log");
    Run("", "QUIT\n");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(m_folder / "support")) {
        EXPECT_EQ(entry.path().extension() == ".log", false) << entry.path();
    }
}

TEST_F(ProgramTest, ProblemsOfConfigurationsArePrintedOnceAndStandInTheTrees) {
    Run("", "QUIT\n");
    m_folder.Write("support/repository/QUERY/CUT.xml", "<item");
    m_folder.Write("support/Settings.ini", "[General]\nNET_REPOSITORY=/no/such/net\n");
    EXPECT_EQ(Run("", "TREE\nTREE\nQUIT\n"), 0);
    for (const std::string& problem : {m_folder.Native("support/repository/QUERY/CUT.xml: "),
                                       std::string("/no/such/net: there is no such folder\n")}) {
        const std::string line = "\n" + problem;
        EXPECT_TRUE(Printed(line)) << m_output;
        EXPECT_EQ(m_output.find(line), m_output.rfind(line)) << m_output;
        EXPECT_TRUE(Printed("\n  " + problem)) << m_output;
    }
}

TEST_F(ProgramTest, AThrowingPluginIsNamedAndTheCommandLineGoesOn) {
    const struct {
        const char* module;
        const char* line;
    } cases[] = {
        {"ThrowsInHook3.arx", "ThrowsInHook3.arx: PluginHook3 failed: no licence for this machine"},
        {"ThrowingProvider.arx",
         "ThrowingProvider.arx: ORVPluginInfoProvider failed: no provider today"},
    };
    for (const auto& row : cases) {
        std::filesystem::remove_all(m_folder / "install");
        EXPECT_EQ(Run("--install " + InstallOnly(row.module), "HELP\n"), 0);
        EXPECT_TRUE(Printed(row.line)) << m_output;
        EXPECT_TRUE(Printed("APPLOAD")) << m_output;
    }
    std::filesystem::remove(m_folder / "install/ORVZWorkspaceCore.arx");
    Run("--install " + m_folder.Native("install"), "QUIT\n");
    EXPECT_TRUE(Printed("ORVZWorkspaceCore.arx was not loaded: ")) << m_output;
}

TEST_F(ProgramTest, WhatAPluginThrowsCostsNoWork) {
    const std::string install = "--install " + InstallOnly("Throws.arx");
    const std::string plan = m_folder.Native("plan.gpkg");
    m_folder.Write("a.geojson", R"({"type": "Point", "coordinates": [3, 4]})");
    EXPECT_EQ(Run(install, "THROW_NUMBER\nTHROW_AFTER\nTHROW_EVENTS\nIMPORT\n" +
                               m_folder.Native("a.geojson") + "\nSAVEAS\n" + plan +
                               "\nCLOSE\nNEW\nNEW\nCLOSE\nDRAWINGS\nQUIT\n"),
              0);
    for (const char* line : {
             "Throws.arx: THROW_NUMBER failed: unknown exception",
             "Throws.arx: OnAfterCommandCompleted failed: after the command",
             "Throws.arx: OnBeginSaveAcadDocument failed: begin of save",
             "Throws.arx: OnSaveCompletedAcadDocument failed: end of save",
             "Throws.arx: OnAcadDocumentToBeDestroyed failed: drawing goes",
             "Throws.arx: OnAcadDocumentDestroyed failed: drawing gone",
             "*  1  Drawing",
             "Throws.arx registers the command SAVE, which is built into the program.",
             "Throws.arx registers the command Throw_Number, which differs from THROW_NUMBER only",
         }) {
        EXPECT_TRUE(Printed(line)) << line << " in " << m_output;
    }
    EXPECT_TRUE(m_folder.Has("plan.gpkg"));
    EXPECT_EQ(Run(plan, "QUIT\n"), 0);
    EXPECT_TRUE(Printed("plan.gpkg: 1 entities.")) << m_output;
}

TEST_F(ProgramTest, AScriptNamesTheCommandThatThrewInsideTheTextConsole) {
    const std::string install = "--install " + InstallOnly("Throws.arx");
    m_folder.Write("script.scr", "NEW\ntest\nlist\nthrow_hidden\nexit\nNEW\n");
    EXPECT_EQ(Run(install + " --script " + m_folder.Native("script.scr")), 1);
    EXPECT_TRUE(Printed("THROW_HIDDEN (throws)")) << "the console lists hidden commands";
    EXPECT_TRUE(Printed("Throws.arx: THROW_HIDDEN failed: unknown exception")) << m_output;
    EXPECT_TRUE(Printed("script.scr:4: stopped at \"THROW_HIDDEN\"")) << m_output;
}

TEST_F(ProgramTest, HelpListsByPurposeAndExplainsOneAndHiddenCommandsAreNoneOfThem) {
    EXPECT_EQ(RunScript("HELP\nHELP zoom\nhelp system_edit\n"), 0) << m_output;
    std::size_t at = 0;
    for (const char* text : {"Program\n  HELP ", "\nDrawings\n  OPEN ", "\nCreate\n",
                             "ZOOM (View)\n  zooms the view", "SYSTEM_EDIT (Edit)\n  "}) {
        at = m_output.find(text, at);
        EXPECT_NE(at, std::string::npos) << text << " in " << m_output;
    }
    for (const char* hidden : {"SILENT_SYSTEM_DEL", "SYSTEM_DBLCLICK", "QRYDROP"}) {
        EXPECT_FALSE(Printed(hidden)) << hidden;
    }
    EXPECT_EQ(RunScript("HELP silent_system_del\n"), 1);
    EXPECT_EQ(RunScript(std::string(kImportTown) + "SILENT_SYSTEM_DEL\n"), 1);
    EXPECT_TRUE(Printed("Unknown command \"SILENT_SYSTEM_DEL\"")) << m_output;
    EXPECT_EQ(RunScript(std::string(kImportTown) +
                        "SYSTEM_ACTIVATE\nTown\ntest\nsilent_system_del\nexit\nSYSTEM_LIST\n"),
              0);
    EXPECT_TRUE(Printed("The drawing has no systems.")) << m_output;
}

TEST_F(ProgramTest, ADamagedListOfModulesIsKeptAside) {
    Run("", "QUIT\n");
    m_folder.Write("support/ModuleRegistry.xml", "<moduleRegistry ><module on=\"1\" fileName=\"a");
    EXPECT_EQ(Run("", "DRAWINGS\n"), 0);
    EXPECT_TRUE(Printed("ModuleRegistry.xml is damaged (")) << m_output;
    EXPECT_TRUE(Printed("ModuleRegistry.xml.damaged-1")) << m_output;
    EXPECT_TRUE(Printed("Drawing1")) << m_output;
    Run("", "SYSTEM_LIST\n");
    EXPECT_FALSE(Printed("damaged")) << "the list of the product is in its place again";
    EXPECT_TRUE(Printed("The drawing has no systems.")) << m_output;
}

/// The name of an X server that does not run.
std::string AbsentDisplay() {
    std::ostringstream sockets; // those without a file, too
    sockets << std::ifstream("/proc/net/unix").rdbuf();
    int number = 4711;
    for (std::string path;; ++number) {
        path = "/tmp/.X11-unix/X" + std::to_string(number);
        if (!std::filesystem::exists(path) &&
            sockets.str().find(path + "\n") == std::string::npos) {
            return ":" + std::to_string(number);
        }
    }
}

TEST_F(ProgramTest, WithoutADisplayThatAnswersTheConsoleIsStarted) {
    const std::string absent = "DISPLAY=" + AbsentDisplay();
    for (const std::string& display :
         {"QT_QPA_PLATFORM= WAYLAND_DISPLAY= " + absent, "QT_QPA_PLATFORM=xcb " + absent,
          "QT_QPA_PLATFORM= DISPLAY= WAYLAND_DISPLAY=" + m_folder.Native("nobody-listens")}) {
        // A desktop would wait for its user.
        const std::string environment = display + " timeout 60";
        EXPECT_EQ(RunIn(environment, "", "DRAWINGS\n"), 0) << environment;
        EXPECT_TRUE(Printed("No usable display")) << environment << m_output;
        EXPECT_TRUE(Printed("Drawing1")) << environment << m_output;
    }
}

TEST_F(ProgramTest, APictureIsDrawnThoughAScriptLeavesPromptsOpen) {
    m_folder.Write("open.scr", "NEW\nNETWORK_IMPORT\n");
    const std::string picture = m_folder.Native("desktop.png");
    EXPECT_EQ(RunIn("QT_QPA_PLATFORM= DISPLAY=" + AbsentDisplay() + " timeout 60",
                    "--snapshot " + picture + " --first " + m_folder.Native("open.scr")),
              0)
        << m_output;
    EXPECT_GT(m_folder.Read("desktop.png").size(), 1000u);
}

TEST_F(ProgramTest, SpeaksTheLanguageOfTheSettingsFromItsFirstLineOn) {
    m_folder.Write("network.inp", "[JUNCTIONS]\nA 1\nB x\n[COORDINATES]\nA 0 0\nB 1 1\n");
    std::filesystem::create_directories(m_folder.Native("support"));
    m_folder.Write("support/Settings.ini", "[General]\nlanguage=de\n");
    Run("--help");
    EXPECT_TRUE(Printed("Befehlszeile auf Standardeingabe")) << m_output;
    Run("--no-such-option");
    EXPECT_TRUE(Printed("unbekannte Option")) << m_output;
    const std::string plan = m_folder.Native("plan");
    Run("", "OPEN\n/no/such/file\nNETWORK_IMPORT\n" + m_folder.Native("network.inp") +
                "\nN\nSYSTEM_ADD\nS\n1\n1\nSAVE\n" + plan + "\nSAVEAS\n" + plan +
                "\nSYSTEM_DEL\nS\nj\nCLOSE\n_n\nUNDO\nNO_SUCH\n");
    for (const char* const text :
         {"Tessaly. HELP listet", "die Datei ist nicht vorhanden", "Es wurde nichts geöffnet.",
          ":3: Höhe \"x\" ist keine Zahl", "S löschen? [Ja/Nein] <Nein>: j", "S wurde gelöscht.",
          "Änderungen an plan.gpkg speichern? [Ja/Nein/Abbrechen] <Abbrechen>: _n",
          "plan.gpkg ist geschlossen.", "Unbekannter Befehl „NO_SUCH“"}) {
        EXPECT_TRUE(Printed(text)) << text << "\n" << m_output;
    }
}

TEST(Options, AreReadOrRefused) {
    const struct {
        std::vector<std::string> arguments;
        const wchar_t* error;
    } cases[] = {
        {{}, L""},
        {{"--console", "--script", "a.scr", "--trace", "t"}, L""},
        {{"--script"}, L"--script requires a value"},
        {{"--support", ""}, L"--support requires a value"},
        {{"--konsole"}, L"--konsole: unknown option"},
        {{"--console", "plan.gpkg", "--trace", "t"}, L""},
        {{"plan.gpkg", "b.gpkg"}, L"b.gpkg: only one drawing can be given"},
        {{""}, L": unknown option"},
        {{"--theme", "dark"}, L""},
        {{"--theme", "pink"}, L"--theme pink: must be light or dark"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(ReadOptions(row.arguments).Error(), row.error);
    }
    EXPECT_EQ(*ReadOptions({"--script", "\xC3\xA8.scr"}).options.script, L"\u00E8.scr");
    EXPECT_EQ(ReadOptions({"\xC3\xA8.gpkg"}).options.drawing, L"\u00E8.gpkg");
}

} // namespace
} // namespace Tessaly
