// What is remembered of the file that a drawing was read from, to write only what changed.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/storage/Schema.h"
#include "platform/arx/DbDictionary.h"

namespace Tessaly {

/// By which texts of records are compared with what they were.
std::size_t SumOf(const CString& text);

struct RememberedFile {
    /// An entity that stands for a row of somebody else's table.
    struct Foreign {
        AcDbObjectId id;
        std::uint32_t part = 0;
        std::int64_t fid = 0;
        std::uint32_t table = 0; ///< position in `foreignTables`
        bool isOurs = false;     ///< noted in the file as replaced
    };
    /// A row of ours whose number could not be its entity's id: another program added it.
    struct Renumbered {
        EntityKind kind{};
        std::int64_t fid = 0;
        AcDbObjectId id;
    };

    std::string path;
    /// Changes with every write of any program; other than at our last: somebody wrote.
    std::uint32_t changeCounter = 0;
    FileIdentity identity;
    /// Objects from this id on are not in the file.
    std::uint32_t firstUnwritten = 0;
    /// Objects that were made while reading, and are not in the file either.
    std::vector<AcDbObjectId> made;
    std::vector<Renumbered> renumbered; ///< in the order of ids
    std::vector<std::string> foreignTables;
    std::vector<Foreign> foreign; ///< in the order of ids
    std::vector<IdRun> newRuns;   ///< not noted in the file yet
    /// Sums of the texts of records as the file has them, by dictionary and record.
    using Records = std::map<CString, std::size_t, CStringLess>;
    std::map<CString, Records, CStringLess> dictionaries;

    /// Null if the entity is no row of another's table, or not any more.
    const Foreign* FindForeign(AcDbObjectId id) const;
    /// A row of ours stands for the entity, or did so before it was erased.
    bool HasRow(AcDbObjectId id) const;
    /// What others save into the file can be told from what is in the drawing: ids below
    /// firstUnwritten mean the same in both, and those above are the drawing's own.
    bool CanFollow() const { return firstUnwritten > 0 && renumbered.empty() && newRuns.empty(); }
    /// Keeps the sums of a dictionary that was read or written.
    void NoteRecords(const AcDbDictionary& dictionary);

    Foreign* FindForeign(AcDbObjectId id) {
        return const_cast<Foreign*>(std::as_const(*this).FindForeign(id));
    }
};

} // namespace Tessaly
