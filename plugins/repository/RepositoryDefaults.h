// Applies the default items of systems when a drawing is opened.
#pragma once

#include <set>

#include "workspacecore/events/IWsListener.h"

namespace Orvane::Repository {

/// Shows the default items of all systems when a drawing becomes current for the first time, that
/// is when it has been opened. Each family does this in its own way
/// (IRepositoryFamily::ShowDefault), in the order of registration. The changes are one undo step; a
/// drawing that already shows its defaults stays unmodified. Setting another default has no effect
/// until the drawing is opened again.
class DefaultsAtOpening final : public Workspace::IWsListener {
public:
    void OnAcadDocumentBecomeCurrent(AcApDocument* pDoc) override;
    void OnAcadDocumentToBeDestroyed(AcApDocument* pDoc) override;

private:
    std::set<const AcApDocument*> m_seen; ///< of the open documents
};

} // namespace Orvane::Repository
