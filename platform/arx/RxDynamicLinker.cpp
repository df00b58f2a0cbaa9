#include "platform/arx/RxDynamicLinker.h"

#include <algorithm>

#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "platform/win/Library.h"
#include "platform/win/PlatformTexts.h"

namespace {

using EntryPoint = int (*)(int, void*);
using ApiVersion = int (*)();

bool SpeaksOurProtocol(HINSTANCE library, const wchar_t* path) {
    const auto version = reinterpret_cast<ApiVersion>(GetProcAddress(library, "acrxGetApiVersion"));
    CString reason;
    if (!GetProcAddress(library, "acrxEntryPoint") || !version) {
        reason = MessageText(PlatformMsg::NoEntryPoint, path);
    } else if (version() != kRxApiVersion) {
        reason = MessageText(PlatformMsg::OtherInterface, path, version(), kRxApiVersion);
    }
    SetLastErrorText(reason);
    return reason.IsEmpty();
}

} // namespace

int AcRxDynamicLinker::Send(const Module& module, AcRx::AppMsgCode message) {
    const auto entry =
        reinterpret_cast<EntryPoint>(GetProcAddress(module.library, "acrxEntryPoint"));
    return entry(message, const_cast<Module*>(&module));
}

const AcRxDynamicLinker::Module* AcRxDynamicLinker::Find(const wchar_t* path) const {
    const std::string native = NativePath(path);
    const auto hit = std::find_if(m_modules.begin(), m_modules.end(), [&](const auto& module) {
        return NativePath(module->path) == native;
    });
    return hit == m_modules.end() ? nullptr : hit->get();
}

AcRxDynamicLinker::Module* AcRxDynamicLinker::Find(void* pPacket) {
    const auto hit = std::find_if(m_modules.begin(), m_modules.end(),
                                  [&](const auto& module) { return module.get() == pPacket; });
    return hit == m_modules.end() ? nullptr : hit->get();
}

bool AcRxDynamicLinker::loadModule(const wchar_t* path) {
    if (Find(path)) {
        return true;
    }
    HINSTANCE library = LoadLibrary(path);
    if (!library) {
        return false;
    }
    if (!SpeaksOurProtocol(library, path)) {
        FreeLibrary(library);
        return false;
    }
    // Added before the call: the module unlocks and marks itself during its initialisation.
    m_modules.push_back(std::make_unique<Module>(Module{path, library}));
    Module* const pModule = m_modules.back().get();
    if (Send(*pModule, AcRx::kInitAppMsg) == AcRx::kRetError) {
        std::erase_if(m_modules, [&](const auto& module) { return module.get() == pModule; });
        FreeLibrary(library);
        SetLastErrorText(MessageText(PlatformMsg::RefusedToStart, path));
        return false;
    }
    return true;
}

bool AcRxDynamicLinker::unloadModule(const wchar_t* path) {
    const Module* pModule = Find(path);
    if (!pModule || pModule->locked) {
        return false;
    }
    Send(*pModule, AcRx::kUnloadAppMsg);
    HINSTANCE library = pModule->library;
    std::erase_if(m_modules, [&](const auto& module) { return module.get() == pModule; });
    return FreeLibrary(library);
}

void AcRxDynamicLinker::unlockApplication(void* pPacket) {
    if (Module* pModule = Find(pPacket)) {
        pModule->locked = false;
    }
}

void AcRxDynamicLinker::registerAppMDIAware(void* pPacket) {
    if (Module* pModule = Find(pPacket)) {
        pModule->mdiAware = true;
    }
}

bool AcRxDynamicLinker::isAppMDIAware(const wchar_t* path) const {
    const Module* pModule = Find(path);
    return pModule && pModule->mdiAware;
}

AcRxDynamicLinker* acrxDynamicLinker() {
    static auto* const linker = new AcRxDynamicLinker;
    return linker;
}
