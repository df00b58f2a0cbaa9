// The host's editor: notifies reactors of saves.
#pragma once

#include <vector>

#include "platform/arx/RxObject.h"

class AcDbDatabase;

/// Notified of saves on the main thread, in the order of registration. Not owned.
class PLATFORM_API AcEditorReactor : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    /// Called before anything is written; changes made to the database now are part of the save.
    virtual void beginSave(AcDbDatabase* /*pDb*/, const wchar_t* /*fileName*/) {}
    /// Called after the file was written completely.
    virtual void saveComplete(AcDbDatabase* /*pDb*/, const wchar_t* /*fileName*/) {}
};

/// Registered in the system registry as "AcEditor".
class PLATFORM_API AcEditor final : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }

    void addReactor(AcEditorReactor* pReactor);
    void removeReactor(AcEditorReactor* pReactor);
    void fireBeginSave(AcDbDatabase* pDb, const wchar_t* fileName);
    void fireSaveComplete(AcDbDatabase* pDb, const wchar_t* fileName);

private:
    template <class Call>
    void Tell(Call call);
    std::vector<AcEditorReactor*> m_reactors;
};

/// Creates and registers the editor at the first call, which the host makes before it loads
/// modules. Never null.
PLATFORM_API AcEditor* acedEditor();

/// Ends the process: an internal invariant is violated beyond repair.
[[noreturn]] PLATFORM_API void acrx_abort(const wchar_t* reason);
