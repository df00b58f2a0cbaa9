#include "platform/arx/DbUndo.h"

#include <stdexcept>

#include "platform/arx/DbUndoChanges.h"

AcDbUndo::AcDbUndo(AcDbDatabase& database) : m_pState(std::make_unique<State>(database)) {}

AcDbUndo::~AcDbUndo() = default;

void AcDbDatabase::disableUndoRecording(bool bDisable) {
    m_pUndo->m_pState->recording = !bDisable;
}

bool AcDbDatabase::isUndoRecordingDisabled() const {
    return !m_pUndo->m_pState->recording;
}

void AcDbUndo::pause() {
    ++m_pState->pauses;
}

void AcDbUndo::resume() {
    --m_pState->pauses;
}

void AcDbUndo::beginGroup(const wchar_t* name) {
    if (m_pState->depth++ > 0) {
        return;
    }
    // An object that is still open was noted by itself; the group needs a note of its own.
    m_pState->forgetNotes(m_pState->firstNoted);
    m_pState->groupName = name;
    m_pState->groupHasEntries = false;
    m_pState->openAlone = {};
}

void AcDbUndo::endGroup() {
    if (m_pState->depth == 0) {
        throw std::logic_error("A group of changes was ended that was not begun.");
    }
    if (--m_pState->depth == 0) {
        m_pState->forgetNotes(m_pState->firstNoted);
        m_pState->settle();
    }
}

int AcDbUndo::openGroups() const {
    return m_pState->depth;
}

const CString* AcDbUndo::undoName() const {
    return m_pState->done > 0 ? m_pState->groups[m_pState->done - 1].pName : nullptr;
}

const CString* AcDbUndo::redoName() const {
    const State& state = *m_pState;
    return state.done < state.groups.size() ? state.groups[state.done].pName : nullptr;
}

bool AcDbUndo::undo() {
    if (m_pState->done == 0 || !m_pState->mayApply()) {
        return false;
    }
    m_pState->measureNew();
    --m_pState->done;
    m_pState->apply(m_pState->done, false);
    return true;
}

bool AcDbUndo::redo() {
    if (m_pState->done == m_pState->groups.size() || !m_pState->mayApply()) {
        return false;
    }
    ++m_pState->done;
    m_pState->apply(m_pState->done - 1, true);
    return true;
}

void AcDbUndo::clear() {
    m_pState->forgetNotes(m_pState->firstNoted);
    m_pState->noteLeft(0, m_pState->entries.size());
    m_pState->firstNoted = 0;
    m_pState->entries.clear();
    m_pState->groups.clear();
    m_pState->names.clear();
    m_pState->bars.clear();
    m_pState->done = 0;
    m_pState->measured = 0;
    m_pState->bytes = 0;
    m_pState->groupHasEntries = false;
    m_pState->openAlone = {};
    if (m_pState->isPassive()) {
        m_pState->left.clear(); // the database drops all objects
        m_pState->isReleaseDue = false;
    }
    m_pState->release();
}

void AcDbUndo::noteBody(AcDbObject& object) {
    if (m_pState->isPassive()) {
        return;
    }
    if (!m_pState->isRecording()) {
        if (object.m_bBodyInHistory) {
            m_pState->bars.raise(object.m_id, UndoPart::Body, m_pState->entries.size());
        }
        object.m_bBodyNoted = false;
    } else if (!object.m_bBodyNoted) {
        m_pState->note(object.m_id, std::make_unique<State::BodyChange>(object));
        object.m_bBodyNoted = true;
        object.m_bBodyInHistory = true;
    }
}

void AcDbUndo::noteLayer(AcDbEntity& entity, AcDbObjectId layer) {
    m_pState->noteProperties(entity, UndoPart::Layer);
    if (!m_pState->isRecording()) {
        m_pState->pin(layer);
    }
}

void AcDbUndo::noteColor(AcDbEntity& entity) {
    m_pState->noteProperties(entity, UndoPart::Color);
}

void AcDbUndo::noteAttribute(AcDbEntity& entity, AcDbNameId name) {
    m_pState->noteProperties(entity, UndoPart::Attribute, name);
}

void AcDbUndo::noteRecord(AcDbDictionary& dictionary, const CString& record) {
    State& state = *m_pState;
    if (state.isPassive()) {
        return;
    }
    if (!state.isRecording()) {
        state.bars.raise(dictionary.m_id, record, state.entries.size());
        state.pin(dictionary.m_id);
        return;
    }
    // A record that is written over and over in a group is kept as it was at first.
    const State::Entry* const pLast = state.lastOfGroup();
    const bool same = pLast && pLast->first == dictionary.m_id.number() && pLast->change &&
                      static_cast<const State::RecordChange&>(*pLast->change).name == record &&
                      !state.bars.holds(dictionary.m_id, record, state.entries.size() - 1);
    if (!same) {
        state.note(dictionary.m_id, std::make_unique<State::RecordChange>(dictionary, record));
    }
}

void AcDbUndo::noteCoordinateSystem() {
    State& state = *m_pState;
    if (state.isPassive()) {
        return;
    }
    if (!state.isRecording()) {
        state.bars.raise({}, UndoPart::CoordinateSystem, state.entries.size());
        return;
    }
    state.note({},
               std::make_unique<State::CoordinateSystemChange>(state.database.coordinateSystem()));
}

void AcDbUndo::noteCreated(const AcDbObject& object) {
    if (m_pState->isPassive()) {
        return;
    }
    if (m_pState->isRecording()) {
        m_pState->noteExistence(object.m_id, State::kAppeared);
    } else if (object.m_bEntity) {
        m_pState->pinPlace(static_cast<const AcDbEntity&>(object));
    }
}

void AcDbUndo::noteErased(const AcDbObject& object, bool bErased) {
    if (m_pState->isPassive()) {
        return;
    }
    if (m_pState->isRecording()) {
        m_pState->noteExistence(object.m_id, bErased ? State::kVanished : State::kAppeared);
        return;
    }
    m_pState->pin(object.m_id);
    if (object.m_bEntity && !bErased) {
        m_pState->pinPlace(static_cast<const AcDbEntity&>(object));
    }
}

void AcDbUndo::noteClosed(AcDbObject& object) {
    if (m_pState->depth == 0) {
        object.m_bBodyNoted = false;
        object.m_bPropertiesNoted = false;
    }
    if (m_pState->openAlone == object.m_id) {
        m_pState->openAlone = {};
    }
}

void AcDbUndo::noteComplete() {
    m_pState->settle();
}

void AcDbUndo::noteSaved() {
    m_pState->isReleaseDue = !m_pState->left.empty();
    m_pState->release();
}
