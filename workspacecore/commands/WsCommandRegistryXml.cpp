// The command registry as a text, and as a file.
#include <cstdint>

#include "platform/arx/EdPrompt.h"
#include "workspacecore/commands/WsCommandRegistry.h"
#include "workspacecore/foundation/XmlDocument.h"
#include "workspacecore/foundation/XmlField.h"

namespace Orvane::Workspace {

namespace {

/// What a text says of a command. Executor, icon and the set-data mark mean nothing once
/// they were written, and stay as a fresh record has them.
boost::shared_ptr<CWsCommand> ReadCommand(const XmlDocument& document) {
    boost::shared_ptr<CWsCommand> command(new CWsCommand);
    const auto [id, name, description, behavior, group, tag, types] =
        document.GetRawAttribs<7>({L"id", L"name", L"description", L"repoCmdBehavior", L"cmdGroup",
                                   L"repositoryTag", L"wsItemTypes"});
    command->SetId(XmlFieldText(id));
    command->SetName(XmlFieldText(name));
    command->SetDescription(XmlFieldText(description));
    command->SetTreeCmdBehavior(static_cast<enmTreeCommandBehavior>(XmlFieldInt(behavior)));
    command->SetCmdGroup(static_cast<enmCommandGroup>(XmlFieldInt(group)));
    command->SetRepositoryTag(XmlFieldText(tag));
    command->SetWsItemTypes(static_cast<std::uint32_t>(XmlFieldInt(types)));
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
    // An ill-formed text is read as far as its index goes.
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
    XmlDocument document;
    return document.Load(path) ? ParseXML(document.GetDoc()) : 0;
}

int CWsCommandRegistry::Save(const wchar_t* path) const {
    XmlDocument document;
    return document.SetDoc(GetXML()) && document.Save(path) ? 1 : 0;
}

int CWsCommandRegistry::LoadFromDictionary() {
    AfxMessageBox(L"Not implemented");
    return ParseXML(L"");
}

int CWsCommandRegistry::SaveToDictionary() const {
    const CString xml = GetXML();
    static_cast<void>(xml);
    AfxMessageBox(L"Not implemented");
    return 0;
}

} // namespace Orvane::Workspace
