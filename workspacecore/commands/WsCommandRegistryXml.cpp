// XML form of the command registry.
#include <cstdint>

#include "workspacecore/commands/WsCommandRegistry.h"
#include "workspacecore/foundation/XmlRecord.h"

namespace Orvane::Workspace {

namespace {

/// Parses one command. Executor, icon and the set-data flag are written but have no meaning when
/// read, so they keep their defaults.
boost::shared_ptr<CWsCommand> ReadCommand(const XmlDocument& document) {
    boost::shared_ptr<CWsCommand> command(new CWsCommand);
    command->SetId(ReadXmlText(document, L"id"));
    command->SetName(ReadXmlText(document, L"name"));
    command->SetDescription(ReadXmlText(document, L"description"));
    command->SetTreeCmdBehavior(
        static_cast<enmTreeCommandBehavior>(ReadXmlInt(document, L"repoCmdBehavior")));
    command->SetCmdGroup(static_cast<enmCommandGroup>(ReadXmlInt(document, L"cmdGroup")));
    command->SetRepositoryTag(ReadXmlText(document, L"repositoryTag"));
    command->SetWsItemTypes(static_cast<std::uint32_t>(ReadXmlInt(document, L"wsItemTypes")));
    return command;
}

} // namespace

CString CWsCommandRegistry::GetXML() const {
    CString xml(L"<wsCommandRegistry >");
    for (const CommandPtr& command : m_wsCommandVector) {
        xml += command->GetXML();
    }
    return xml += L"</wsCommandRegistry>";
}

int CWsCommandRegistry::ParseXML(const wchar_t* xml) {
    Clear();
    XmlDocument document;
    // Reads as much of an ill-formed text as has been indexed.
    document.SetDoc(xml);
    if (!document.FindElem(L"wsCommandRegistry")) {
        return 0;
    }
    document.IntoElem();
    while (document.FindElem(L"wsCommand")) {
        AddWsCommand(ReadCommand(document));
    }
    return 1;
}

int CWsCommandRegistry::Load(const wchar_t* path) {
    return LoadXmlRecord(*this, path);
}

int CWsCommandRegistry::Save(const wchar_t* path) const {
    return SaveXmlRecord(*this, path);
}

int CWsCommandRegistry::LoadFromDictionary() {
    SayNotImplemented();
    return ParseXML(L"");
}

int CWsCommandRegistry::SaveToDictionary() const {
    SayNotImplemented();
    return 0;
}

} // namespace Orvane::Workspace
