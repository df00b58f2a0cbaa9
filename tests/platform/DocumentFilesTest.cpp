// Documents and their files, with a fake storage for points.
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <map>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbUndo.h"
#include "platform/arx/DrawingPath.h"
#include "platform/arx/EdEditor.h"
#include "platform/arx/EdVariables.h"
#include "platform/win/File.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"

namespace {

namespace fs = std::filesystem;

/// A fake storage whose files contain only the number of entities.
class PointStorage final : public IDbStorage {
public:
    CString Extension() const override { return L".gpkg"; }
    AcDbStorageResult Read(AcDbDatabase& database, const wchar_t* path,
                           const AcDbProgress&) override {
        if (!m_files.contains(path)) {
            return {L"cannot be read", {}};
        }
        database.beginLoading(static_cast<std::uint32_t>(m_files[path]) + 1);
        for (std::uint32_t i = 1; i < database.nextId(); ++i) {
            database.load(AcDbObjectId(i), std::make_unique<AcDbPoint>());
        }
        database.endLoading();
        return {{}, {L"a warning"}};
    }
    AcDbStorageResult Save(AcDbDatabase& database, const wchar_t* path,
                           const AcDbProgress&) override {
        return Write(database, path, L"save");
    }
    AcDbStorageResult SaveAs(AcDbDatabase& database, const wchar_t* from, const wchar_t* path,
                             const AcDbProgress&) override {
        return Write(database, path, L"save as, from " + CString(from));
    }
    void Close(const AcDbDatabase&) override { m_log.emplace_back(L"forgotten"); }

    std::map<CString, std::size_t> m_files;
    std::vector<CString> m_log;
    bool m_bFails = false;

private:
    AcDbStorageResult Write(AcDbDatabase& database, const wchar_t* path, const CString& what) {
        m_log.push_back(what);
        if (m_bFails) {
            return {L"cannot be written", {}};
        }
        m_files[path] = database.entityCount();
        database.markSaved();
        return {};
    }
};

class DocumentFilesTest : public testing::Test, public AcApDocManagerReactor {
protected:
    DocumentFilesTest() {
        m_manager.setStorage(&m_storage);
        m_manager.addReactor(this);
        m_folder.Write("a.gpkg", "");
        m_folder.Write("b.gpkg", "");
        m_storage.m_files = {{File("a.gpkg"), 2}, {File("b.gpkg"), 3}};
    }
    ~DocumentFilesTest() override { m_manager.removeReactor(this); }
    DocumentFilesTest(const DocumentFilesTest&) = delete;
    DocumentFilesTest& operator=(const DocumentFilesTest&) = delete;

    void documentBecameCurrent(AcApDocument* pDoc) override {
        CString entry(L"none");
        if (pDoc) {
            entry.Format(L"%s with %d", pDoc->title(),
                         static_cast<int>(pDoc->database()->entityCount()));
        }
        m_current.push_back(entry);
    }
    CString File(const std::string& name) const { return m_folder.Wide(name); }
    AcApDocument* Open(const CString& path) {
        AcApDocument* pDoc = nullptr;
        m_reason = m_manager.openDocument(path, {}, pDoc).reason;
        return pDoc;
    }
    static void AddPoint(const AcApDocument& document) {
        document.database()->appendEntity(std::make_unique<AcDbPoint>());
    }

    TempFolder m_folder;
    PointStorage m_storage;
    AcApDocManager m_manager;
    std::vector<CString> m_current;
    CString m_reason;
};

/// Runs a function of the test at the beginning of a save, and records its calls.
class SaveReactor final : public AcEditorReactor {
public:
    explicit SaveReactor(std::vector<CString>& log) : m_log(log) { acedEditor()->addReactor(this); }
    ~SaveReactor() override { acedEditor()->removeReactor(this); }
    SaveReactor(const SaveReactor&) = delete;
    SaveReactor& operator=(const SaveReactor&) = delete;

    void beginSave(AcDbDatabase* pDb, const wchar_t* fileName) override {
        m_log.push_back(L"begin " + FileNameOf(fileName));
        if (m_onBegin) {
            m_onBegin(*pDb);
        }
    }
    void saveComplete(AcDbDatabase*, const wchar_t* fileName) override {
        m_log.push_back(L"complete " + FileNameOf(fileName));
    }
    std::function<void(AcDbDatabase&)> m_onBegin;

private:
    std::vector<CString>& m_log;
};

using Log = std::vector<CString>;

TEST_F(DocumentFilesTest, AReadOnlyDrawingCanOnlyBeSavedElsewhere) {
    AcApDocument* const pDoc = Open(File("a"));
    pDoc->setReadOnly(L"another program has it open");
    AddPoint(*pDoc);
    EXPECT_FALSE(m_manager.saveDocument(pDoc, {}).ok());
    EXPECT_FALSE(m_manager.saveDocumentAs(pDoc, File("a.gpkg"), {}).ok());
    EXPECT_TRUE(m_storage.m_log.empty());
    EXPECT_TRUE(pDoc->isModified());
    EXPECT_TRUE(m_manager.saveDocumentAs(pDoc, File("c.gpkg"), {}).ok());
    EXPECT_FALSE(pDoc->isReadOnly());
    EXPECT_TRUE(m_manager.saveDocument(pDoc, {}).ok());
}

TEST_F(DocumentFilesTest, ReactorsAreCalledAfterADrawingIsReadCompletely) {
    const AcApDocument* const pDoc = Open(File("a"));
    ASSERT_NE(pDoc, nullptr) << m_reason.GetString();
    EXPECT_EQ(m_current, (Log{L"a.gpkg with 2"}));
    EXPECT_EQ(pDoc->path(), File("a.gpkg"));
    EXPECT_EQ(pDoc->title().Str(), L"a.gpkg");
    EXPECT_FALSE(pDoc->isModified());
    AddPoint(*pDoc);
    EXPECT_TRUE(pDoc->isModified());
}

TEST_F(DocumentFilesTest, ReactorsAreNotCalledForAnUnreadableFile) {
    m_manager.newDocument();
    m_current.clear();
    EXPECT_EQ(Open(File("missing")), nullptr);
    EXPECT_EQ(m_reason.Str(), L"cannot be read");
    EXPECT_EQ(m_current, Log{});
    EXPECT_EQ(m_manager.documentCount(), 1);
    EXPECT_EQ(Open(L""), nullptr);
    EXPECT_FALSE(m_reason.IsEmpty());
    m_manager.setStorage(nullptr);
    EXPECT_EQ(Open(File("a")), nullptr);
    EXPECT_FALSE(m_reason.IsEmpty());
}

TEST_F(DocumentFilesTest, AFileIsOpenedOnceUnderAllItsPaths) {
    fs::create_symlink(m_folder / "a.gpkg", m_folder / "link.gpkg");
    fs::create_directory_symlink(m_folder / "", m_folder / "here");
    AcApDocument* const pDoc = Open(File("a.gpkg"));
    Open(File("b"));
    m_current.clear();
    for (const char* name : {"a", "a.gpkg", "./a", "here/a.gpkg", "link"}) {
        EXPECT_EQ(m_manager.documentOf(File(name)), pDoc) << name;
    }
    EXPECT_EQ(Open(File("link")), pDoc);
    EXPECT_EQ(Open(File("a")), pDoc);
    EXPECT_EQ(m_current, (Log{L"a.gpkg with 2"})) << "already current the second time";
    EXPECT_EQ(m_manager.documentCount(), 2);
}

TEST_F(DocumentFilesTest, ChangesOfReactorsBeforeASaveAreSavedAndNotUndoable) {
    AcApDocument* const pDoc = Open(File("a"));
    AddPoint(*pDoc);
    SaveReactor reactor(m_storage.m_log);
    reactor.m_onBegin = [](AcDbDatabase& database) {
        database.appendEntity(std::make_unique<AcDbPoint>());
    };
    m_storage.m_bFails = true;
    EXPECT_EQ(m_manager.saveDocument(pDoc, {}).reason.Str(), L"cannot be written");
    EXPECT_TRUE(pDoc->isModified());
    EXPECT_EQ(m_storage.m_log, (Log{L"begin a.gpkg", L"save"}));

    m_storage.m_log.clear();
    m_storage.m_bFails = false;
    EXPECT_TRUE(m_manager.saveDocument(pDoc, {}).ok());
    EXPECT_FALSE(pDoc->isModified());
    EXPECT_EQ(m_storage.m_log, (Log{L"begin a.gpkg", L"save", L"complete a.gpkg"}));
    EXPECT_EQ(m_storage.m_files[File("a.gpkg")], 5U);

    AcDbDatabase& database = *pDoc->database();
    EXPECT_TRUE(database.undo().undo());
    EXPECT_FALSE(database.undo().undo());
    EXPECT_EQ(database.entityCount(), 4U) << "the user's own point is undone";
    EXPECT_FALSE(database.isUndoRecordingDisabled());
}

TEST_F(DocumentFilesTest, ABackgroundDrawingIsTheWorkingOneDuringItsSave) {
    AcApDocument* const pDoc = Open(File("a"));
    const AcApDocument* const pCurrent = Open(File("b"));
    const auto* const services = acdbHostApplicationServices();
    SaveReactor reactor(m_storage.m_log);
    bool closed = true;
    reactor.m_onBegin = [&](const AcDbDatabase&) {
        EXPECT_EQ(services->workingDatabase(), pDoc->database());
        closed = m_manager.closeDocument(pDoc);
    };
    EXPECT_TRUE(m_manager.saveDocument(pDoc, {}).ok());
    EXPECT_EQ(services->workingDatabase(), pCurrent->database());
    EXPECT_FALSE(closed) << "a drawing being saved stays open";
    EXPECT_TRUE(m_manager.closeDocument(pDoc));
    EXPECT_EQ(m_storage.m_log.back().Str(), L"forgotten");
}

TEST_F(DocumentFilesTest, SavingUnderANameChangesTheDrawingsFile) {
    AcApDocument* const pDoc = m_manager.newDocument(L"Drawing1");
    Open(File("b"));
    EXPECT_FALSE(m_manager.saveDocument(pDoc, {}).ok()) << "no file yet";
    EXPECT_FALSE(m_manager.saveDocumentAs(pDoc, L"", {}).ok());
    EXPECT_FALSE(m_manager.saveDocumentAs(pDoc, File("b.gpkg"), {}).ok())
        << "open in another document";
    m_storage.m_bFails = true;
    EXPECT_FALSE(m_manager.saveDocumentAs(pDoc, File("new"), {}).ok());
    EXPECT_STREQ(pDoc->fileName(), L"Drawing1");
    m_storage.m_bFails = false;
    m_storage.m_log.clear();
    const SaveReactor reactor(m_storage.m_log);
    for (const char* name : {"new", "newer.v2", "newer.v2"}) {
        EXPECT_TRUE(m_manager.saveDocumentAs(pDoc, File(name), {}).ok());
    }
    EXPECT_EQ(pDoc->title().Str(), L"newer.v2.gpkg");
    EXPECT_EQ(m_storage.m_log,
              (Log{L"begin new.gpkg", L"save as, from ", L"complete new.gpkg",
                   L"begin newer.v2.gpkg", L"save as, from " + File("new.gpkg"),
                   L"complete newer.v2.gpkg", L"begin newer.v2.gpkg",
                   L"save as, from " + File("newer.v2.gpkg"), L"complete newer.v2.gpkg"}));
}

TEST_F(DocumentFilesTest, TheVariablesDescribeTheCurrentDrawing) {
    AcApDocManager& manager = *acDocManagerPtr();
    manager.setStorage(&m_storage);
    const auto values = [] {
        CString all;
        for (const wchar_t* name : {L"DWGNAME", L"dwgprefix", L"DwgTitled", L"DBMOD"}) {
            CString value(L"before");
            EXPECT_TRUE(acedGetVar(name, value)) << name;
            all += value + L"|";
        }
        return all;
    };
    EXPECT_EQ(values().Str(), L"||||") << "no drawing";
    AcApDocument* const pNew = manager.newDocument(L"Drawing1");
    EXPECT_EQ(values().Str(), L"Drawing1.dwg||0|0|");
    AddPoint(*pNew);
    EXPECT_EQ(values().Str(), L"Drawing1.dwg||0|1|");
    AcApDocument* pDoc = nullptr;
    manager.openDocument(File("a.gpkg"), {}, pDoc);
    EXPECT_EQ(values(), L"a.dwg|" + File("") + L"|1|0|");
    CString value(L"before");
    EXPECT_FALSE(acedGetVar(L"DWG", value));
    EXPECT_TRUE(value.IsEmpty());
    manager.closeDocument(pDoc);
    manager.closeDocument(pNew);
    manager.setStorage(nullptr);
}

TEST(DrawingNames, EndInFourCharactersForModulesToCutOff) {
    const Rows<const wchar_t*, const wchar_t*> cases = {
        {L"plan.gpkg", L"plan.dwg"},        {L"/data/a.b.gpkg", L"a.b.dwg"},
        {L"Drawing1", L"Drawing1.dwg"},     {L"/data.old/noext", L"noext.dwg"},
        {L"C:\\plans\\x.shp", L"x.dwg"},    {L"town.dwg", L"town.dwg"},
        {L"/data/.hidden", L".hidden.dwg"}, {L"", L".dwg"},
    };
    for (const auto& [file, name] : cases) {
        EXPECT_EQ(acdbDrawingName(file).Str(), name);
    }
}

TEST(DrawingPaths, AreAbsoluteAndHaveAnExtension) {
    const TempFolder folder;
    fs::create_directory(folder / "real");
    folder.Write("there.v1", "");
    fs::create_directory_symlink(folder / "real", folder / "link");
    const Rows<const char*, const char*> cases = {
        {"plan", "plan.gpkg"},           {"plan.GPKG", "plan.GPKG"},
        {"plan.v2", "plan.v2.gpkg"},     {"there.v1", "there.v1"},
        {"link/plan", "real/plan.gpkg"}, {"real/../plan", "plan.gpkg"},
        {"none/plan", "none/plan.gpkg"},
    };
    for (const auto& [typed, path] : cases) {
        EXPECT_EQ(acdbDrawingPath(folder.Wide(typed), L".gpkg"), folder.Wide(path)) << typed;
    }
    EXPECT_TRUE(acdbDrawingPath(L"", L".gpkg").IsEmpty());
    EXPECT_EQ(acdbDrawingPath(L"plan", L".gpkg"),
              Utf8ToWide((fs::current_path() / "plan.gpkg").string()));
    EXPECT_EQ(acdbDrawingPath(L"a\\plan", L".gpkg").Find(L'\\'), -1);
}

} // namespace
