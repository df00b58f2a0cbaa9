// Which drawing a file is, in which state, and what its last saves wrote: by this a program
// notices that another one has saved, and knows what that changed without a copy of its own.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/arx/DbConflict.h"

class AcDbDatabase;

namespace Tessaly {

class OpenGeoPackage;
struct RememberedFile;
struct Schema;

/// Other programs leave it alone when they edit the file. Empty in files that no save has
/// marked yet.
struct FileIdentity {
    std::string guid;          ///< of the file; a copy under another name gets its own
    std::int64_t revision = 0; ///< raised by every save
    /// Another one for every save: copies of one file go through the same revisions.
    std::string saveId;
    bool operator==(const FileIdentity&) const = default;
};

std::string NewFileGuid();
/// What a save after this one states.
FileIdentity NextIdentity(const FileIdentity& before);

/// Numbers that follow each other.
struct NumberRun {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
    bool operator==(const NumberRun&) const = default;
};

/// A set of object numbers.
class NumberRuns {
public:
    /// In any order; numbers may repeat.
    explicit NumberRuns(std::vector<std::uint32_t> numbers = {});
    /// Adds those of a text that ToText made. False if it is none.
    bool Add(const std::string& text);
    /// Distances and lengths, as "12+3 2": 12 to 15, and 18.
    std::string ToText() const;
    bool Contains(std::uint32_t number) const;
    const std::vector<NumberRun>& Runs() const { return m_runs; }

private:
    void Normalize();
    std::vector<NumberRun> m_runs; ///< in order, with gaps between
};

/// The saves behind a revision, as far as the file notes them.
struct SavesSince {
    std::vector<AcDbSaveNote> saves; ///< oldest first
    NumberRuns changed;
    /// All of them are noted, the file comes from the revision, and each tells what it wrote.
    bool isComplete = false;
    /// The file's state of that revision was another one.
    bool isBranch = false;
};
SavesSince LoadSavesSince(OpenGeoPackage& file, const FileIdentity& base);

/// Notes a save in the file, and drops the oldest notes beyond what is kept. Without numbers
/// it is a save that may have changed everything.
bool NoteSave(OpenGeoPackage& file, const FileIdentity& identity,
              const std::optional<NumberRuns>& changed);
/// Forgets the saves of the file that this one was copied from.
bool ClearSaves(OpenGeoPackage& file);

/// Whether positions of two drawings are of one coordinate system as far as both state one.
bool MayMeet(const CString& oneSystem, const CString& otherSystem);

/// What stands against writing the changes of a drawing into a file.
AcDbConflict FindConflict(OpenGeoPackage& file, const Schema& schema,
                          const RememberedFile& remembered, const AcDbDatabase& database);

} // namespace Tessaly
