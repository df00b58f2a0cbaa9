#include "platform/arx/EdVariables.h"

#include "platform/arx/ApDocManager.h"
#include "platform/win/File.h"

namespace {

CString Flag(bool value) {
    return value ? L"1" : L"0";
}

struct Variable {
    const wchar_t* name;
    CString (*value)(const AcApDocument& document);
};

constexpr Variable kVariables[] = {
    {L"DWGNAME", [](const AcApDocument& document) { return acdbDrawingName(document.fileName()); }},
    {L"DWGPREFIX",
     [](const AcApDocument& document) {
         const CString& path = document.path();
         return path.Left(path.GetLength() - FileNameOf(path).GetLength());
     }},
    {L"DWGTITLED", [](const AcApDocument& document) { return Flag(document.hasFile()); }},
    {L"DBMOD", [](const AcApDocument& document) { return Flag(document.isModified()); }},
};

} // namespace

bool acedGetVar(const wchar_t* name, CString& value) {
    value.Empty();
    for (const Variable& variable : kVariables) {
        if (CString(name).CompareNoCase(variable.name) == 0) {
            if (const AcApDocument* const pDoc = acDocManagerPtr()->curDocument()) {
                value = variable.value(*pDoc);
            }
            return true;
        }
    }
    return false;
}

CString acdbDrawingName(const wchar_t* fileName) {
    CString name = FileNameOf(fileName);
    // A leading dot marks a hidden file, not an extension.
    const int dot = name.ReverseFind(L'.');
    return (dot > 0 ? name.Left(dot) : name) + L".dwg";
}
