// Follows the host's documents and turns what happens to them into workspace events.
#pragma once

#include "platform/arx/ApDocManager.h"
#include "workspacecore/Api.h"

namespace Orvane::Selection {
class CNodeIndex;
class CPolygonIndex;
} // namespace Orvane::Selection

namespace Orvane::Workspace {

/// Made and attached by CWsManager, which owns it.
class WORKSPACE_API CWsDocumentReactor final : public AcApDocManagerReactor {
public:
    CWsDocumentReactor();

    void documentToBeDestroyed(AcApDocument* pDoc) override;
    void documentDestroyed(const wchar_t* lpszFileName) override;
    /// Sets the workspace up for a document, once for each change of document.
    void documentBecameCurrent(AcApDocument* pDoc) override;
    void documentToBeDeactivated(AcApDocument* pDoc) override;

private:
    void MarkIndexesChanged();
    void SetUp(AcApDocument* pDoc);

    Selection::CPolygonIndex* m_pPolygonIndex;
    Selection::CNodeIndex* m_pNodeIndex;
    /// Which document the workspace was last set up for.
    static AcApDocument* s_pLastCurrentDocument;
};

} // namespace Orvane::Workspace
