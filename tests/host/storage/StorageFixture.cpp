#include "tests/host/storage/StorageFixture.h"

#include <algorithm>

#include "tests/support/DrawingText.h"

namespace Tessaly {

namespace {

std::string TextOf(sqlite3_stmt* pStatement, int column) {
    const int size = sqlite3_column_bytes(pStatement, column);
    switch (sqlite3_column_type(pStatement, column)) {
    case SQLITE_NULL:
        return "NULL";
    case SQLITE_BLOB: {
        const auto* pBytes =
            static_cast<const unsigned char*>(sqlite3_column_blob(pStatement, column));
        std::string text = "x'";
        for (int i = 0; i < size; ++i) {
            char hex[3];
            std::snprintf(hex, sizeof hex, "%02X", pBytes[i]);
            text += hex;
        }
        return text + "'";
    }
    case SQLITE_TEXT:
        return "'" +
               std::string(reinterpret_cast<const char*>(sqlite3_column_text(pStatement, column)),
                           static_cast<std::size_t>(sqlite3_column_bytes(pStatement, column))) +
               "'";
    case SQLITE_FLOAT: {
        char number[40];
        std::snprintf(number, sizeof number, "%.17g", sqlite3_column_double(pStatement, column));
        return number;
    }
    default:
        return std::to_string(sqlite3_column_int64(pStatement, column));
    }
}

} // namespace

Sqlite::Sqlite(const std::string& path) {
    if (sqlite3_open(path.c_str(), &m_pDatabase) != SQLITE_OK) {
        ADD_FAILURE() << path << ": " << sqlite3_errmsg(m_pDatabase);
    }
}

Sqlite::~Sqlite() {
    sqlite3_close(m_pDatabase);
}

void Sqlite::Execute(const std::string& sql) {
    if (sqlite3_exec(m_pDatabase, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        ADD_FAILURE() << sql << ": " << sqlite3_errmsg(m_pDatabase);
    }
}

std::string Sqlite::Query(const std::string& sql) {
    sqlite3_stmt* pStatement = nullptr;
    if (sqlite3_prepare_v2(m_pDatabase, sql.c_str(), -1, &pStatement, nullptr) != SQLITE_OK) {
        ADD_FAILURE() << sql << ": " << sqlite3_errmsg(m_pDatabase);
        return {};
    }
    std::string rows;
    while (sqlite3_step(pStatement) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(pStatement); ++column) {
            rows += (column ? "|" : "") + TextOf(pStatement, column);
        }
        rows += "\n";
    }
    sqlite3_finalize(pStatement);
    return rows;
}

std::string DumpTable(const std::string& path, const std::string& table) {
    return Sqlite(path).Query("SELECT * FROM \"" + table + "\"");
}

std::string Describe(const AcDbDatabase& database) {
    std::string text = "next " + std::to_string(database.nextId()) + "\n";
    for (const auto& [name, part] : PartsOf(database, true, false)) {
        text += name + ": " + part + "\n";
    }
    return text;
}

AcDbNameId Name(const char* name) {
    return AcDbIntern(name);
}

AcDbObjectId AddNode(AcDbDatabase& database, double x, double y, const char* name) {
    auto point = std::make_unique<AcDbPoint>(AcGePoint3d{x, y});
    point->setAttribute(Name("NAME"), name);
    point->setAttribute(Name("ELEVATION"), x / 3);
    return database.appendEntity(std::move(point));
}

AcDbObjectId AddLine(AcDbDatabase& database, std::vector<AcGePoint3d> vertices) {
    return database.appendEntity(std::make_unique<AcDbPolyline>(vertices));
}

std::unique_ptr<AcDbDatabase> StorageTest::Open(const std::string& name) {
    auto database = std::make_unique<AcDbDatabase>();
    const AcDbStorageResult result = m_storage->Read(*database, m_folder.Wide(name), {});
    EXPECT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
    m_warnings = result.warnings;
    return database;
}

std::string StorageTest::WhyNotRead(const std::string& name) {
    AcDbDatabase database;
    const std::string before = Describe(database);
    const std::string reason =
        WideToUtf8(m_storage->Read(database, m_folder.Wide(name), {}).reason.View());
    if (!reason.empty()) {
        EXPECT_EQ(Describe(database), before) << "a refused file must leave nothing behind";
        EXPECT_EQ(reason.find(m_folder.Native(name)), 0U) << reason;
    }
    return reason;
}

void StorageTest::Save(AcDbDatabase& database, const std::string& name) {
    const AcDbStorageResult result = m_storage->Save(database, m_folder.Wide(name), {});
    EXPECT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
    EXPECT_FALSE(database.isModified());
    m_warnings = result.warnings;
}

void StorageTest::SaveNew(AcDbDatabase& database, const std::string& name) {
    const AcDbStorageResult result = m_storage->SaveAs(database, L"", m_folder.Wide(name), {});
    EXPECT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
    EXPECT_FALSE(database.isModified());
    m_warnings = result.warnings;
}

std::string StorageTest::DescribeFile(const std::string& name) {
    AcDbDatabase database;
    const AcDbStorageResult result =
        MakeGeoPackageStorage()->Read(database, m_folder.Wide(name), {});
    EXPECT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
    return Describe(database);
}

std::vector<std::string> StorageTest::Leftovers(const std::vector<std::string>& expected) const {
    std::vector<std::string> others;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder / "")) {
        const std::string name = entry.path().filename().string();
        if (std::find(expected.begin(), expected.end(), name) == expected.end()) {
            others.push_back(name);
        }
    }
    return others;
}

} // namespace Tessaly
