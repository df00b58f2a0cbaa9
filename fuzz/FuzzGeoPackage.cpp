// Reading and importing a file of any bytes yields a drawing or a reason that names the file, and a
// drawing that was read can be saved.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <unistd.h>

#include "host/storage/Import.h"
#include "host/storage/OpenAndSave.h"
#include "platform/arx/DbDatabase.h"
#include "platform/win/CodePage.h"

namespace {

void Require(bool isTrue) {
    if (!isTrue) {
        std::abort();
    }
}

/// In memory, and separate from other processes' files.
const std::string& Folder() {
    static const std::string folder = [] {
        std::string name = "/dev/shm/fuzz-" + std::to_string(getpid());
        std::filesystem::create_directories(name);
        static const struct Remover {
            std::string folder;
            ~Remover() { std::filesystem::remove_all(folder); }
        } remover{name};
        return name;
    }();
    return folder;
}

CString WriteFile(const char* name, const std::uint8_t* data, std::size_t size) {
    const std::string path = Folder() + "/" + name;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "wb"),
                                                         std::fclose);
    Require(file && std::fwrite(data, 1, size, file.get()) == size);
    return Utf8ToWide(path);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CString path = WriteFile("fuzz.gpkg", data, size);
    const auto storage = Tessaly::MakeGeoPackageStorage();
    AcDbDatabase database;
    const AcDbStorageResult read = storage->Read(database, path, {});
    Require(read.ok() || read.reason.Find(path.View()) == 0);
    Require(!database.isModified());
    if (read.ok()) {
        database.appendEntity(std::make_unique<AcDbPoint>(AcGePoint3d{1, 2}));
        const AcDbStorageResult saved = storage->Save(database, path, {});
        Require(saved.ok() == !database.isModified());
        for (const char* companion : {"-journal", "-wal", "-shm"}) {
            std::filesystem::remove(Folder() + "/fuzz.gpkg" + companion);
        }
    }
    const CString other = WriteFile("fuzz.dat", data, size);
    const AcDbImportResult imported = Tessaly::MakeImporter()->Import(other, {});
    Require(imported.ok() ? !imported.reason.GetLength() : imported.layers.empty());
    return 0;
}
