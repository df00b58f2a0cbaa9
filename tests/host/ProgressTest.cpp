// Progress of long operations in the console, and stopping them.
#include <csignal>
#include <cstdio>
#include <gtest/gtest.h>
#include <thread>

#include "host/HostCommands.h"
#include "host/ImportCommand.h"
#include "host/Prompts.h"
#include "host/console/ConsolePort.h"
#include "platform/arx/DbUndo.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"

namespace Tessaly {
namespace {

using std::chrono::milliseconds;

TEST(ProgressText, ComesLateAndOnlyWhenItChanges) {
    const Rows<int, int, int, const wchar_t*> cases = {
        {1, 0, 0, L""},
        {1, 99, 499, L""},
        {1, 40, 500, L"a: 40 %"},
        {1, 40, 600, L""},
        {1, 41, 600, L"a: 41 %"},
        {10, 0, 100, L""},
        {10, 47, 500, L"a: 40 %"},
        {10, 49, 900, L""},
        {10, 50, 900, L"a: 50 %"},
        {10, 100, 900, L"a: 100 %"},
    };
    ProgressText lines(1);
    int step = 1;
    for (const auto& [itsStep, percent, time, itsText] : cases) {
        if (itsStep != step) {
            step = itsStep;
            lines = ProgressText(step);
        }
        const auto text = lines.Next(L"a", percent, milliseconds(time));
        EXPECT_EQ(text.value_or(L"").Str(), itsText) << percent;
    }
    const std::wstring longName(200, L'x');
    EXPECT_LT(ProgressText(1).Next(longName, 100, kQuietTime)->GetLength(), 80);
}

bool IsDefault(int signal) {
    struct sigaction now {};
    sigaction(signal, nullptr, &now);
    return now.sa_handler == SIG_DFL;
}

class ConsoleWorkTest : public testing::Test {
protected:
    ConsoleWorkTest() : m_pBefore(SetHostPort(&m_port)) {}
    ~ConsoleWorkTest() override {
        SetHostPort(m_pBefore);
        std::fclose(m_output);
    }
    ConsoleWorkTest(const ConsoleWorkTest&) = delete;
    ConsoleWorkTest& operator=(const ConsoleWorkTest&) = delete;

    std::string Output() const {
        std::rewind(m_output);
        std::string text(4096, '\0');
        text.resize(std::fread(text.data(), 1, text.size(), m_output));
        return text;
    }

    std::FILE* m_output = std::tmpfile();
    ConsolePort m_port{m_output};
    IHostPort* m_pBefore;
};

TEST_F(ConsoleWorkTest, InterruptsCountOnlyWhileItGoesOn) {
    ASSERT_TRUE(IsDefault(SIGINT));
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(m_port.ShowProgress(L"a", 0)) << "an earlier stop has no effect";
        EXPECT_FALSE(IsDefault(SIGINT));
        std::raise(SIGINT);
        EXPECT_FALSE(m_port.ShowProgress(L"a", 1));
        EXPECT_FALSE(m_port.ShowProgress(L"b", 0)) << "the whole operation stops";
        m_port.EndProgress();
        EXPECT_TRUE(IsDefault(SIGINT));
    }
    EXPECT_EQ(Output(), "");

    std::signal(SIGINT, SIG_IGN);
    m_port.ShowProgress(L"a", 0);
    std::raise(SIGINT);
    EXPECT_TRUE(m_port.ShowProgress(L"a", 1)) << "an ignored signal stays ignored";
    m_port.EndProgress();
    std::signal(SIGINT, SIG_DFL);
}

TEST_F(ConsoleWorkTest, IsToldInLinesOfTheirOwn) {
    m_port.Print(L"File: ");
    m_port.ShowProgress(L"Reading a", 0);
    std::this_thread::sleep_for(kQuietTime + milliseconds(50));
    m_port.ShowProgress(L"Reading a", 34);
    m_port.ShowProgress(L"Reading a", 35);
    m_port.Print(L"a note\n");
    m_port.ShowProgress(L"Reading a", 51);
    m_port.EndProgress();
    EXPECT_EQ(Output(), "File: \nReading a: 30 %\na note\nReading a: 50 %\n");
}

/// A long import that the user stops.
class TiredImporter final : public IDbImporter {
public:
    AcDbImportResult Import(const wchar_t* path, const AcDbProgress& progress) override {
        AcDbImportResult result;
        std::raise(SIGINT);
        if (!progress(10)) {
            result.reason = path + CString(L": reading was stopped");
        }
        return result;
    }
    bool IsSameCoordinateSystem(const CString&, const CString&) override { return true; }
    CString CoordinateSystemName(const CString&) override { return {}; }
};

class OneLine final : public IInputLines {
public:
    explicit OneLine(const wchar_t* line) : m_line(line) {}
    std::optional<CString> Next() override { return std::exchange(m_line, std::nullopt); }
    int LineNumber() const override { return 1; }
    CString Name() const override { return L"test"; }
    bool WantsEcho() const override { return false; }

private:
    std::optional<CString> m_line;
};

TEST_F(ConsoleWorkTest, AnImportThatIsStoppedFailsAndChangesNothing) {
    TiredImporter importer;
    acdbSetImporter(&importer);
    RegisterHostCommands();
    AcApDocument* const pDoc = acDocManagerPtr()->newDocument();
    OneLine file(L"town.shp");
    m_port.SetInput(&file);
    EXPECT_EQ(acedRunner().Run({L"import"}), CommandOutcome::Failed);
    EXPECT_EQ(Output(), "> import\nFile: town.shp: reading was stopped\nNothing was imported.\n");
    EXPECT_FALSE(pDoc->isModified());
    EXPECT_TRUE(IsDefault(SIGINT));
    acDocManagerPtr()->closeDocument(pDoc);
    acdbSetImporter(nullptr);
}

/// Stops at the entity with this number.
class BreakingReactor final : public AcDbDatabaseReactor {
public:
    void objectAppended(const AcDbDatabase* pDatabase, const AcDbObject*) override {
        if (pDatabase->entityCount() == 3) {
            throw std::runtime_error("no more");
        }
    }
};

TEST(ImportedFeatures, ComeAllOrNotAtAll) {
    AcDbDatabase database;
    BreakingReactor reactor;
    database.addReactor(&reactor);
    std::vector<AcDbImportLayer> layers(2);
    layers[0].name = L"wells";
    layers[0].features.resize(2);
    layers[1].name = L"springs";
    layers[1].coordinateSystem = L"somewhere";
    layers[1].features.resize(2);
    for (AcDbImportLayer& layer : layers) {
        for (AcDbImportFeature& feature : layer.features) {
            feature.points.resize(1);
            feature.attributes.set(AcDbIntern("depth"), 12);
        }
    }
    EXPECT_THROW(AddToDrawing(database, layers), std::runtime_error);
    EXPECT_EQ(database.entityCount(), 0U);
    EXPECT_TRUE(database.findLayer(L"wells").isNull());
    EXPECT_TRUE(database.coordinateSystem().IsEmpty());

    database.removeReactor(&reactor);
    AddToDrawing(database, layers);
    EXPECT_EQ(database.coordinateSystem().Str(), L"somewhere");
    std::string names;
    database.forEachEntity([&names](const AcDbEntity& entity) {
        names += WideToUtf8(entity.layer().View());
        names += std::to_string(*entity.attribute(AcDbIntern("depth")).asInteger()) + " ";
    });
    EXPECT_EQ(names, "wells12 wells12 springs12 springs12 ");
}

TEST(Warnings, AreCutShort) {
    TestHost host;
    PrintWarnings(std::vector<CString>(20, L"w"));
    EXPECT_EQ(host.TakeOutput().size(), 40U);
    PrintWarnings(std::vector<CString>(23, L"w"));
    EXPECT_TRUE(host.Output().ends_with("w\n... and 3 more warnings.\n")) << host.Output();
    EXPECT_EQ(host.Output().find("... and"), 40U);
}

} // namespace
} // namespace Tessaly
