#include "host/storage/Journals.h"

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

#include "host/Texts.h"
#include "host/storage/OpenGeoPackage.h"
#include "host/storage/SystemFile.h"
#include "host/storage/WriteLock.h"

namespace Tessaly {

namespace fs = std::filesystem;

bool HasHotJournal(const std::string& path) {
    // The first bytes come last, when all that is to be taken back is safe in it.
    const Descriptor journal(BehindLinks(path) + "-journal", O_RDONLY);
    char first = 0;
    return journal && read(journal.Number(), &first, 1) == 1 && first != 0;
}

bool HasJournal(const std::string& path) {
    std::error_code ignored;
    const std::string real = BehindLinks(path);
    return fs::exists(real + "-journal", ignored) || fs::exists(real + "-wal", ignored);
}

void RemoveColdJournal(const std::string& path) {
    if (!HasHotJournal(path)) {
        unlink((BehindLinks(path) + "-journal").c_str());
    }
}

bool RemoveOrphans(const std::string& path) {
    std::error_code ignored;
    const bool isOrphaned = !fs::exists(path, ignored);
    if (isOrphaned) {
        RemoveWithJournals(path);
    }
    return isOrphaned;
}

CString SettleJournal(const std::string& path) {
    if (!HasHotJournal(path)) {
        return {};
    }
    GdalErrors errors;
    const OpenGeoPackage file(path, OpenGeoPackage::Mode::Write);
    if (file.IsOpen() && !HasHotJournal(path)) {
        return {};
    }
    return Text(Msg::UnfinishedWrite, errors.Reason());
}

CString ClearJournals(const std::string& path) {
    if (!HasJournal(path) || RemoveOrphans(path)) {
        return {};
    }
    {
        WriteLock lock(BehindLinks(path));
        CString reason = lock.Take();
        if (!reason.IsEmpty()) {
            return reason;
        }
        RemoveColdJournal(path);
    }
    return HasJournal(path) ? Text(Msg::OpenElsewhere) : CString();
}

} // namespace Tessaly
