#include "platform/arx/DbUndoState.h"

#include <algorithm>

#include "platform/arx/DbUndoChanges.h"

void AcDbUndo::State::note(AcDbObjectId id, std::unique_ptr<Change> change) {
    push(id, kExchanged).change = std::move(change);
}

void AcDbUndo::State::noteExistence(AcDbObjectId id, Kind kind) {
    constexpr std::uint32_t kMostInRange = (1U << 30) - 1;
    Entry* const pLast = lastOfGroup();
    const bool follows = pLast && pLast->kind == kind && pLast->count < kMostInRange &&
                         pLast->first + pLast->count == id.number() &&
                         !bars.holds(id, UndoPart::Existence, entries.size() - 1);
    if (follows) {
        ++pLast->count;
    } else {
        push(id, kind);
    }
}

void AcDbUndo::State::noteProperties(AcDbEntity& entity, UndoPart part, AcDbNameId name) {
    if (isPassive()) {
        return;
    }
    if (!isRecording()) {
        if (entity.m_bPropertiesInHistory) {
            bars.raise(entity.m_id, part, entries.size(), name);
        }
        entity.m_bPropertiesNoted = false;
    } else if (!entity.m_bPropertiesNoted) {
        note(entity.m_id, std::make_unique<PropertiesChange>(entity));
        entity.m_bPropertiesNoted = true;
        entity.m_bPropertiesInHistory = true;
    }
}

void AcDbUndo::State::pin(AcDbObjectId id) {
    bars.raise(id, UndoPart::Existence, entries.size());
}

void AcDbUndo::State::pinPlace(const AcDbEntity& entity) {
    pin(entity.m_layer);
    pin(entity.m_block);
}

AcDbUndo::State::Entry& AcDbUndo::State::push(AcDbObjectId id, Kind kind) {
    dropRedo();
    const bool joins = depth > 0 ? groupHasEntries : !id.isNull() && id == openAlone;
    if (!joins) {
        const CString& name = depth > 0 ? groupName : CString();
        groups.push_back({entries.size(), &*names.insert(name).first, 0});
        done = groups.size();
        groupHasEntries = depth > 0;
    }
    if (depth == 0) {
        const AcDbObject* const pObject = database.object(id);
        openAlone = pObject && pObject->m_bWriter ? id : AcDbObjectId();
    }
    entries.push_back({id.number(), kind & 3U, 1, nullptr});
    return entries.back();
}

AcDbUndo::State::Entry* AcDbUndo::State::lastOfGroup() {
    return depth > 0 && groupHasEntries ? &entries.back() : nullptr;
}

void AcDbUndo::State::forgetNotes(std::size_t firstEntry, std::size_t end) {
    for (std::size_t i = firstEntry; i < end; ++i) {
        AcDbObject* const pObject = database.object(AcDbObjectId(entries[i].first));
        if (pObject) {
            pObject->m_bBodyNoted = false;
            pObject->m_bPropertiesNoted = false;
        }
    }
    firstNoted = std::max(firstNoted, end);
}

std::size_t AcDbUndo::State::endOf(std::size_t group) const {
    return group + 1 < groups.size() ? groups[group + 1].first : entries.size();
}

bool AcDbUndo::State::mayApply() const {
    return depth == 0 && !database.m_bLoading && database.m_nWriters == 0;
}

void AcDbUndo::State::apply(std::size_t group, bool forward) {
    const std::size_t first = groups[group].first;
    const std::size_t end = endOf(group);
    for (std::size_t i = first; i < end; ++i) {
        applyEntry(forward ? i : end - 1 - (i - first), forward);
    }
    bringBackPlaces();
    bytes -= groups[group].bytes;
    groups[group].bytes = measure(group);
    bytes += groups[group].bytes;
    // All is done before anybody hears of it, so that a reactor finds a whole drawing and may
    // change it.
    for (const Event& event : takeEvents()) {
        database.tellChanges(*database.object(event.id), event.erasedChanged, event.modified);
    }
    release();
}

void AcDbUndo::State::applyEntry(std::size_t index, bool forward) {
    const Entry& entry = entries[index];
    if (entry.kind != kExchanged) {
        for (std::uint32_t i = 0; i < entry.count; ++i) {
            const std::uint32_t offset = forward ? i : entry.count - 1 - i;
            applyExistence(*database.object(AcDbObjectId(entry.first + offset)), index,
                           (entry.kind == kVanished) == forward);
        }
        return;
    }
    AcDbObject* const pObject = database.object(AcDbObjectId(entry.first));
    if (!pObject) {
        entry.change->exchange(*this, nullptr, index);
        return;
    }
    if (entry.change->exchange(*this, pObject, index)) {
        touch(*pObject);
        pObject->m_bChanged = true;
    }
}

void AcDbUndo::State::applyExistence(AcDbObject& object, std::size_t index, bool erased) {
    if (object.m_bErased != erased && !bars.holds(object.m_id, UndoPart::Existence, index)) {
        touch(object);
        database.setErased(object, erased);
    }
}

void AcDbUndo::State::touch(AcDbObject& object) {
    if (!object.m_bTouched) {
        object.m_bTouched = true;
        object.m_bChanged = false;
        object.m_bWasErased = object.m_bErased;
        touched.push_back(object.m_id);
    }
    database.markUnsaved(object);
}

void AcDbUndo::State::bringBackPlaces() {
    // By index: places are touched as well.
    for (std::size_t i = 0; i < touched.size(); ++i) {
        const AcDbObject& object = *database.object(touched[i]);
        if (!object.m_bEntity || object.m_bErased) {
            continue;
        }
        const auto& entity = static_cast<const AcDbEntity&>(object);
        for (const AcDbObjectId id : {entity.m_layer, entity.m_block}) {
            AcDbObject* const pPlace = database.object(id);
            if (pPlace && pPlace->m_bErased) {
                touch(*pPlace);
                database.setErased(*pPlace, false);
            }
        }
    }
}

std::vector<AcDbUndo::State::Event> AcDbUndo::State::takeEvents() {
    std::vector<Event> events;
    events.reserve(touched.size());
    for (const AcDbObjectId id : touched) {
        AcDbObject& object = *database.object(id);
        object.m_bTouched = false;
        events.push_back({id, object.m_bErased != object.m_bWasErased, bool(object.m_bChanged)});
    }
    touched = {};
    return events;
}
