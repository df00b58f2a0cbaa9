// The contract between the workspace and a plug-in module.
//
// A plug-in is a shared library that exports, by these C names,
//
//     extern "C" IPluginInfo* ORVPluginInfoProvider();
//     extern "C" void         ORVPluginInfoRelease();     (optional; not called today)
//
// The provider is asked again before every call, so it must hand out the same living
// object each time, cheaply; a null one makes the library count as no plug-in. The object
// belongs to the plug-in.
#pragma once

#include "platform/win/String.h"
#include "platform/win/Types.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::Selection {
enum class SelectionType : int;
}

/// Derived by the plug-in. The order of the operations is the contract: both sides meet
/// on this table only.
///
/// During the load the workspace calls PluginHook6, 1, 2, 3, 4, 5, 7, RegisterInfoTooltips,
/// RegisterWsPanelDialog and RegisterCatalogExtenders, in this order. In all of them
/// CWsManager::Instance gives the manager with its registries, and what earlier modules
/// registered is there; tree templates, log view, main panel and repositories are not.
///
/// A file that is added to a running workspace is called otherwise: PluginHook7, 6, 1, 3, 4,
/// then the three Register operations as above. Hooks 2 and 5 are for the start alone.
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

/// Type of the exported provider.
using PluginInfoProvider = IPluginInfo* (*)();
