// The host's editor: who is told about saves.
#pragma once

#include <vector>

#include "platform/arx/RxObject.h"

class AcDbDatabase;

/// Is told about saves, on the main thread, in the order of registration. Not owned.
class PLATFORM_API AcEditorReactor : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    /// Before anything is written; what is put into the database now is part of the save.
    virtual void beginSave(AcDbDatabase* /*pDb*/, const wchar_t* /*fileName*/) {}
    /// After the file was written whole.
    virtual void saveComplete(AcDbDatabase* /*pDb*/, const wchar_t* /*fileName*/) {}
};

/// Stands in the system registry as "AcEditor".
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

/// Makes the editor known; called by the host before it loads modules. Never null.
PLATFORM_API AcEditor* acedEditor();

/// Ends the process: the program's own structure is broken beyond repair.
[[noreturn]] PLATFORM_API void acrx_abort(const wchar_t* reason);
