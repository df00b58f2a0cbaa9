// Turns document events of the host into workspace events.
#pragma once

#include "platform/arx/ApDocManager.h"
#include "workspacecore/Api.h"

namespace Orvane::Selection {
class CNodeIndex;
class CPolygonIndex;
} // namespace Orvane::Selection

namespace Orvane::Workspace {

/// Created, attached and owned by CWsManager.
class WORKSPACE_API CWsDocumentReactor final : public AcApDocManagerReactor {
public:
    CWsDocumentReactor();

    void documentToBeDestroyed(AcApDocument* pDoc) override;
    void documentDestroyed(const wchar_t* lpszFileName) override;
    /// Sets up the workspace for a document, once per change of document.
    void documentBecameCurrent(AcApDocument* pDoc) override;
    void documentToBeDeactivated(AcApDocument* pDoc) override;

private:
    void MarkIndexesChanged();
    void SetUp(AcApDocument* pDoc);

    Selection::CPolygonIndex* m_pPolygonIndex;
    Selection::CNodeIndex* m_pNodeIndex;
    /// The document for which the workspace was last set up.
    static AcApDocument* s_pLastCurrentDocument;
};

} // namespace Orvane::Workspace
