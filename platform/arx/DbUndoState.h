// What the undo history is made of; seen by its own sources only.
#pragma once

#include <deque>
#include <optional>
#include <set>
#include <unordered_map>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

/// What a history notes of an object, each by itself.
enum class UndoPart : std::uint8_t { Existence, Body, Layer, Color, Attribute, CoordinateSystem };

/// Where the history of a part ends because the part was changed off the record: entries
/// below the bar are passed over.
class UndoBars {
public:
    bool isEmpty() const { return m_parts.empty() && m_records.empty(); }
    void raise(AcDbObjectId id, UndoPart part, std::size_t entries, AcDbNameId name = {});
    void raise(AcDbObjectId id, const CString& record, std::size_t entries);
    bool holds(AcDbObjectId id, UndoPart part, std::size_t entry, AcDbNameId name = {}) const;
    bool holds(AcDbObjectId id, const CString& record, std::size_t entry) const;
    /// The history was cut to a number of entries; those to come are above all bars.
    void cut(std::size_t entries);
    /// The oldest entries were dropped.
    void dropOldest(std::size_t entries);
    void clear();

private:
    std::unordered_map<std::uint64_t, std::size_t> m_parts; ///< by id, part and name in one
    std::map<std::pair<AcDbObjectId, CString>, std::size_t> m_records;
};

struct AcDbUndo::State {
    /// The other state of something. Exchanging it twice changes nothing.
    struct Change {
        virtual ~Change() = default;
        /// False if all of it is barred.
        virtual bool exchange(State& state, AcDbObject* pObject, std::size_t entry) = 0;
        virtual std::size_t bytes() const = 0;
    };
    struct BodyChange;
    struct PropertiesChange;
    struct RecordChange;
    struct CoordinateSystemChange;

    enum Kind : std::uint32_t { kExchanged, kAppeared, kVanished };

    /// One change, or the appearing or vanishing of objects of successive ids. Sixteen bytes,
    /// as there is one for each change and many are never undone.
    struct Entry {
        std::uint32_t first;
        std::uint32_t kind : 2;
        std::uint32_t count : 30;
        std::unique_ptr<Change> change; ///< of kExchanged
    };
    struct Group {
        std::size_t first; ///< entry; it reaches to the next group's
        const CString* pName;
        std::size_t bytes = 0; ///< once it is measured
    };
    /// What reactors hear of an object after undo or redo.
    struct Event {
        AcDbObjectId id;
        bool erasedChanged;
        bool modified;
    };

    explicit State(AcDbDatabase& owner) : database(owner) {}

    bool isPassive() const { return database.m_bLoading; }
    void note(AcDbObjectId id, std::unique_ptr<Change> change);
    void noteExistence(AcDbObjectId id, Kind kind);
    /// Before one of its properties changes: notes all of them, unless the open group has them.
    void noteProperties(AcDbEntity& entity, UndoPart part, AcDbNameId name = {});
    /// Keeps a layer, block or dictionary in the drawing, as something off the record needs it.
    void pin(AcDbObjectId id);
    void pinPlace(const AcDbEntity& entity);

    Entry& push(AcDbObjectId id, Kind kind);
    /// Null unless a group is open and has entries.
    Entry* lastOfGroup();
    void dropRedo();
    void forgetNotes(std::size_t firstEntry) { forgetNotes(firstEntry, entries.size()); }
    void forgetNotes(std::size_t firstEntry, std::size_t end);
    std::size_t endOf(std::size_t group) const;

    std::size_t measure(std::size_t group) const;
    void measureNew();
    /// A step is complete: keeps the history within its limit.
    void settle();
    void dropOldest(std::size_t count);
    /// Entries that are about to be dropped: what they name may be out of reach then.
    void noteLeft(std::size_t firstEntry, std::size_t end);
    /// Releases what is out of reach, unless somebody may be looking at it right now.
    void release();
    void passOverReachable(std::vector<std::uint32_t>& ids) const;

    bool mayApply() const;
    void apply(std::size_t group, bool forward);
    void applyEntry(std::size_t index, bool forward);
    void applyExistence(AcDbObject& object, std::size_t index, bool erased);
    void touch(AcDbObject& object);
    void bringBackPlaces();
    std::vector<Event> takeEvents();

    AcDbDatabase& database;
    // Deques: they grow without moving, and take no spare room as large as themselves.
    std::deque<Entry> entries;
    std::deque<Group> groups;
    std::size_t done = 0; ///< groups that can be undone; the others can be redone
    UndoBars bars;
    std::set<CString> names; ///< of groups, each once
    std::vector<AcDbObjectId> touched;

    std::size_t bytes = 0;    ///< of measured groups
    std::size_t measured = 0; ///< groups; those behind them are not complete
    std::size_t dropped = 0;
    /// Numbers of objects that dropped entries named: first and end of each run.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> left;
    bool isReleaseDue = false;

    bool recording = true;
    int pauses = 0; ///< each in force until it ends, whatever is switched meanwhile
    bool isRecording() const { return recording && pauses == 0; }
    int depth = 0;
    bool groupHasEntries = false;
    CString groupName;
    /// Outside of groups: the object whose opening, which goes on, made the last group.
    AcDbObjectId openAlone;
    /// Entries from here on may have left their marks on objects that are still open.
    std::size_t firstNoted = 0;
};
