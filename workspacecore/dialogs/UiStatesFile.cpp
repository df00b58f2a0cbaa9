#include "workspacecore/dialogs/UiStatesFile.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <tuple>

#include "platform/win/File.h"
#include "platform/win/FolderLock.h"

namespace Orvane::Workspace {

namespace {

constexpr int kLatest = 800; // milliseconds: a second with the writing

using AttributePtr = CDialogState::AttributePtr;

auto PlaceOf(const CDialogState& state) {
    return std::tuple(state.GetLeft(), state.GetTop(), state.GetWidth(), state.GetHeight(),
                      state.GetResizable(), state.GetDocked(), state.GetSide());
}

void TakePlace(CDialogState& state, const CDialogState& from) {
    state.SetLeft(from.GetLeft());
    state.SetTop(from.GetTop());
    state.SetWidth(from.GetWidth());
    state.SetHeight(from.GetHeight());
    state.SetResizable(from.GetResizable());
    state.SetDocked(from.GetDocked());
    state.SetSide(from.GetSide());
}

bool IsEqual(const AttributePtr& left, const AttributePtr& right) {
    return !left || !right
               ? left == right
               : left->GetType() == right->GetType() && left->GetValue() == right->GetValue();
}

/// A vector may lose elements while it is gone through.
template <class Pointer, class Call>
void ForEach(std::vector<Pointer> pointers, Call call) {
    for (const Pointer& pointer : pointers) {
        call(pointer);
    }
}

/// \param base null for a dialog that both programs added
void MergeDialog(CDialogState& ours, const CDialogState* base, const CDialogState& theirs) {
    const auto before = [&](const CString& id) {
        return base ? base->GetStateAttributeById(id) : AttributePtr();
    };
    if (base && PlaceOf(ours) == PlaceOf(*base)) {
        TakePlace(ours, theirs);
    }
    ForEach(*theirs.GetStateAttributeVector(), [&](const AttributePtr& value) {
        const AttributePtr present = ours.GetStateAttributeById(value->GetId());
        if (!IsEqual(present, before(value->GetId()))) {
            return;
        }
        if (present) {
            value->MakeDeepCopy(*present);
        } else {
            ours.AddStateAttribute(boost::make_shared<CStateAttribute>(*value));
        }
    });
    ForEach(*ours.GetStateAttributeVector(), [&](const AttributePtr& value) {
        const AttributePtr old = before(value->GetId());
        if (old && IsEqual(value, old) && !theirs.GetStateAttributeById(value->GetId())) {
            ours.RemoveStateAttribute(value);
        }
    });
}

bool IsUntouched(const CDialogState& ours, const CDialogState& base) {
    const auto& values = *ours.GetStateAttributeVector();
    return PlaceOf(ours) == PlaceOf(base) &&
           values.size() == base.GetStateAttributeVector()->size() &&
           std::all_of(values.begin(), values.end(), [&](const AttributePtr& value) {
               return IsEqual(value, base.GetStateAttributeById(value->GetId()));
           });
}

} // namespace

void MergeUiStates(CUiStates& ours, const CUiStates& base, const CUiStates& theirs) {
    ForEach(*theirs.GetDialogStateVector(), [&](const CUiStates::DialogStatePtr& state) {
        const CUiStates::DialogStatePtr old = base.GetDialogStateById(state->GetId());
        if (const auto present = ours.GetDialogStateById(state->GetId())) {
            MergeDialog(*present, old.get(), *state);
        } else if (!old) {
            const auto added = boost::make_shared<CDialogState>();
            state->MakeDeepCopy(*added);
            ours.AddDialogState(added);
        }
    });
    ForEach(*ours.GetDialogStateVector(), [&](const CUiStates::DialogStatePtr& state) {
        const CUiStates::DialogStatePtr old = base.GetDialogStateById(state->GetId());
        if (old && !theirs.GetDialogStateById(state->GetId()) && IsUntouched(*state, *old)) {
            ours.RemoveDialogState(state);
        }
    });
}

UiStatesFile::UiStatesFile(const CString& path)
    : m_path(path), m_states(boost::make_shared<CUiStates>()),
      m_saving(kLatest, [this] { Save(); }) {
    m_states->Load(m_path);
    Remember();
}

void UiStatesFile::Remember() {
    m_text = ReadFileBytes(m_path).value_or(std::string());
    // A deep copy of the record would share the values.
    m_base.ParseXML(m_states->GetXML());
}

void UiStatesFile::Save() {
    m_saving.Cancel();
    const FolderLock lock(m_path);
    const std::string present = ReadFileBytes(m_path).value_or(std::string());
    const bool isChanged = m_states->GetXML() != m_base.GetXML();
    bool isRead = !present.empty() && present == m_text;
    if (CUiStates theirs; !present.empty() && !isRead && theirs.Load(m_path)) {
        MergeUiStates(*m_states, m_base, theirs);
        isRead = true;
    }
    if ((!isChanged && isRead) || m_states->Save(m_path)) {
        Remember();
    }
}

} // namespace Orvane::Workspace
