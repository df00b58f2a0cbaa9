#include "host/storage/OpenAndSave.h"

#include <filesystem>
#include <map>
#include <new>

#include "host/Texts.h"
#include "host/storage/DrawingReader.h"
#include "host/storage/DrawingWriter.h"
#include "host/storage/FileChecks.h"
#include "host/storage/Journals.h"
#include "host/storage/OpenGeoPackage.h"
#include "host/storage/SourceCopy.h"
#include "host/storage/UnfinishedFile.h"
#include "platform/arx/DbDatabase.h"
#include "platform/arx/Guard.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

using Mode = OpenGeoPackage::Mode;
using Scope = DrawingWriter::Scope;

AcDbStorageResult Refusal(const std::string& path, const CString& reason) {
    AcDbStorageResult result;
    result.reason = FileReason(path, reason);
    return result;
}

class GeoPackageStorage final : public IDbStorage {
public:
    CString Extension() const override { return Utf8ToWide(kGeoPackageExtension); }
    CString WhyNotWritable(const wchar_t* path) override;
    AcDbStorageResult Read(AcDbDatabase& database, const wchar_t* path,
                           const AcDbProgress& progress) override;
    AcDbStorageResult Save(AcDbDatabase& database, const wchar_t* path,
                           const AcDbProgress& progress) override;
    AcDbStorageResult SaveAs(AcDbDatabase& database, const wchar_t* from, const wchar_t* path,
                             const AcDbProgress& progress) override;
    void Close(const AcDbDatabase& database) override { m_files.erase(&database); }

private:
    AcDbStorageResult ReadFile(AcDbDatabase& database, const std::string& path,
                               const AcDbProgress& progress);
    AcDbStorageResult SaveChanges(AcDbDatabase& database, const std::string& path,
                                  const AcDbProgress& progress);
    AcDbStorageResult SaveTo(AcDbDatabase& database, const wchar_t* from, const std::string& path,
                             const AcDbProgress& progress);
    RememberedFile* FileOf(const AcDbDatabase& database, const std::string& path);
    AcDbStorageResult SaveCopy(AcDbDatabase& database, const std::string& from,
                               const std::string& path, const AcDbProgress& progress);
    AcDbStorageResult SaveWhole(AcDbDatabase& database, const std::string& path,
                                const AcDbProgress& progress);
    AcDbStorageResult Finish(AcDbDatabase& database, const std::string& path,
                             UnfinishedFile& unfinished, RememberedFile remembered, CString reason,
                             AcDbStorageResult result);

    std::map<const AcDbDatabase*, RememberedFile> m_files;
};

/// One transaction into a file. Empty on success; `remembered` is brought up to date then.
CString Write(const std::string& path, Mode mode, Scope scope, const AcDbDatabase& database,
              RememberedFile& remembered, const AcDbProgress& progress,
              std::vector<CString>& warnings) {
    GdalErrors errors;
    OpenGeoPackage file(path, mode);
    if (!file.IsOpen()) {
        return errors.Reason();
    }
    DrawingWriter writer(file, errors, database, remembered, progress);
    CString reason = writer.Write(scope);
    if (reason.IsEmpty()) {
        writer.Update(remembered);
    }
    if (writer.UnknownCount() > 0) {
        warnings.push_back(Text(Msg::UnsupportedTypes, writer.UnknownCount()));
    }
    return reason;
}

/// Why the changes of a drawing make no sense in a file; empty if they do. A backup that was
/// put in the place of the file lacks what the drawing takes for saved.
CString WhyNotTheSame(const std::string& path, const RememberedFile& remembered) {
    if (remembered.changeCounter == ChangeCounter(path)) {
        return {};
    }
    GdalErrors errors;
    OpenGeoPackage file(path, Mode::Read);
    Schema schema;
    const bool isOlder = file.IsOpen() && LoadSchema(file, schema).IsEmpty() &&
                         schema.nextId < remembered.firstUnwritten;
    return isOlder ? Text(Msg::FileReplaced) : CString();
}

void WarnOfOthers(const std::string& path, const RememberedFile& remembered,
                  std::vector<CString>& warnings) {
    if (remembered.changeCounter != ChangeCounter(path)) {
        warnings.push_back(FileReason(path, Text(Msg::FileChanged)));
    }
}

/// Whether what is in the file has other coordinates than the drawing has now.
bool HasOtherCoordinates(const std::string& path, const AcDbDatabase& database) {
    GdalErrors errors;
    OpenGeoPackage file(path, Mode::Read);
    Schema schema;
    return file.IsOpen() && LoadSchema(file, schema).IsEmpty() && schema.exists &&
           schema.coordinateSystem != WideToUtf8(database.coordinateSystem().View());
}

CString WhyNotTarget(const std::string& path) {
    std::error_code ignored;
    const std::filesystem::path target(path);
    if (!std::filesystem::is_directory(target.parent_path(), ignored)) {
        return Text(Msg::NoFolder);
    }
    if (std::filesystem::is_directory(target, ignored)) {
        return Text(Msg::IsFolder);
    }
    const CString reason = WhyNotWritable(path);
    return reason.IsEmpty() ? ClearJournals(path) : reason;
}

/// Memory may run out, and a file may hold more than a database can. That is a reason as any
/// other.
template <class Work>
AcDbStorageResult Guarded(const std::string& path, Work work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return Refusal(path, Text(Msg::NoMemory));
    } catch (...) {
        return Refusal(path, CaughtReason());
    }
}

CString GeoPackageStorage::WhyNotWritable(const wchar_t* path) {
    const std::string native = AbsolutePath(path);
    const CString reason = WhyNotTarget(native);
    return reason.IsEmpty() ? CString() : FileReason(native, reason);
}

AcDbStorageResult GeoPackageStorage::Read(AcDbDatabase& database, const wchar_t* path,
                                          const AcDbProgress& progress) {
    const std::string native = AbsolutePath(path);
    return Guarded(native, [&] { return ReadFile(database, native, progress); });
}

AcDbStorageResult GeoPackageStorage::Save(AcDbDatabase& database, const wchar_t* path,
                                          const AcDbProgress& progress) {
    const std::string native = AbsolutePath(path);
    return Guarded(native, [&] { return SaveChanges(database, native, progress); });
}

AcDbStorageResult GeoPackageStorage::SaveAs(AcDbDatabase& database, const wchar_t* from,
                                            const wchar_t* path, const AcDbProgress& progress) {
    const std::string native = AbsolutePath(path);
    return Guarded(native, [&] { return SaveTo(database, from, native, progress); });
}

AcDbStorageResult GeoPackageStorage::ReadFile(AcDbDatabase& database, const std::string& native,
                                              const AcDbProgress& progress) {
    CString reason = WhyNoDatabase(native);
    if (reason.IsEmpty()) {
        reason = SettleJournal(native);
    }
    if (!reason.IsEmpty()) {
        return Refusal(native, reason);
    }
    GdalErrors errors;
    const std::uint32_t counter = ChangeCounter(native);
    OpenGeoPackage file(native, Mode::Read);
    // In one transaction: all tables are as they were at the same moment.
    if (!file.IsOpen() || !file.Begin()) {
        return Refusal(native, errors.Reason());
    }
    DrawingReader reader(file, errors, progress);
    reason = reader.Read(database);
    if (!reason.IsEmpty()) {
        return Refusal(native, reason);
    }
    RememberedFile remembered;
    reader.MoveInto(database, remembered);
    remembered.path = native;
    remembered.changeCounter = counter;
    m_files[&database] = std::move(remembered);
    AcDbStorageResult result;
    for (const CString& warning : reader.Warnings()) {
        result.warnings.push_back(FileReason(native, warning));
    }
    return result;
}

RememberedFile* GeoPackageStorage::FileOf(const AcDbDatabase& database, const std::string& path) {
    const auto found = m_files.find(&database);
    return found != m_files.end() && found->second.path == path ? &found->second : nullptr;
}

AcDbStorageResult GeoPackageStorage::SaveChanges(AcDbDatabase& database, const std::string& native,
                                                 const AcDbProgress& progress) {
    RememberedFile* pFile = FileOf(database, native);
    CString reason = pFile ? WhyNoDatabase(native) : Text(Msg::NotOpenedFromFile);
    if (reason.IsEmpty()) {
        reason = Tessaly::WhyNotWritable(native);
    }
    if (reason.IsEmpty()) {
        reason = SettleJournal(native);
    }
    if (reason.IsEmpty()) {
        reason = WhyNotTheSame(native, *pFile);
    }
    if (!reason.IsEmpty()) {
        return Refusal(native, reason);
    }
    // Each geometry says in which system it is: all are written anew, and beside the file,
    // where a stop in the middle leaves the old ones.
    if (database.isHeaderUnsaved() && HasOtherCoordinates(native, database)) {
        reason = ClearJournals(native);
        return reason.IsEmpty() ? SaveCopy(database, native, native, progress)
                                : Refusal(native, reason);
    }
    AcDbStorageResult result;
    WarnOfOthers(native, *pFile, result.warnings);
    reason =
        Write(native, Mode::Write, Scope::Changes, database, *pFile, progress, result.warnings);
    if (!reason.IsEmpty()) {
        return Refusal(native, reason);
    }
    pFile->changeCounter = ChangeCounter(native);
    database.markSaved();
    return result;
}

AcDbStorageResult GeoPackageStorage::SaveTo(AcDbDatabase& database, const wchar_t* from,
                                            const std::string& target,
                                            const AcDbProgress& progress) {
    const CString reason = WhyNotTarget(target);
    if (!reason.IsEmpty()) {
        return Refusal(target, reason);
    }
    if (!from || !*from) {
        return SaveWhole(database, target, progress);
    }
    const std::string source = AbsolutePath(from);
    const RememberedFile* pFile = FileOf(database, source);
    CString sourceReason = WhyNoDatabase(source);
    if (sourceReason.IsEmpty() && pFile) {
        sourceReason = WhyNotTheSame(source, *pFile);
    }
    if (!sourceReason.IsEmpty()) {
        // The drawing is in memory as a whole: it must not be lost with its file.
        AcDbStorageResult result = SaveWhole(database, target, progress);
        result.warnings.push_back(FileReason(source, Text(Msg::ContentsNotCopied, sourceReason)));
        return result;
    }
    if (!pFile) {
        return Refusal(source, Text(Msg::NotOpenedFromFile));
    }
    return SaveCopy(database, source, target, progress);
}

/// Puts a file that was written whole into its place, unless there is a reason against it.
AcDbStorageResult GeoPackageStorage::Finish(AcDbDatabase& database, const std::string& path,
                                            UnfinishedFile& unfinished, RememberedFile remembered,
                                            CString reason, AcDbStorageResult result) {
    if (reason.IsEmpty()) {
        reason = unfinished.PutInPlace();
    }
    if (!reason.IsEmpty()) {
        return Refusal(path, reason);
    }
    remembered.path = path;
    remembered.changeCounter = ChangeCounter(path);
    m_files[&database] = std::move(remembered);
    database.markSaved();
    return result;
}

AcDbStorageResult GeoPackageStorage::SaveCopy(AcDbDatabase& database, const std::string& from,
                                              const std::string& path,
                                              const AcDbProgress& progress) {
    UnfinishedFile unfinished(path);
    CString reason = CopySource(from, unfinished);
    if (!reason.IsEmpty()) {
        return Refusal(path, reason);
    }
    RememberedFile remembered = *FileOf(database, from);
    AcDbStorageResult result;
    WarnOfOthers(from, remembered, result.warnings);
    Scope scope = Scope::Changes;
    if (HasOtherCoordinates(unfinished.Path(), database)) {
        scope = Scope::Rewrite;
        reason =
            SetCoordinateSystem(unfinished.Path(), WideToUtf8(database.coordinateSystem().View()));
    }
    if (reason.IsEmpty()) {
        reason = Write(unfinished.Path(), Mode::Draft, scope, database, remembered, progress,
                       result.warnings);
    }
    return Finish(database, path, unfinished, std::move(remembered), std::move(reason),
                  std::move(result));
}

AcDbStorageResult GeoPackageStorage::SaveWhole(AcDbDatabase& database, const std::string& path,
                                               const AcDbProgress& progress) {
    UnfinishedFile unfinished(path);
    RememberedFile remembered;
    AcDbStorageResult result;
    CString reason = Write(unfinished.Path(), Mode::Create, Scope::Everything, database, remembered,
                           progress, result.warnings);
    return Finish(database, path, unfinished, std::move(remembered), std::move(reason),
                  std::move(result));
}

} // namespace

std::unique_ptr<IDbStorage> MakeGeoPackageStorage() {
    return std::make_unique<GeoPackageStorage>();
}

} // namespace Tessaly
