// A kind of entity that systems of a topology hold.
#pragma once

#include "platform/win/String.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane {

class CTopologyEntityType {
public:
    CTopologyEntityType(enmEntityType type, CString name)
        : m_enmType(type), m_strName(std::move(name)) {}

    enmEntityType GetType() const { return m_enmType; }
    /// Display name.
    const CString& GetName() const { return m_strName; }

private:
    enmEntityType m_enmType;
    CString m_strName;
};

} // namespace Orvane
