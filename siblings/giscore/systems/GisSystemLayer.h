// A layer of the drawing that belongs to a system.
#pragma once

#include <span>

#include "platform/arx/DbDatabase.h"
#include "siblings/giscore/Api.h"
#include "siblings/giscore/topology/GisTypes.h"
#include "siblings/giscore/utility/GisTexts.h"

namespace Orvane::System {

/// Systems know their layers by a reference, as "DIONICA" for the sections of a network, so
/// that the layers themselves may have any name. Owned by its system.
class GISCORE_API CGisSystemLayer {
public:
    CGisSystemLayer(const AcDbDatabase& database, const wchar_t* reference, const CString& name)
        : m_pDatabase(&database), m_strReference(reference), m_strName(name) {}

    const CString& GetReference() const { return m_strReference; }
    const CString& GetLayerName() const { return m_strName; }
    /// Null if the drawing does not have the layer (any more).
    AcDbObjectId GetLayerId() const;
    /// Index of the standard 255-colour table; 0 if the drawing does not have the layer.
    int GetColorIndex() const;

private:
    const AcDbDatabase* m_pDatabase;
    CString m_strReference;
    CString m_strName;
    mutable AcDbObjectId m_id; ///< where it was found last
};

/// What a system of a topology and function has for layers.
struct LayerDesign {
    enmTopologyType type;
    int function; ///< 0: all that no other row names
    const wchar_t* reference;
    GisMsg word; ///< behind the system's name in the layer's name
    int colorIndex;
};

/// In the order in which they are made.
GISCORE_API std::vector<const LayerDesign*> LayerDesignsOf(enmTopologyType type, int function);
/// The layer that entities of a kind lie on: in a system of polygons a text lies on "TEXT".
/// EntityNone stands for texts.
GISCORE_API const wchar_t* LayerReferenceOf(enmTopologyType type, int function,
                                            enmEntityType entity);

} // namespace Orvane::System
