// GUIDs of entities: the drawing's GUID followed by the object number.
#include <cwchar>

#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Topology {

CNode CTopologyStorage::GetNodeByGuid(const wchar_t* guid) const {
    return GetNodeById(IdOfGuid(guid));
}

CSection CTopologyStorage::GetSectionByGuid(const wchar_t* guid) const {
    return GetSectionById(IdOfGuid(guid));
}

CString CTopologyStorage::GuidOf(AcDbObjectId id) const {
    const System::CGisSystems* const pSystems =
        System::CSystemManager::Instance()->GetSystems(m_pDatabase);
    return pSystems ? FormatText(L"%s-%08X", pSystems->GetDrawingGuid(), id.number()) : CString();
}

AcDbObjectId CTopologyStorage::IdOfGuid(const wchar_t* guid) const {
    constexpr int kNumberLength = 8;
    const CString text(guid);
    const CString number = text.Right(kNumberLength);
    wchar_t* end = nullptr;
    const unsigned long value = std::wcstoul(number, &end, 16);
    const AcDbObjectId id(static_cast<std::uint32_t>(value));
    return *end == L'\0' && GuidOf(id).CompareNoCase(text) == 0 ? id : AcDbObjectId();
}

} // namespace Orvane::Topology
