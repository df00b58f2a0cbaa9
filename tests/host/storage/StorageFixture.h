// Drawings for storage tests, and direct access to files, bypassing the storage.
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

/// A connection from "another program".
class Sqlite {
public:
    explicit Sqlite(const std::string& path);
    ~Sqlite();
    Sqlite(const Sqlite&) = delete;
    Sqlite& operator=(const Sqlite&) = delete;

    /// Fails the test if a statement fails.
    void Execute(const std::string& sql);
    /// All rows of a result: columns separated by "|", rows by newlines, blobs in full as
    /// hexadecimal.
    std::string Query(const std::string& sql);

private:
    sqlite3* m_pDatabase = nullptr;
};

/// The exact content of a table or view.
std::string DumpTable(const std::string& path, const std::string& table);

/// The complete content of a drawing, one object per line, for comparisons.
std::string Describe(const AcDbDatabase& database);

AcDbNameId Name(const char* name);
/// Opens an object for writing, calls the function and closes the object.
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
    /// Reads into a new database; fails the test if that is refused.
    std::unique_ptr<AcDbDatabase> Open(const std::string& name);
    /// The reason of a refusal, in UTF-8; empty if the file was read.
    std::string WhyNotRead(const std::string& name);
    void Save(AcDbDatabase& database, const std::string& name);
    void SaveNew(AcDbDatabase& database, const std::string& name);
    /// The content as seen by a reader in another process.
    std::string DescribeFile(const std::string& name);
    /// Files in the folder other than these.
    std::vector<std::string> Leftovers(const std::vector<std::string>& expected) const;

    TempFolder m_folder;
    std::unique_ptr<IDbStorage> m_storage = MakeGeoPackageStorage();
    std::vector<CString> m_warnings; ///< from the last call
};

} // namespace Tessaly
