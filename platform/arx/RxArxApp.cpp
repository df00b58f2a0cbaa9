#include "platform/arx/RxArxApp.h"

#include "platform/arx/RxDynamicLinker.h"

AcRx::AppRetCode AcRxDbxApp::On_kInitAppMsg(void* pPacket) {
    acrxDynamicLinker()->unlockApplication(pPacket);
    acrxDynamicLinker()->registerAppMDIAware(pPacket);
    RegisterServerComponents();
    for (const AcRxClassEntry& entry : ClassTable()) {
        entry.rxInit();
    }
    if (!ClassTable().empty()) {
        acrxBuildClassHierarchy();
    }
    return AcRx::kRetOK;
}

AcRx::AppRetCode AcRxDbxApp::On_kUnloadAppMsg(void*) {
    for (const AcRxClassEntry& entry : ClassTable()) {
        deleteAcRxClass(entry.desc());
    }
    return AcRx::kRetOK;
}

int AcRxDbxApp::Dispatch(int message, void* pPacket) {
    if (message < AcRx::kNullMsg || message > AcRx::kLastMsg) {
        return AcRx::kRetNothing;
    }
    switch (message) {
    case AcRx::kInitAppMsg:
        return On_kInitAppMsg(pPacket);
    case AcRx::kUnloadAppMsg:
        return On_kUnloadAppMsg(pPacket);
    default:
        return OnOtherMsg(static_cast<AcRx::AppMsgCode>(message), pPacket);
    }
}

AcRx::AppRetCode AcRxArxApp::On_kInitAppMsg(void* pPacket) {
    const AcRx::AppRetCode result = AcRxDbxApp::On_kInitAppMsg(pPacket);
    for (const AcRxCommandEntry& entry : CommandTable()) {
        acedRegCmds()->addCommand(entry.group, entry.globalName, entry.localName, entry.flags,
                                  entry.function);
    }
    return result;
}

AcRx::AppRetCode AcRxArxApp::On_kUnloadAppMsg(void* pPacket) {
    for (const AcRxCommandEntry& entry : CommandTable()) {
        acedRegCmds()->removeCmd(entry.group, entry.globalName);
    }
    return AcRxDbxApp::On_kUnloadAppMsg(pPacket);
}
