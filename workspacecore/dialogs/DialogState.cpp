#include "workspacecore/dialogs/DialogState.h"

#include <algorithm>
#include <boost/make_shared.hpp>

#include "workspacecore/foundation/XmlField.h"

namespace Orvane::Workspace {

void CDialogState::AddStateAttribute(AttributePtr attribute) {
    m_stateAttributeVector.push_back(attribute);
    m_stateAttributeMapById.emplace(attribute->GetId(), attribute);
}

void CDialogState::RemoveStateAttribute(const AttributePtr& attribute) {
    // A copy: the argument may be the very element that is erased.
    const CString id = attribute->GetId();
    const auto hit =
        std::find(m_stateAttributeVector.begin(), m_stateAttributeVector.end(), attribute);
    if (hit != m_stateAttributeVector.end()) {
        m_stateAttributeVector.erase(hit);
    }
    m_stateAttributeMapById.erase(id);
}

CDialogState::AttributePtr CDialogState::GetStateAttributeById(const wchar_t* id) const {
    const auto hit = m_stateAttributeMapById.find(std::wstring_view(id ? id : L""));
    return hit == m_stateAttributeMapById.end() ? AttributePtr() : hit->second;
}

CString CDialogState::GetXML() const {
    CString xml(L"<dialogState ");
    xml.AppendFormat(L"id=\"%s\" top=\"%d\" left=\"%d\" width=\"%d\" height=\"%d\" "
                     L"resizable=\"%d\" docked=\"%d\" side=\"%d\" ",
                     EncodeXmlField(m_strId), m_nTop, m_nLeft, m_nWidth, m_nHeight, m_nResizable,
                     m_nDocked, m_nSide);
    xml += L">";
    for (const AttributePtr& attribute : m_stateAttributeVector) {
        xml += attribute->GetXML();
    }
    return xml += L"</dialogState>";
}

void CDialogState::MakeDeepCopy(CDialogState& target) const {
    const AttributeVector source = m_stateAttributeVector;
    target = *this;
    target.m_stateAttributeVector.clear();
    target.m_stateAttributeMapById.clear();
    for (const AttributePtr& attribute : source) {
        target.AddStateAttribute(boost::make_shared<CStateAttribute>(*attribute));
    }
}

} // namespace Orvane::Workspace
