// The interface between the workspace and a plug-in module.
//
// A plug-in is a shared library that exports these C functions:
//
//     extern "C" IPluginInfo* ORVPluginInfoProvider();
//     extern "C" void         ORVPluginInfoRelease();     (optional; not called today)
//
// The provider is called before every hook, so it must be cheap and return the same object each
// time; if it returns null, the library is not a plug-in. The object is owned by the plug-in.
#pragma once

#include "platform/win/String.h"
#include "platform/win/Types.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::Selection {
enum class SelectionType : int;
}

/// Implemented by the plug-in. The order of the virtual functions is part of the interface.
///
/// On loading the workspace calls PluginHook6, 1, 2, 3, 4, 5, 7, RegisterInfoTooltips,
/// RegisterWsPanelDialog and RegisterCatalogExtenders, in this order. During all of them
/// CWsManager::Instance returns the manager with its registries, including the registrations of
/// earlier modules; tree templates, log view, main panel and repositories do not exist yet.
///
/// A file added to a running workspace gets PluginHook7, 6, 1, 3, 4, then the three Register
/// functions as above. Hooks 2 and 5 are called at the start only.
class IPluginInfo {
public:
    virtual ~IPluginInfo() = default;
    virtual void PluginHook1() = 0;
    virtual void PluginHook2() = 0;
    virtual void PluginHook3() = 0;
    virtual void PluginHook4() = 0;
    virtual void PluginHook5() = 0;
    virtual void PluginHook6() = 0;
    virtual void PluginHook7() = 0;
    virtual void RegisterInfoTooltips() {}
    virtual void RegisterCatalogExtenders() {}
    virtual void RegisterWsPanelDialog() {}
    // Information for other modules.
    virtual CString GetTopologyName(Orvane::enmTopologyType) { return {}; }
    virtual CString GetSystemFunctionName(Orvane::enmTopologyType, int) { return {}; }
    virtual CString GetEntityTypeName(Orvane::enmTopologyType, int, Orvane::enmEntityType) {
        return {};
    }
    virtual HICON GetEntityTypeIcon(Orvane::enmTopologyType, int) { return nullptr; }
    virtual CString GetSelectionTypeName(Orvane::enmTopologyType, int,
                                         Orvane::Selection::SelectionType) {
        return {};
    }
    virtual CString GetSelectionToolTip(Orvane::enmTopologyType, int,
                                        Orvane::Selection::SelectionType) {
        return {};
    }
};

/// Type of the exported provider function.
using PluginInfoProvider = IPluginInfo* (*)();
