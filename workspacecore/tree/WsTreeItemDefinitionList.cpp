// The list of definitions and its XML form.
#include "workspacecore/tree/WsTreeItemDefinitionList.h"

#include <algorithm>

#include "workspacecore/foundation/XmlRecord.h"

namespace Orvane::Workspace {

namespace {

/// Families without entity folders, for files written before the attribute existed.
constexpr const wchar_t* kNotEntitySpecific[] = {L"QUERY", L"LONGITUDINAL"};

int ReadEntitySpecific(const XmlDocument& document, const CString& tag) {
    if (!document.GetAttrib(L"entitySpecific").IsEmpty()) {
        return ReadXmlInt(document, L"entitySpecific");
    }
    return std::none_of(std::begin(kNotEntitySpecific), std::end(kNotEntitySpecific),
                        [&](const wchar_t* family) { return tag == family; });
}

enmWSTreeItemType ReadItemType(const XmlDocument& document, const wchar_t* attribute) {
    return static_cast<enmWSTreeItemType>(
        static_cast<std::uint32_t>(ReadXmlInt(document, attribute)));
}

void ReadTopologies(XmlDocument& document, CWsTreeItemDefinition& definition) {
    document.IntoElem();
    while (document.FindElem(L"wsTopologyData")) {
        const auto type = static_cast<enmTopologyType>(ReadXmlInt(document, L"topologyType"));
        // Only into the vector: definitions read from a text are not used in templates.
        definition.GetWsTopologyDataVector()->push_back(CWsTopologyDataSet::Ptr(
            new CWsTopologyData(type, ReadXmlInt(document, L"topologyFunction"))));
    }
    document.OutOfElem();
}

boost::shared_ptr<CWsTreeItemDefinition> ReadDefinition(XmlDocument& document) {
    boost::shared_ptr<CWsTreeItemDefinition> definition(new CWsTreeItemDefinition);
    definition->SetId(ReadXmlText(document, L"id"));
    definition->SetName(ReadXmlText(document, L"name"));
    definition->SetDescription(ReadXmlText(document, L"description"));
    definition->SetWsItemType(ReadItemType(document, L"wsItemType"));
    definition->SetWsParentItemType(ReadItemType(document, L"wsParentItemType"));
    definition->SetRepositoryTag(ReadXmlText(document, L"repositoryTag"));
    definition->SetAcceptQueryDrop(ReadXmlInt(document, L"acceptQueryDrop"));
    definition->SetCmdIdDoubleClick(ReadXmlText(document, L"cmdIdDoubleClick"));
    definition->SetCmdIdQueryDrop(ReadXmlText(document, L"cmdIdQueryDrop"));
    definition->SetIsEntitySpecific(ReadEntitySpecific(document, definition->GetRepositoryTag()));
    ReadTopologies(document, *definition);
    return definition;
}

} // namespace

void CWsTreeItemDefinitionList::AddWsTreeItemDefinition(const DefinitionPtr& definition) {
    if (definition) {
        m_wsTreeItemDefinitionVector.push_back(definition);
        m_wsTreeItemDefinitionMapByType.emplace(definition->GetWsItemType(), definition);
    }
}

void CWsTreeItemDefinitionList::RemoveWsTreeItemDefinition(const DefinitionPtr& definition) {
    const auto hit = std::find(m_wsTreeItemDefinitionVector.begin(),
                               m_wsTreeItemDefinitionVector.end(), definition);
    if (hit != m_wsTreeItemDefinitionVector.end()) {
        m_wsTreeItemDefinitionVector.erase(hit);
    }
}

void CWsTreeItemDefinitionList::Clear() {
    m_wsTreeItemDefinitionVector.clear();
    m_systemTreeTemplateMap.clear();
}

CString CWsTreeItemDefinitionList::GetXML() const {
    CString xml(L"<wsTreeItemDefinitionList >");
    for (const DefinitionPtr& definition : m_wsTreeItemDefinitionVector) {
        xml += definition->GetXML();
    }
    return xml += L"</wsTreeItemDefinitionList>";
}

int CWsTreeItemDefinitionList::ParseXML(const wchar_t* xml) {
    Clear();
    XmlDocument document;
    // Reads as much of an ill-formed text as has been indexed.
    document.SetDoc(xml);
    if (!document.FindElem(L"wsTreeItemDefinitionList")) {
        return 0;
    }
    document.IntoElem();
    while (document.FindElem(L"wsTreeItemDefinition")) {
        m_wsTreeItemDefinitionVector.push_back(ReadDefinition(document));
    }
    return 1;
}

int CWsTreeItemDefinitionList::Load(const wchar_t* path) {
    return LoadXmlRecord(*this, path);
}

int CWsTreeItemDefinitionList::Save(const wchar_t* path) const {
    return SaveXmlRecord(*this, path);
}

int CWsTreeItemDefinitionList::LoadFromDictionary() {
    SayNotImplemented();
    return ParseXML(L"");
}

int CWsTreeItemDefinitionList::SaveToDictionary() const {
    SayNotImplemented();
    return 0;
}

void CWsTreeItemDefinitionList::MakeDeepCopy(CWsTreeItemDefinitionList& target) const {
    const DefinitionVector source = m_wsTreeItemDefinitionVector;
    target.m_wsTreeItemDefinitionVector.clear();
    for (const DefinitionPtr& definition : source) {
        target.m_wsTreeItemDefinitionVector.push_back(
            DefinitionPtr(new CWsTreeItemDefinition(*definition)));
    }
}

} // namespace Orvane::Workspace
