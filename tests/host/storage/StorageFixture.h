// Drawings for tests of their storage, and a view of files that does not go through it.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <sqlite3.h>
#include <string>
#include <vector>

#include "host/storage/OpenAndSave.h"
#include "platform/arx/DbDatabase.h"
#include "tests/support/TestHost.h"

namespace Tessaly {

/// A connection of "another program".
class Sqlite {
public:
    explicit Sqlite(const std::string& path);
    ~Sqlite();
    Sqlite(const Sqlite&) = delete;
    Sqlite& operator=(const Sqlite&) = delete;

    /// Fails the test if the statements do.
    void Execute(const std::string& sql);
    /// All rows of a result: values with bars between, rows with line ends. Blobs in
    /// hexadecimal, so that nothing of them is left out.
    std::string Query(const std::string& sql);

private:
    sqlite3* m_pDatabase = nullptr;
};

/// The content of a table, or view, to the last byte.
std::string DumpTable(const std::string& path, const std::string& table);

/// Everything that a drawing holds, a line an object, so that two can be compared.
std::string Describe(const AcDbDatabase& database);

AcDbNameId Name(const char* name);
/// Opens for writing, calls, closes.
template <class T, class Change>
void Edit(AcDbDatabase& database, AcDbObjectId id, Change change) {
    T* pObject = nullptr;
    ASSERT_EQ(acdbOpenObject(pObject, id, AcDb::kForWrite, true, &database), Acad::eOk);
    change(*pObject);
    pObject->close();
}

AcDbObjectId AddNode(AcDbDatabase& database, double x, double y, const char* name);
AcDbObjectId AddLine(AcDbDatabase& database, std::vector<AcGePoint3d> vertices);

class StorageTest : public testing::Test {
protected:
    /// Reads into a new database; fails the test on a refusal.
    std::unique_ptr<AcDbDatabase> Open(const std::string& name);
    /// The reason of a refusal, in UTF-8; empty if it was read.
    std::string WhyNotRead(const std::string& name);
    void Save(AcDbDatabase& database, const std::string& name);
    void SaveNew(AcDbDatabase& database, const std::string& name);
    /// What a reader in another process would find.
    std::string DescribeFile(const std::string& name);
    /// Other files in the folder than those of these names.
    std::vector<std::string> Leftovers(const std::vector<std::string>& expected) const;

    TempFolder m_folder;
    std::unique_ptr<IDbStorage> m_storage = MakeGeoPackageStorage();
    std::vector<CString> m_warnings; ///< of the last call
};

} // namespace Tessaly
