// A drawing of some size that is to survive what goes wrong.
#pragma once

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/win/CodePage.h"
#include "tests/host/storage/StorageFixture.h"

namespace Tessaly {

class FailureTest : public StorageTest {
protected:
    /// A drawing of some size, saved as "plan.gpkg".
    void MakePlan(AcDbDatabase& database, int nodes = 300) {
        for (int i = 0; i < nodes; ++i) {
            m_ids.push_back(AddNode(database, i, i, "a node of the plan"));
        }
        Edit<AcDbDictionary>(database, database.dictionary(L"__HV__"),
                             [](AcDbDictionary& records) { records.setAt(L"r", L"text"); });
        SaveNew(database, "plan.gpkg");
    }
    void Rename(AcDbDatabase& database, const char* name) {
        for (const AcDbObjectId id : m_ids) {
            Edit<AcDbPoint>(database, id,
                            [&](AcDbPoint& point) { point.setAttribute(Name("NAME"), name); });
        }
    }
    /// Saves where it must fail, and tells why it did.
    std::string WhyNotSaved(AcDbDatabase& database, const std::string& name) {
        return Refused(database, m_storage->Save(database, m_folder.Wide(name), {}));
    }
    std::string WhyNotSavedAs(AcDbDatabase& database, const std::string& path) {
        const std::string from = path.find("/disk/") == path.npos ? "plan.gpkg" : "disk/plan.gpkg";
        return Refused(database, m_storage->SaveAs(database, m_folder.Wide(from),
                                                   CString(Utf8ToWide(path)), {}));
    }
    std::string Refused(const AcDbDatabase& database, const AcDbStorageResult& result) {
        EXPECT_FALSE(result.ok());
        EXPECT_TRUE(database.isModified()) << "nothing was saved";
        return WideToUtf8(result.reason.View());
    }
    /// Runs in a process of its own, as nobody, to whom permissions mean something.
    template <class Work>
    void AsNobody(Work work) {
        ASSERT_EQ(chown(m_folder.Native("").c_str(), 65534, 65534), 0);
        const pid_t child = fork();
        if (child == 0) {
            const bool isNobody = setgid(65534) == 0 && setuid(65534) == 0;
            if (!isNobody) {
                _exit(1);
            }
            work();
            _exit(testing::Test::HasFailure() ? 1 : 0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }

    std::vector<AcDbObjectId> m_ids;
};

inline bool Contains(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

} // namespace Tessaly
