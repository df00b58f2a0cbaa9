#include "siblings/giscore/systems/GisSystemLayer.h"

#include <algorithm>

#include "siblings/giscore/topology/Topology.h"

namespace Orvane::System {

namespace {

/// Colours that are legible on light and dark backgrounds.
constexpr LayerDesign kDesigns[] = {
    {TopologyLine, 1, L"DIONICA", GisMsg::SectionLayer, 150},
    {TopologyLine, 2, L"DIONICA", GisMsg::SectionLayer, 32},
    {TopologyLine, 3, L"DIONICA", GisMsg::SectionLayer, 142},
    {TopologyLine, 4, L"DIONICA", GisMsg::SectionLayer, 42},
    {TopologyLine, 5, L"DIONICA", GisMsg::SectionLayer, 210},
    {TopologyLine, 6, L"DIONICA", GisMsg::SectionLayer, 1},
    {TopologyLine, 7, L"DIONICA", GisMsg::SectionLayer, 30},
    {TopologyLine, kFunctionAlignment, L"MALIGNMENT", GisMsg::AlignmentLayer, 1},
    {TopologyLine, 0, L"DIONICA", GisMsg::SectionLayer, 92},
    {TopologyLine, 0, L"NODE", GisMsg::NodeLayer, 7},
    {TopologyLine, 0, L"TEXT", GisMsg::TextLayer, 7},
    {TopologyPolygon, 0, L"POLYGON_SHELL", GisMsg::PolygonLayer, 92},
    {TopologyPolygon, 0, L"POLYGON_TEMP", GisMsg::TemporaryPolygonLayer, 1},
    {TopologyPolygon, 0, L"NODE", GisMsg::NodeLayer, 8},
    {TopologyPolygon, 0, L"TEXT", GisMsg::TextLayer, 7},
    {TopologyPoint, 0, L"NODE", GisMsg::PointLayer, 2},
    {TopologyPoint, 0, L"TEXT", GisMsg::TextLayer, 7},
    {TopologyScheme, 0, L"SCHEME", GisMsg::SchemeLayer, 6},
    {TopologyScheme, 0, L"TEXT", GisMsg::TextLayer, 7},
};

} // namespace

AcDbObjectId CGisSystemLayer::GetLayerId() const {
    // Called for every entity, so avoid the look-up by name where possible.
    const AcDbObject* const pLast = m_pDatabase->peek(m_id);
    if (!pLast || pLast->isErased()) {
        m_id = m_pDatabase->findLayer(m_strName);
    }
    return m_id;
}

int CGisSystemLayer::GetColorIndex() const {
    const auto* const pLayer =
        static_cast<const AcDbLayerTableRecord*>(m_pDatabase->peek(GetLayerId()));
    return pLayer ? pLayer->colorIndex() : 0;
}

std::vector<const LayerDesign*> LayerDesignsOf(enmTopologyType type, int function) {
    // An alignment has no sections, and a row for the function itself takes precedence.
    const bool isAlignment = type == TopologyLine && function == kFunctionAlignment;
    std::vector<const LayerDesign*> designs;
    for (const LayerDesign& design : kDesigns) {
        const bool isFor = design.type == type &&
                           (design.function == function || design.function == 0) &&
                           !(isAlignment && CString(design.reference) == L"DIONICA");
        const bool isKnown =
            std::any_of(designs.begin(), designs.end(), [&](const LayerDesign* pOther) {
                return CString(pOther->reference) == design.reference;
            });
        if (isFor && !isKnown) {
            designs.push_back(&design);
        }
    }
    return designs;
}

const wchar_t* LayerReferenceOf(enmTopologyType type, int function, enmEntityType entity) {
    if (entity == EntityNone) {
        return L"TEXT";
    }
    if (type == TopologyScheme) {
        return L"SCHEME";
    }
    switch (entity) {
    case EntitySection:
        return type == TopologyLine && function == kFunctionAlignment ? L"MALIGNMENT" : L"DIONICA";
    case EntityPolygon:
        return L"POLYGON_SHELL";
    default:
        return L"NODE";
    }
}

} // namespace Orvane::System
