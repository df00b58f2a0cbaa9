// The purpose of a line network: water supply, sewer, gas.
#pragma once

#include "platform/win/String.h"

namespace Orvane {

/// One function of a topology. The id is stored in drawings and part of the keys of commands and
/// trees; the name is for display.
class CTopologyFunction {
public:
    CTopologyFunction(int id, CString name) : m_nId(id), m_strName(std::move(name)) {}

    int GetId() const { return m_nId; }
    const CString& GetName() const { return m_strName; }

private:
    int m_nId;
    CString m_strName;
};

} // namespace Orvane
