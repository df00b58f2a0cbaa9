#include "workspacecore/dialogs/UiStates.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace Orvane::Workspace {

void CUiStates::AddDialogState(DialogStatePtr state) {
    m_dialogStateVector.push_back(state);
    CString id = state->GetId();
    m_dialogStateMapById.emplace(std::move(id), std::move(state));
}

void CUiStates::RemoveDialogState(const DialogStatePtr& state) {
    // A copy: the argument may be the very element that is erased.
    const CString id = state->GetId();
    const auto hit = std::find(m_dialogStateVector.begin(), m_dialogStateVector.end(), state);
    if (hit != m_dialogStateVector.end()) {
        m_dialogStateVector.erase(hit);
    }
    m_dialogStateMapById.erase(id);
}

CUiStates::DialogStatePtr CUiStates::GetDialogStateById(const wchar_t* id) const {
    const auto hit = m_dialogStateMapById.find(std::wstring_view(id ? id : L""));
    return hit == m_dialogStateMapById.end() ? DialogStatePtr() : hit->second;
}

CUiStates::DialogStatePtr CUiStates::NeedDialogState(const wchar_t* id) {
    DialogStatePtr state = GetDialogStateById(id);
    if (!state) {
        state = boost::make_shared<CDialogState>();
        state->SetId(id);
        AddDialogState(state);
    }
    return state;
}

void CUiStates::Clear() {
    m_dialogStateVector.clear();
    m_dialogStateMapById.clear();
}

void CUiStates::MakeDeepCopy(CUiStates& target) const {
    const DialogStateVector source = m_dialogStateVector;
    target.Clear();
    for (const DialogStatePtr& state : source) {
        target.AddDialogState(boost::make_shared<CDialogState>(*state));
    }
}

} // namespace Orvane::Workspace
