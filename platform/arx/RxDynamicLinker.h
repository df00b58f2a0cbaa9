// Loading of host modules by their entry point protocol.
#pragma once

#include <vector>

#include "platform/arx/RxArxApp.h"
#include "platform/win/Types.h"

/// Modules that the host has loaded. Every module exports
///     int acrxEntryPoint(int message, void* packet)   and
///     int acrxGetApiVersion().
class PLATFORM_API AcRxDynamicLinker {
public:
    /// Loads a module and sends it kInitAppMsg. False on failure, with LastErrorText set;
    /// a module that answers with kRetError is unloaded again. A file that is loaded
    /// already counts as loaded.
    bool loadModule(const wchar_t* path);
    /// Sends kUnloadAppMsg and unloads. A locked module stays; that gives false.
    bool unloadModule(const wchar_t* path);
    bool isModuleLoaded(const wchar_t* path) const { return Find(path) != nullptr; }

    /// A module is locked until it unlocks itself; the packet of its messages names it.
    void unlockApplication(void* pPacket);
    /// Marks a module as fit for several documents.
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
