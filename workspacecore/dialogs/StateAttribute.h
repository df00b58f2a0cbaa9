// A named value of a dialog that persists between runs.
#pragma once

#include "siblings/giscore/data/DataBox.h"
#include "workspacecore/Api.h"

namespace Orvane::Workspace {

/// A plain record: the value as a text, and its type.
class WORKSPACE_API CStateAttribute {
public:
    CStateAttribute() = default;
    CStateAttribute(const wchar_t* id, const Data::CDataBox& value);
    CStateAttribute(CString id, int type, CString value)
        : m_strId(std::move(id)), m_nType(type), m_strValue(std::move(value)) {}
    CStateAttribute(const CStateAttribute&) = default;
    CStateAttribute& operator=(const CStateAttribute&) = default;
    virtual ~CStateAttribute() = default;

    CString GetId() const { return m_strId; }
    void SetId(const wchar_t* id) { m_strId = id; }
    /// A Data::enmDataType, or any number read from a file.
    int GetType() const { return m_nType; }
    void SetType(int type) { m_nType = type; }
    CString GetValue() const { return m_strValue; }
    void SetValue(const wchar_t* value) { m_strValue = value; }
    /// The value converted to its type; an empty box for an unknown type.
    Data::CDataBox GetDataBox() const;

    CString GetXML() const;
    void MakeDeepCopy(CStateAttribute& target) const { target = *this; }

private:
    friend class CDialogState;

    void AppendXML(std::string& xml) const;

    CString m_strId;
    int m_nType = Data::DataTypeNone;
    CString m_strValue;
};

} // namespace Orvane::Workspace
