#include "workspacecore/dialogs/StateAttribute.h"

#include "siblings/giscore/utility/Utility.h"
#include "workspacecore/foundation/XmlField.h"

namespace Orvane::Workspace {

using namespace std::string_view_literals;

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
    std::string xml;
    AppendXML(xml);
    return CString(std::wstring(xml.begin(), xml.end()));
}

void CStateAttribute::AppendXML(std::string& xml) const {
    xml += "<stateAttribute id=\""sv;
    AppendXmlField(xml, m_strId);
    xml += "\" type=\""sv;
    AppendXmlInt(xml, m_nType);
    xml += "\" value=\""sv;
    AppendXmlField(xml, m_strValue);
    xml += "\" ></stateAttribute>"sv;
}

} // namespace Orvane::Workspace
