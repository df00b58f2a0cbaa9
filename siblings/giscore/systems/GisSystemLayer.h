// A layer of the drawing that belongs to a system.
#pragma once

#include <span>

#include "platform/arx/DbDatabase.h"
#include "siblings/giscore/Api.h"
#include "siblings/giscore/topology/GisTypes.h"
#include "siblings/giscore/utility/GisTexts.h"

namespace Orvane::System {

/// Systems find their layers by a reference, such as "DIONICA" for the sections of a network, so
/// the layers themselves may have any name. Owned by its system.
class GISCORE_API CGisSystemLayer {
public:
    CGisSystemLayer(const AcDbDatabase& database, const wchar_t* reference, const CString& name)
        : m_pDatabase(&database), m_strReference(reference), m_strName(name) {}

    const CString& GetReference() const { return m_strReference; }
    const CString& GetLayerName() const { return m_strName; }
    /// Null if the drawing does not (or no longer) have the layer.
    AcDbObjectId GetLayerId() const;
    /// Index of the standard 255-colour table; 0 if the drawing does not have the layer.
    int GetColorIndex() const;

private:
    const AcDbDatabase* m_pDatabase;
    CString m_strReference;
    CString m_strName;
    mutable AcDbObjectId m_id; ///< cached result of the last look-up
};

/// A layer that systems of a topology and function have.
struct LayerDesign {
    enmTopologyType type;
    int function; ///< 0: all functions without a row of their own
    const wchar_t* reference;
    GisMsg word; ///< follows the system's name in the layer name
    int colorIndex;
};

/// In the order of creation.
GISCORE_API std::vector<const LayerDesign*> LayerDesignsOf(enmTopologyType type, int function);
/// The layer reference for entities of a kind (EntityNone: texts), e.g. "TEXT" for texts in
/// polygon systems.
GISCORE_API const wchar_t* LayerReferenceOf(enmTopologyType type, int function,
                                            enmEntityType entity);

} // namespace Orvane::System
