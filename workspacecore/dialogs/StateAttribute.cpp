#include "workspacecore/dialogs/StateAttribute.h"

#include "siblings/giscore/Utility.h"
#include "workspacecore/foundation/XmlField.h"

namespace Orvane::Workspace {

CStateAttribute::CStateAttribute(const wchar_t* id, const Data::CDataBox& value)
    : m_strId(id), m_nType(value.GetDataType()), m_strValue(value) {}

Data::CDataBox CStateAttribute::GetDataBox() const {
    const Data::CDataBox text(m_strValue);
    Data::CDataBox box;
    switch (m_nType) {
    case Data::DataTypeDouble:
        box.SetValue(static_cast<double>(text));
        break;
    case Data::DataTypeInt:
        box.SetValue(static_cast<int>(text));
        break;
    case Data::DataTypeText:
        box.SetValue(m_strValue);
        break;
    case Data::DataTypeLong:
        box.SetValue(static_cast<long>(text));
        break;
    case Data::DataTypeTextList: {
        CStringArray pieces;
        Utility::CUtility::SplitString(m_strValue, L";", pieces);
        box.SetValue(std::move(pieces));
        break;
    }
    default:
        break;
    }
    return box;
}

CString CStateAttribute::GetXML() const {
    CString xml(L"<stateAttribute ");
    xml.AppendFormat(L"id=\"%s\" type=\"%d\" value=\"%s\" ", EncodeXmlField(m_strId), m_nType,
                     EncodeXmlField(m_strValue));
    return xml += L"></stateAttribute>";
}

} // namespace Orvane::Workspace
