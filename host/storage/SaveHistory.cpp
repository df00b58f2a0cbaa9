#include "host/storage/SaveHistory.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <ogrsf_frmts.h>
#include <random>

#include "host/storage/OpenGeoPackage.h"
#include "host/storage/Processes.h"
#include "host/storage/RememberedFile.h"
#include "host/storage/Schema.h"
#include "host/storage/SymbolRows.h"
#include "platform/arx/DbDatabase.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

constexpr std::int64_t kSavesKept = 200;
/// Letters of all notes together. A note alone that is longer says nothing more exactly than
/// "everything".
constexpr std::size_t kLettersKept = 4'000'000;
constexpr const char* kEverything = "*";

std::string RandomDigits(int words) {
    std::random_device source;
    std::string digits;
    for (int i = 0; i < words; ++i) {
        std::array<char, 9> word{};
        std::snprintf(word.data(), word.size(), "%08X", source());
        digits += word.data();
    }
    return digits;
}

AcDbSaveNote NoteOf(const OGRFeature& row) {
    const auto text = [&row](const char* field) {
        return CString(Utf8ToWide(FieldText(row, field)));
    };
    return {row.GetFieldAsInteger64("revision"), text("saved_by"), text("host"), text("program"),
            text("saved_at")};
}

bool DropOldSaves(OpenGeoPackage& file, std::int64_t newest) {
    std::int64_t keepFrom = newest - kSavesKept + 1;
    std::size_t letters = 0;
    const bool isRead = file.Query(
        "SELECT revision, length(changed) AS letters FROM orv_saves ORDER BY revision DESC",
        [&](const OGRFeature& row) {
            letters += static_cast<std::size_t>(std::max(0, row.GetFieldAsInteger(1)));
            if (letters > kLettersKept) {
                keepFrom = std::max<std::int64_t>(keepFrom, row.GetFieldAsInteger64(0) + 1);
            }
        });
    return isRead &&
           file.Execute("DELETE FROM orv_saves WHERE revision < " + std::to_string(keepFrom));
}

} // namespace

std::string NewFileGuid() {
    std::string guid = RandomDigits(4);
    guid[12] = '4';
    guid[16] = "89AB"[guid[16] % 4];
    for (const std::size_t place : {20, 16, 12, 8}) {
        guid.insert(place, 1, '-');
    }
    return guid;
}

FileIdentity NextIdentity(const FileIdentity& before) {
    return {before.guid.empty() ? NewFileGuid() : before.guid, before.revision + 1,
            RandomDigits(2)};
}

NumberRuns::NumberRuns(std::vector<std::uint32_t> numbers) {
    m_runs.reserve(numbers.size());
    std::sort(numbers.begin(), numbers.end());
    for (const std::uint32_t number : numbers) {
        if (!m_runs.empty() && number <= m_runs.back().first + m_runs.back().count) {
            m_runs.back().count = number - m_runs.back().first + 1;
        } else {
            m_runs.push_back({number, 1});
        }
    }
}

bool NumberRuns::Add(const std::string& text) {
    const char* p = text.data();
    const char* const pEnd = p + text.size();
    std::uint64_t next = 0;
    while (p != pEnd) {
        std::uint64_t distance = 0;
        std::uint64_t more = 0;
        auto read = std::from_chars(p, pEnd, distance);
        if (read.ec == std::errc() && read.ptr != pEnd && *read.ptr == '+') {
            read = std::from_chars(read.ptr + 1, pEnd, more);
        }
        const std::uint64_t first = next + distance;
        const bool isRun = read.ec == std::errc() && first <= kHighestId && more <= kHighestId &&
                           (read.ptr == pEnd || *read.ptr == ' ');
        if (!isRun) {
            return false;
        }
        m_runs.push_back({static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(more + 1)});
        next = first + more + 1;
        p = read.ptr == pEnd ? pEnd : read.ptr + 1;
    }
    Normalize();
    return true;
}

void NumberRuns::Normalize() {
    std::sort(m_runs.begin(), m_runs.end(),
              [](const NumberRun& a, const NumberRun& b) { return a.first < b.first; });
    std::vector<NumberRun> joined;
    for (const NumberRun& run : m_runs) {
        if (!joined.empty() && run.first <= joined.back().first + joined.back().count) {
            NumberRun& last = joined.back();
            last.count = std::max(last.count, run.first + run.count - last.first);
        } else {
            joined.push_back(run);
        }
    }
    m_runs = std::move(joined);
}

std::string NumberRuns::ToText() const {
    std::string text;
    std::uint32_t next = 0;
    for (const NumberRun& run : m_runs) {
        text += (text.empty() ? "" : " ") + std::to_string(run.first - next);
        if (run.count > 1) {
            text += "+" + std::to_string(run.count - 1);
        }
        next = run.first + run.count;
    }
    return text;
}

bool NumberRuns::Contains(std::uint32_t number) const {
    const auto next = std::upper_bound(
        m_runs.begin(), m_runs.end(), number,
        [](std::uint32_t wanted, const NumberRun& run) { return wanted < run.first; });
    return next != m_runs.begin() && number - std::prev(next)->first < std::prev(next)->count;
}

SavesSince LoadSavesSince(OpenGeoPackage& file, const FileIdentity& base) {
    SavesSince since;
    std::int64_t expected = base.revision;
    bool isComplete = !base.guid.empty();
    const auto add = [&](const OGRFeature& row) {
        const AcDbSaveNote note = NoteOf(row);
        isComplete = isComplete && note.revision == expected++;
        if (note.revision == base.revision) {
            since.isBranch = FieldText(row, "save_id") != base.saveId;
            return;
        }
        const std::string changed = FieldText(row, "changed");
        isComplete = isComplete && changed != kEverything && since.changed.Add(changed);
        since.saves.push_back(note);
    };
    const std::string from = std::to_string(base.revision);
    const bool isRead =
        file.Table(kSaveTable) &&
        file.Query("SELECT revision, save_id, saved_by, host, program, saved_at, changed FROM "
                   "orv_saves WHERE revision >= " +
                       from + " ORDER BY revision",
                   add);
    since.isComplete = isRead && isComplete && expected > base.revision && !since.isBranch;
    return since;
}

bool NoteSave(OpenGeoPackage& file, const FileIdentity& identity,
              const std::optional<NumberRuns>& changed) {
    std::string text = changed ? changed->ToText() : kEverything;
    if (text.size() > kLettersKept) {
        text = kEverything;
    }
    const ProcessInfo saver = ThisProcess();
    const std::string now = UtcNow();
    return AddNote(file, kSaveTable,
                   {{"revision", identity.revision},
                    {"save_id", std::string_view(identity.saveId)},
                    {"saved_by", std::string_view(saver.user)},
                    {"host", std::string_view(saver.host)},
                    {"program", std::string_view(saver.program)},
                    {"saved_at", std::string_view(now)},
                    {"changed", std::string_view(text)}}) &&
           DropOldSaves(file, identity.revision) && WriteMeta(file, "guid", identity.guid) &&
           WriteMeta(file, "revision", std::to_string(identity.revision)) &&
           WriteMeta(file, "save_id", identity.saveId);
}

bool ClearSaves(OpenGeoPackage& file) {
    return file.Execute("DELETE FROM orv_saves");
}

bool MayMeet(const CString& oneSystem, const CString& otherSystem) {
    return oneSystem.IsEmpty() || otherSystem.IsEmpty() || oneSystem == otherSystem;
}

AcDbConflict FindConflict(OpenGeoPackage& file, const Schema& schema,
                          const RememberedFile& remembered, const AcDbDatabase& database) {
    const FileIdentity& known = remembered.identity;
    AcDbConflict conflict;
    if (schema.identity == known) {
        // A file that no save has marked tells at least how many objects it has had.
        if (known.guid.empty() && schema.nextId < remembered.firstUnwritten) {
            conflict.kind = AcDbConflict::Kind::Older;
        }
        return conflict;
    }
    SavesSince since = LoadSavesSince(file, known);
    if (!known.guid.empty() && schema.identity.guid != known.guid) {
        conflict.kind = AcDbConflict::Kind::Replaced;
    } else if (schema.identity.revision <= known.revision || since.isBranch) {
        conflict.kind = AcDbConflict::Kind::Older;
    } else {
        conflict.kind = AcDbConflict::Kind::SavedByOthers;
        const CString theirSystem = Utf8ToWide(schema.coordinateSystem);
        conflict.canTakeOver = since.isComplete && remembered.CanFollow() &&
                               MayMeet(database.coordinateSystem(), theirSystem);
        conflict.saves = std::move(since.saves);
        return conflict;
    }
    // The last one says at least whose it is.
    conflict.saves = LoadSavesSince(file, {{}, schema.identity.revision - 1, {}}).saves;
    return conflict;
}

} // namespace Tessaly
