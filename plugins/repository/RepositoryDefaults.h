// What the default items of systems do when their drawing is opened.
#pragma once

#include <set>

#include "workspacecore/events/IWsListener.h"

namespace Orvane::Repository {

/// Shows the default items of all systems when a drawing becomes current for the first time:
/// that is when it has been opened. Each family does so in its own way
/// (IRepositoryFamily::ShowDefault), in the order in which families were registered. What
/// that changes in the drawing is one step of its history; a drawing that shows its defaults
/// already stays unchanged. An item that becomes the default later does nothing by itself
/// until the drawing is opened again.
class DefaultsAtOpening final : public Workspace::IWsListener {
public:
    void OnAcadDocumentBecomeCurrent(AcApDocument* pDoc) override;
    void OnAcadDocumentToBeDestroyed(AcApDocument* pDoc) override;

private:
    std::set<const AcApDocument*> m_seen; ///< of the open ones
};

} // namespace Orvane::Repository
