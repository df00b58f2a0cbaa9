// A save whose writes reach the disk only up to some point leaves the drawing as it was before
// it, or as it was to be.
#include <cstdlib>
#include <cstring>
#include <map>
#include <ogr_spatialref.h>
#include <random>

#include "tests/host/storage/StorageFixture.h"

namespace Tessaly {
namespace {

/// One thing that was done to a file.
struct DiskWrite {
    enum class Kind { Bytes, Length, Removal };
    Kind kind;
    std::string path;
    std::size_t place = 0; ///< or the length
    std::string bytes;
};
std::vector<DiskWrite>* g_pLog = nullptr;

/// SQLite's own way to files, which notes every write on its way.
struct WatchedFile {
    sqlite3_file base;
    const char* pPath; ///< SQLite keeps it while the file is open
};

sqlite3_vfs* g_pReal = nullptr;

sqlite3_file* Real(sqlite3_file* pFile) {
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<WatchedFile*>(pFile) + 1);
}
const sqlite3_io_methods& Methods(sqlite3_file* pFile) {
    return *Real(pFile)->pMethods;
}

void Note(DiskWrite write) {
    if (g_pLog) {
        g_pLog->push_back(std::move(write));
    }
}

int Write(sqlite3_file* pFile, const void* pBytes, int count, sqlite3_int64 place) {
    Note({DiskWrite::Kind::Bytes, reinterpret_cast<WatchedFile*>(pFile)->pPath,
          static_cast<std::size_t>(place),
          std::string(static_cast<const char*>(pBytes), static_cast<std::size_t>(count))});
    return Methods(pFile).xWrite(Real(pFile), pBytes, count, place);
}

int Truncate(sqlite3_file* pFile, sqlite3_int64 size) {
    Note({DiskWrite::Kind::Length,
          reinterpret_cast<WatchedFile*>(pFile)->pPath,
          static_cast<std::size_t>(size),
          {}});
    return Methods(pFile).xTruncate(Real(pFile), size);
}

int Delete(sqlite3_vfs*, const char* path, int sync) {
    Note({DiskWrite::Kind::Removal, path, 0, {}});
    return g_pReal->xDelete(g_pReal, path, sync);
}

const sqlite3_io_methods* WatchedMethods() {
    static const sqlite3_io_methods methods = [] {
        sqlite3_io_methods m{};
        m.iVersion = 1;
        m.xClose = [](sqlite3_file* f) { return Methods(f).xClose(Real(f)); };
        m.xRead = [](sqlite3_file* f, void* p, int n, sqlite3_int64 at) {
            return Methods(f).xRead(Real(f), p, n, at);
        };
        m.xWrite = Write;
        m.xTruncate = Truncate;
        m.xSync = [](sqlite3_file* f, int flags) { return Methods(f).xSync(Real(f), flags); };
        m.xFileSize = [](sqlite3_file* f, sqlite3_int64* p) {
            return Methods(f).xFileSize(Real(f), p);
        };
        m.xLock = [](sqlite3_file* f, int lock) { return Methods(f).xLock(Real(f), lock); };
        m.xUnlock = [](sqlite3_file* f, int lock) { return Methods(f).xUnlock(Real(f), lock); };
        m.xCheckReservedLock = [](sqlite3_file* f, int* p) {
            return Methods(f).xCheckReservedLock(Real(f), p);
        };
        m.xFileControl = [](sqlite3_file* f, int op, void* p) {
            return Methods(f).xFileControl(Real(f), op, p);
        };
        m.xSectorSize = [](sqlite3_file* f) { return Methods(f).xSectorSize(Real(f)); };
        m.xDeviceCharacteristics = [](sqlite3_file* f) {
            return Methods(f).xDeviceCharacteristics(Real(f));
        };
        return m;
    }();
    return &methods;
}

int Open(sqlite3_vfs*, const char* path, sqlite3_file* pFile, int flags, int* pOutFlags) {
    auto* pWatched = reinterpret_cast<WatchedFile*>(pFile);
    pWatched->base.pMethods = nullptr;
    pWatched->pPath = path ? path : "";
    const int result = g_pReal->xOpen(g_pReal, path, Real(pFile), flags, pOutFlags);
    if (Real(pFile)->pMethods) {
        pWatched->base.pMethods = WatchedMethods();
    }
    return result;
}

/// Watches everything that SQLite does while it lives.
class WatchedDisk {
public:
    WatchedDisk() {
        // The coordinate systems' own database stays open and has to be closed the way it was
        // opened, so it is opened before.
        OGRSpatialReference().importFromEPSG(4326);
        g_pReal = sqlite3_vfs_find(nullptr);
        m_watched = *g_pReal;
        m_watched.zName = "watched";
        m_watched.szOsFile = static_cast<int>(sizeof(WatchedFile)) + g_pReal->szOsFile;
        m_watched.xOpen = Tessaly::Open;
        m_watched.xDelete = Tessaly::Delete;
        sqlite3_vfs_register(&m_watched, 1);
    }
    ~WatchedDisk() {
        sqlite3_vfs_unregister(&m_watched);
        sqlite3_vfs_register(g_pReal, 1);
    }
    WatchedDisk(const WatchedDisk&) = delete;
    WatchedDisk& operator=(const WatchedDisk&) = delete;

private:
    sqlite3_vfs m_watched{};
};

using Disk = std::map<std::string, std::string>;

void Apply(const DiskWrite& write, Disk& disk) {
    if (write.kind == DiskWrite::Kind::Removal) {
        disk.erase(write.path);
        return;
    }
    std::string& file = disk[write.path];
    if (write.kind == DiskWrite::Kind::Length) {
        file.resize(write.place);
        return;
    }
    file.resize(std::max(file.size(), write.place + write.bytes.size()));
    file.replace(write.place, write.bytes.size(), write.bytes);
}

/// How many saves are cut; TESSALY_CUTS asks for more than a quick test does.
int SaveCount() {
    const char* count = std::getenv("TESSALY_CUTS"); // NOLINT(concurrency-mt-unsafe)
    return count ? std::atoi(count) : 2;
}

class PowerCutTest : public StorageTest {
protected:
    void ChangeSomething(AcDbDatabase& drawing) {
        for (int i = 0; i < 1 + static_cast<int>(m_random() % 40); ++i) {
            const AcDbObjectId id = m_ids[m_random() % m_ids.size()];
            const std::string name(m_random() % 300, 'n');
            Edit<AcDbPoint>(drawing, id, [&](AcDbPoint& point) {
                if (!point.isErased()) {
                    point.setAttribute(Name("NAME"), name.c_str());
                }
                if (!point.isErased() && m_random() % 8 == 0) {
                    point.erase();
                }
            });
        }
        for (int i = 0; i < static_cast<int>(m_random() % 30); ++i) {
            m_ids.push_back(AddNode(drawing, i, i, "new"));
        }
        Edit<AcDbDictionary>(drawing, drawing.dictionary(L"__HV__"), [&](AcDbDictionary& records) {
            records.setAt(L"r", std::wstring(m_random() % 3000, L'x').c_str());
        });
    }
    /// The drawing on a disk that holds this.
    std::string DescribeDisk(const Disk& disk) {
        std::filesystem::create_directory(m_folder / "cut");
        for (const char* name : {"cut/plan.gpkg", "cut/plan.gpkg-journal"}) {
            const auto found = disk.find(m_folder.Native(std::string(name).substr(4)));
            if (found != disk.end()) {
                m_folder.Write(name, found->second);
            } else {
                std::filesystem::remove(m_folder / name);
            }
        }
        return DescribeFile("cut/plan.gpkg");
    }

    std::mt19937 m_random{5};
    std::vector<AcDbObjectId> m_ids;
};

TEST_F(PowerCutTest, EveryPrefixOfTheWritesIsTheOldOrTheNewDrawing) {
    const WatchedDisk watched;
    AcDbDatabase drawing;
    for (int i = 0; i < 100; ++i) {
        m_ids.push_back(AddNode(drawing, i, i, "a node of the plan"));
    }
    SaveNew(drawing, "plan.gpkg");
    int cuts = 0;
    for (int save = 0; save < SaveCount(); ++save) {
        const std::string before = DescribeFile("plan.gpkg");
        Disk disk{{m_folder.Native("plan.gpkg"), m_folder.Read("plan.gpkg")}};
        ChangeSomething(drawing);
        std::vector<DiskWrite> log;
        g_pLog = &log;
        Save(drawing, "plan.gpkg");
        g_pLog = nullptr;
        const std::string after = DescribeFile("plan.gpkg");
        ASSERT_NE(before, after);
        ASSERT_GT(log.size(), 5U) << "the writes were not seen";
        bool isNew = false;
        for (std::size_t count = 0; count <= log.size(); ++count) {
            if (count > 0) {
                Apply(log[count - 1], disk);
            }
            const std::string state = DescribeDisk(disk);
            ASSERT_TRUE(state == before || state == after)
                << "save " << save << ", " << count << " of " << log.size() << " writes";
            ASSERT_FALSE(isNew && state == before) << "a save does not come undone";
            isNew = state == after;
            ++cuts;
        }
        ASSERT_TRUE(isNew);
    }
    RecordProperty("cuts", cuts);
}

} // namespace
} // namespace Tessaly
