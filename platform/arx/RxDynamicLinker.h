// Loads host modules by their entry point protocol.
#pragma once

#include <vector>

#include "platform/arx/RxArxApp.h"
#include "platform/win/Types.h"

/// The modules loaded by the host. Every module exports
///     int acrxEntryPoint(int message, void* packet)   and
///     int acrxGetApiVersion().
class PLATFORM_API AcRxDynamicLinker {
public:
    /// Loads a module and sends it kInitAppMsg. Returns false on failure, with LastErrorText set; a
    /// module that answers with kRetError is unloaded again. Succeeds if the module is already
    /// loaded.
    bool loadModule(const wchar_t* path);
    /// Sends kUnloadAppMsg and unloads. Returns false if the module is locked; it then stays
    /// loaded.
    bool unloadModule(const wchar_t* path);
    bool isModuleLoaded(const wchar_t* path) const { return Find(path) != nullptr; }

    /// Modules are locked until they unlock themselves, identified by the packet of their messages.
    void unlockApplication(void* pPacket);
    /// Marks a module as able to handle several documents.
    void registerAppMDIAware(void* pPacket);
    bool isAppMDIAware(const wchar_t* path) const;

private:
    struct Module {
        CString path;
        HINSTANCE library;
        bool locked = true;
        bool mdiAware = false;
    };
    const Module* Find(const wchar_t* path) const;
    Module* Find(void* pPacket);
    static int Send(const Module& module, AcRx::AppMsgCode message);

    std::vector<std::unique_ptr<Module>> m_modules;
};

/// Never null.
PLATFORM_API AcRxDynamicLinker* acrxDynamicLinker();
