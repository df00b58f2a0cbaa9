#include "workspacecore/plugins/WsModule.h"

#include <cstdint>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/foundation/XmlField.h"

namespace Orvane::Workspace {

void CWsModule::SetMsgName(int msgName) {
    m_nMsgName = msgName;
    m_strName = CModuleConfiguration::Instance()->GetMsg(msgName);
}

CString CWsModule::GetXML() const {
    // Run-time fields are written for debugging only; no reader uses them.
    const auto low32 = [](auto pointer) {
        return static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(pointer));
    };
    CString xml(L"<module ");
    xml.AppendFormat(L"msgName=\"%d\" on=\"%d\" fileName=\"%s\" loaded=\"%d\" "
                     L"moduleDLLInstance=\"%d\" pluginInfo=\"%d\" releaseModule=\"%d\" ",
                     m_nMsgName, m_bOn, EncodeXmlField(m_strFileName), m_bLoaded,
                     low32(m_hModuleDLLInstance), low32(m_pPluginInfo), low32(m_pReleaseModule));
    return xml += L"></module>";
}

} // namespace Orvane::Workspace
