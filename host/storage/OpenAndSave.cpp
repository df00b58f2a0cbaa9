#include "host/storage/OpenAndSave.h"

#include <filesystem>
#include <map>
#include <new>
#include <optional>

#include "host/Texts.h"
#include "host/storage/ConflictTexts.h"
#include "host/storage/DrawingReader.h"
#include "host/storage/DrawingWriter.h"
#include "host/storage/FileChecks.h"
#include "host/storage/Journals.h"
#include "host/storage/OpenGeoPackage.h"
#include "host/storage/OpenMarks.h"
#include "host/storage/SourceCopy.h"
#include "host/storage/SystemFile.h"
#include "host/storage/TwoSides.h"
#include "host/storage/UnfinishedFile.h"
#include "host/storage/WriteLock.h"
#include "platform/arx/DbDatabase.h"
#include "platform/arx/Guard.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

using Mode = OpenGeoPackage::Mode;
using Scope = DrawingWriter::Scope;
using Identity = DrawingWriter::Identity;

AcDbStorageResult Refusal(const std::string& path, const CString& reason) {
    AcDbStorageResult result;
    result.reason = FileReason(path, reason);
    return result;
}

/// What a file holds now, beside a drawing that was read from an earlier state of it.
struct Theirs {
    AcDbDatabase database;
    RememberedFile file;
    SavesSince saves;
};

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
    AcDbConflict FindConflict(const AcDbDatabase& database) override;
    AcDbStorageResult Compare(const AcDbDatabase& database, const AcDbProgress& progress,
                              AcDbComparison& comparison) override;
    AcDbStorageResult TakeOver(AcDbDatabase& database, const AcDbProgress& progress,
                               AcDbComparison& comparison) override;
    std::vector<AcDbOpenMark> OthersWith(const wchar_t* path) override {
        return OpenMarks::Others(AbsolutePath(path));
    }
    void MarkOpen(const AcDbDatabase& database) override;
    void Close(const AcDbDatabase& database) override;

private:
    AcDbStorageResult ReadFile(AcDbDatabase& database, const std::string& path,
                               const AcDbProgress& progress);
    AcDbStorageResult SaveChanges(AcDbDatabase& database, const std::string& path,
                                  const AcDbProgress& progress);
    AcDbStorageResult SaveTo(AcDbDatabase& database, const wchar_t* from, const std::string& path,
                             const AcDbProgress& progress);
    RememberedFile* FileOf(const AcDbDatabase& database, const std::string& path);
    AcDbStorageResult SaveCopy(AcDbDatabase& database, const std::string& from,
                               const std::string& path, Identity identity,
                               const AcDbProgress& progress);
    AcDbStorageResult SaveWhole(AcDbDatabase& database, const std::string& path,
                                const AcDbProgress& progress);
    AcDbStorageResult Finish(AcDbDatabase& database, const std::string& path,
                             UnfinishedFile& unfinished, RememberedFile remembered,
                             AcDbStorageResult result,
                             std::optional<std::uint32_t> counter = std::nullopt);

    AcDbStorageResult LoadTheirs(const AcDbDatabase& database, const AcDbProgress& progress,
                                 Theirs& theirs);

    std::map<const AcDbDatabase*, RememberedFile> m_files;
    OpenMarks m_marks;
};

/// How a file is to be written.
struct Way {
    Mode mode;
    Scope scope;
    DrawingWriter::Identity identity;
};

/// One transaction into a file. On success `remembered` is brought up to date. The reason of
/// a failure does not name the file.
void Write(const std::string& path, const Way& way, const AcDbDatabase& database,
           RememberedFile& remembered, const AcDbProgress& progress, AcDbStorageResult& result) {
    GdalErrors errors;
    OpenGeoPackage file(path, way.mode);
    if (!file.IsOpen()) {
        result.reason = errors.Reason();
        return;
    }
    DrawingWriter writer(file, errors, database, remembered, progress);
    result.reason = writer.Write(way.scope, way.identity);
    if (result.ok()) {
        writer.Update(remembered);
    }
    result.conflict = writer.Conflict();
    if (writer.UnknownCount() > 0) {
        result.warnings.push_back(Text(Msg::UnsupportedTypes, writer.UnknownCount()));
    }
}

/// What stands against a drawing's changes in its file, as far as that can be read.
AcDbConflict ConflictIn(const std::string& path, const RememberedFile& remembered,
                        const AcDbDatabase& database) {
    GdalErrors errors;
    OpenGeoPackage file(path, Mode::Read);
    Schema schema;
    return file.IsOpen() && LoadSchema(file, schema).IsEmpty()
               ? Tessaly::FindConflict(file, schema, remembered, database)
               : AcDbConflict();
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
    const std::filesystem::path target(BehindLinks(path));
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

/// Reads a file whole. With `pSaves`, also what was saved behind the revision of the file that
/// `remembered` comes with.
AcDbStorageResult Load(AcDbDatabase& database, const std::string& native,
                       const AcDbProgress& progress, RememberedFile& remembered,
                       SavesSince* pSaves = nullptr) {
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
    if (pSaves) {
        *pSaves = LoadSavesSince(file, remembered.identity);
    }
    reader.MoveInto(database, remembered);
    remembered.path = native;
    remembered.changeCounter = counter;
    AcDbStorageResult result;
    if (!reader.MissingTables().empty()) {
        result.readOnlyReason = FileReason(native, MissingTablesReason(reader.MissingTables()));
    }
    for (const CString& warning : reader.Warnings()) {
        result.warnings.push_back(FileReason(native, warning));
    }
    return result;
}

AcDbStorageResult GeoPackageStorage::ReadFile(AcDbDatabase& database, const std::string& native,
                                              const AcDbProgress& progress) {
    ClearLeftovers(native);
    RememberedFile remembered;
    AcDbStorageResult result = Load(database, native, progress, remembered);
    if (result.ok()) {
        m_files[&database] = std::move(remembered);
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
        // Waited for once, and here: each step below would wait again.
        reason = WriteLock(BehindLinks(native)).Take(progress);
    }
    if (reason.IsEmpty()) {
        reason = SettleJournal(native);
    }
    if (!reason.IsEmpty()) {
        return Refusal(native, reason);
    }
    // Each geometry says in which system it is: all are written anew, and beside the file,
    // where a stop in the middle leaves the old ones.
    if (database.isHeaderUnsaved() && HasOtherCoordinates(native, database)) {
        reason = ClearJournals(native);
        return reason.IsEmpty() ? SaveCopy(database, native, native, Identity::Same, progress)
                                : Refusal(native, reason);
    }
    AcDbStorageResult result;
    WarnOfOthers(native, *pFile, result.warnings);
    Write(native, {Mode::Write, Scope::Changes, Identity::Same}, database, *pFile, progress,
          result);
    if (!result.ok()) {
        result.reason = FileReason(native, result.reason);
        result.warnings.clear();
        return result;
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
        sourceReason = ConflictReason(ConflictIn(source, *pFile, database));
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
    return SaveCopy(database, source, target, Identity::NewFile, progress);
}

/// Puts a file that was written whole into its place, unless there is a reason against it.
/// \param counter of the file that it is to replace when it was copied, if it is a copy of that
AcDbStorageResult GeoPackageStorage::Finish(AcDbDatabase& database, const std::string& path,
                                            UnfinishedFile& unfinished, RememberedFile remembered,
                                            AcDbStorageResult result,
                                            std::optional<std::uint32_t> counter) {
    WriteLock lock(BehindLinks(path));
    if (result.ok()) {
        result.reason = lock.TakeWithoutLog();
    }
    if (result.ok() && counter && *counter != lock.ChangeCounter()) {
        result.reason = ChangedMeanwhileReason();
    }
    if (result.ok()) {
        result.reason = unfinished.PutInPlace();
    }
    if (!result.ok()) {
        result.reason = FileReason(path, result.reason);
        result.warnings.clear();
        return result;
    }
    remembered.path = path;
    remembered.changeCounter = ChangeCounter(path);
    m_files[&database] = std::move(remembered);
    database.markSaved();
    return result;
}

AcDbStorageResult GeoPackageStorage::SaveCopy(AcDbDatabase& database, const std::string& from,
                                              const std::string& path, Identity identity,
                                              const AcDbProgress& progress) {
    AcDbStorageResult result;
    const bool isOntoSource = FileNumberOf(from) == FileNumberOf(path);
    if (isOntoSource) {
        // Else the copy could not be told from what others write meanwhile.
        result.reason = WriteLock(BehindLinks(from)).TakeWithoutLog(progress);
    }
    UnfinishedFile unfinished(path);
    if (result.ok()) {
        result.reason = CopySource(from, unfinished);
    }
    if (!result.ok()) {
        return Refusal(path, result.reason);
    }
    const std::uint32_t counter = ChangeCounter(unfinished.Path());
    RememberedFile remembered = *FileOf(database, from);
    WarnOfOthers(from, remembered, result.warnings);
    Scope scope = Scope::Changes;
    if (HasOtherCoordinates(unfinished.Path(), database)) {
        scope = Scope::Rewrite;
        result.reason =
            SetCoordinateSystem(unfinished.Path(), WideToUtf8(database.coordinateSystem().View()));
    }
    if (result.ok()) {
        Write(unfinished.Path(), {Mode::Draft, scope, identity}, database, remembered, progress,
              result);
    }
    return Finish(database, path, unfinished, std::move(remembered), std::move(result),
                  isOntoSource ? std::optional(counter) : std::nullopt);
}

AcDbStorageResult GeoPackageStorage::SaveWhole(AcDbDatabase& database, const std::string& path,
                                               const AcDbProgress& progress) {
    UnfinishedFile unfinished(path);
    RememberedFile remembered;
    AcDbStorageResult result;
    Write(unfinished.Path(), {Mode::Create, Scope::Everything, Identity::NewFile}, database,
          remembered, progress, result);
    return Finish(database, path, unfinished, std::move(remembered), std::move(result));
}

AcDbConflict GeoPackageStorage::FindConflict(const AcDbDatabase& database) {
    const auto found = m_files.find(&database);
    return found == m_files.end() ? AcDbConflict()
                                  : ConflictIn(found->second.path, found->second, database);
}

AcDbStorageResult GeoPackageStorage::LoadTheirs(const AcDbDatabase& database,
                                                const AcDbProgress& progress, Theirs& theirs) {
    const auto found = m_files.find(&database);
    if (found == m_files.end()) {
        return Refusal("", Text(Msg::HasNoFile));
    }
    const RememberedFile& base = found->second;
    theirs.file.identity = base.identity;
    AcDbStorageResult result =
        Load(theirs.database, base.path, progress, theirs.file, &theirs.saves);
    const bool isComparable =
        theirs.saves.isComplete && base.CanFollow() &&
        MayMeet(database.coordinateSystem(), theirs.database.coordinateSystem());
    return result.ok() && !isComparable ? Refusal(base.path, CannotCompareReason()) : result;
}

AcDbStorageResult GeoPackageStorage::Compare(const AcDbDatabase& database,
                                             const AcDbProgress& progress,
                                             AcDbComparison& comparison) {
    return Guarded("", [&] {
        Theirs theirs;
        AcDbStorageResult result = LoadTheirs(database, progress, theirs);
        if (result.ok()) {
            comparison =
                CompareSides({database, m_files[&database], theirs.saves.changed, theirs.database});
        }
        return result;
    });
}

AcDbStorageResult GeoPackageStorage::TakeOver(AcDbDatabase& database, const AcDbProgress& progress,
                                              AcDbComparison& comparison) {
    return Guarded("", [&] {
        Theirs theirs;
        AcDbStorageResult result = LoadTheirs(database, progress, theirs);
        if (result.ok()) {
            const TwoSides sides{database, m_files[&database], theirs.saves.changed,
                                 theirs.database};
            comparison = CompareSides(sides);
            ApplyMine(sides, theirs.database);
            database.takeContent(theirs.database);
            m_files[&database] = std::move(theirs.file);
        }
        return result;
    });
}

void GeoPackageStorage::MarkOpen(const AcDbDatabase& database) {
    const auto found = m_files.find(&database);
    if (found != m_files.end()) {
        m_marks.Set(database, found->second.path);
    }
}

void GeoPackageStorage::Close(const AcDbDatabase& database) {
    m_marks.Remove(database);
    m_files.erase(&database);
}

} // namespace

std::unique_ptr<IDbStorage> MakeGeoPackageStorage() {
    return std::make_unique<GeoPackageStorage>();
}

} // namespace Tessaly
