#include "workspacecore/dialogs/DialogState.h"

#include <algorithm>
#include <boost/make_shared.hpp>

#include "workspacecore/foundation/XmlField.h"

namespace Orvane::Workspace {

using namespace std::string_view_literals;

void CDialogState::AddStateAttribute(AttributePtr attribute) {
    m_stateAttributeVector.push_back(attribute);
    CString id = attribute->GetId();
    m_stateAttributeMapById.emplace(std::move(id), std::move(attribute));
}

void CDialogState::RemoveStateAttribute(const AttributePtr& attribute) {
    // Copy: the argument may be the element being erased.
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
    std::string xml;
    AppendXML(xml);
    return CString(std::wstring(xml.begin(), xml.end()));
}

void CDialogState::AppendXML(std::string& xml) const {
    xml += "<dialogState id=\""sv;
    AppendXmlField(xml, m_strId);
    const std::pair<std::string_view, int> numbers[] = {{"\" top=\""sv, m_nTop},
                                                        {"\" left=\""sv, m_nLeft},
                                                        {"\" width=\""sv, m_nWidth},
                                                        {"\" height=\""sv, m_nHeight},
                                                        {"\" resizable=\""sv, m_nResizable},
                                                        {"\" docked=\""sv, m_nDocked},
                                                        {"\" side=\""sv, m_nSide}};
    for (const auto& [opening, number] : numbers) {
        xml += opening;
        AppendXmlInt(xml, number);
    }
    xml += "\" >"sv;
    for (const AttributePtr& attribute : m_stateAttributeVector) {
        attribute->AppendXML(xml);
    }
    xml += "</dialogState>"sv;
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
