// The application object of a module: its tables of commands and classes, and the handlers for
// loading and unloading.
#pragma once

#include <span>

#include "platform/arx/EdCommandStack.h"

/// Messages that the host sends to a module's acrxEntryPoint, and the replies.
namespace AcRx {
enum AppMsgCode : int {
    kNullMsg = 0,
    kInitAppMsg = 1,
    kUnloadAppMsg = 2,
    kLastMsg = 15, ///< higher numbers are not dispatched
};
enum AppRetCode : int {
    kRetNothing = 0,
    kRetOK = 1,
    kRetError = 3,
};
} // namespace AcRx

/// Version of this interface; modules that report another one are not loaded.
inline constexpr int kRxApiVersion = 20;

/// One row of a module's command table.
struct AcRxCommandEntry {
    const wchar_t* group;
    const wchar_t* globalName;
    const wchar_t* localName;
    int flags;
    AcRxFunctionPtr function;
};

/// One row of a module's class table.
struct AcRxClassEntry {
    void (*rxInit)();
    AcRxClass* (*desc)();
};

/// Base of modules that define runtime classes.
class PLATFORM_API AcRxDbxApp {
public:
    virtual ~AcRxDbxApp() = default;
    virtual AcRx::AppRetCode On_kInitAppMsg(void* pPacket);
    virtual AcRx::AppRetCode On_kUnloadAppMsg(void* pPacket);
    /// All other messages; ignored by default.
    virtual AcRx::AppRetCode OnOtherMsg(AcRx::AppMsgCode, void*) { return AcRx::kRetOK; }

    /// Dispatches a message to its handler; returns 0 for an unknown message.
    int Dispatch(int message, void* pPacket);

protected:
    virtual void RegisterServerComponents() {}
    virtual std::span<const AcRxClassEntry> ClassTable() const { return {}; }
};

/// Base of modules that also add commands.
class PLATFORM_API AcRxArxApp : public AcRxDbxApp {
public:
    AcRx::AppRetCode On_kInitAppMsg(void* pPacket) override;
    AcRx::AppRetCode On_kUnloadAppMsg(void* pPacket) override;

protected:
    virtual std::span<const AcRxCommandEntry> CommandTable() const { return {}; }
};
