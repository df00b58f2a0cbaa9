#include "host/DrawingCommands.h"

#include <algorithm>
#include <cwchar>
#include <filesystem>

#include "host/Dialog.h"
#include "host/ImportCommand.h"
#include "platform/arx/DbUndo.h"
#include "platform/arx/EdProgress.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

constexpr const wchar_t* kAskFile = L"File: ";
constexpr const wchar_t* kNotSaved = L"The drawing was not saved.";

bool IsFolder(const CString& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(NativePath(path), ignored);
}

AcDbProgress WritingProgress(const CString& path) {
    return acedProgress(L"Writing " + FileNameOf(path));
}

bool TellSaved(const AcDbStorageResult& result, const AcApDocument& document) {
    PrintWarnings(result.warnings);
    if (!result.ok()) {
        return Refuse(result.reason, kNotSaved);
    }
    acutPrintf(L"Saved: %s\n", document.path());
    return true;
}

/// Whether a file may be replaced; also if there is none, and if the manager will say no.
bool MayReplace(const CString& path) {
    if (!FileExists(path) || IsFolder(path) || acDocManagerPtr()->documentOf(path)) {
        return true;
    }
    CString prompt;
    prompt.Format(L"%s exists. Replace it? [Yes/No] <No>: ", path);
    return AskChoice(prompt, Choice::No) == Choice::Yes;
}

bool SaveUnder(AcApDocument& document) {
    const std::optional<CString> answer = AskText(kAskFile);
    const CString path = answer ? acDocManagerPtr()->drawingPath(*answer) : CString();
    if (path.IsEmpty()) {
        return Refuse(L"", kNotSaved);
    }
    if (!MayReplace(path)) {
        return Refuse(path + L" stays as it is.", kNotSaved);
    }
    return TellSaved(acDocManagerPtr()->saveDocumentAs(&document, path, WritingProgress(path)),
                     document);
}

bool SaveDrawing(AcApDocument& document) {
    if (!document.hasFile()) {
        return SaveUnder(document);
    }
    return TellSaved(acDocManagerPtr()->saveDocument(&document, WritingProgress(document.path())),
                     document);
}

/// Whether the drawing may go: saved, or without its changes.
bool MayGo(AcApDocument& document) {
    if (!document.isModified()) {
        return true;
    }
    CString prompt;
    prompt.Format(L"Save the changes to %s? [Yes/No/Cancel] <Cancel>: ", document.title());
    switch (AskChoice(prompt, Choice::Cancel)) {
    case Choice::Yes:
        return SaveDrawing(document);
    case Choice::No:
        return true;
    default:
        return false;
    }
}

void TellCurrent() {
    if (const AcApDocument* const pDoc = acDocManagerPtr()->curDocument()) {
        acutPrintf(L"The current drawing is %s.\n", pDoc->title());
    } else {
        acutPrintf(L"No drawing is open.\n");
    }
}

bool Open() {
    const std::optional<CString> path = AskText(kAskFile);
    return path ? OpenDrawing(*path) : Refuse(L"", L"Nothing was opened.");
}

bool New() {
    acDocManagerPtr()->newDocument();
    TellCurrent();
    return true;
}

bool Save() {
    AcApDocument* const pDoc = CurrentDrawing();
    return pDoc && SaveDrawing(*pDoc);
}

bool SaveAs() {
    AcApDocument* const pDoc = CurrentDrawing();
    return pDoc && SaveUnder(*pDoc);
}

bool Close() {
    AcApDocument* const pDoc = CurrentDrawing();
    if (!pDoc) {
        return false;
    }
    if (!MayGo(*pDoc)) {
        return Refuse(L"", L"The drawing stays open.");
    }
    const CString title = pDoc->title();
    if (!acDocManagerPtr()->closeDocument(pDoc)) {
        return Refuse(title + L": a command works on it.", L"The drawing stays open.");
    }
    acutPrintf(L"%s is closed.\n", title);
    TellCurrent();
    return true;
}

bool Drawings() {
    if (acDocManagerPtr()->documentCount() == 0) {
        TellCurrent();
    }
    int number = 0;
    for (const auto& document : acDocManagerPtr()->documents()) {
        const bool isCurrent = document.get() == acDocManagerPtr()->curDocument();
        acutPrintf(L"%s %2d  %s%s\n", isCurrent ? L"*" : L" ", ++number, document->fileName(),
                   document->isModified() ? L", modified" : L"");
    }
    return true;
}

/// By number in the list of drawings, by name, or by file. Null, and said so, if it is none.
AcApDocument* FindDrawing(const CString& answer) {
    const auto& documents = acDocManagerPtr()->documents();
    wchar_t* end = nullptr;
    const long number = std::wcstol(answer, &end, 10);
    if (*end == L'\0' && number >= 1 && static_cast<std::size_t>(number) <= documents.size()) {
        return documents[static_cast<std::size_t>(number - 1)].get();
    }
    if (AcApDocument* const pOfFile = acDocManagerPtr()->documentOf(answer)) {
        return pOfFile;
    }
    const auto isCalled = [&answer](const auto& document) {
        return document->title().CompareNoCase(answer) == 0;
    };
    const auto hit = std::find_if(documents.begin(), documents.end(), isCalled);
    if (hit == documents.end()) {
        acutPrintf(L"There is no drawing \"%s\". DRAWINGS lists them.\n", answer);
        return nullptr;
    }
    if (std::find_if(hit + 1, documents.end(), isCalled) != documents.end()) {
        acutPrintf(L"Several drawings are called %s. Give the number.\n", answer);
        return nullptr;
    }
    return hit->get();
}

bool Switch() {
    if (!CurrentDrawing()) {
        return false;
    }
    const std::optional<CString> answer = AskText(L"Drawing (number or name): ");
    AcApDocument* const pDoc = answer ? FindDrawing(*answer) : nullptr;
    if (pDoc && pDoc != acDocManagerPtr()->curDocument()) {
        acDocManagerPtr()->setCurDocument(pDoc);
    }
    TellCurrent();
    return pDoc != nullptr;
}

/// A step of the history, in either direction.
struct Step {
    const CString* (AcDbUndo::*name)() const;
    bool (AcDbUndo::*take)();
    const wchar_t* done;
    const wchar_t* nothing;
};
constexpr Step kUndo = {&AcDbUndo::undoName, &AcDbUndo::undo, L"Undone: %s\n",
                        L"There is nothing to undo."};
constexpr Step kRedo = {&AcDbUndo::redoName, &AcDbUndo::redo, L"Redone: %s\n",
                        L"There is nothing to redo."};

bool Take(const Step& step) {
    AcApDocument* const pDoc = CurrentDrawing();
    if (!pDoc) {
        return false;
    }
    AcDbUndo& undo = pDoc->database()->undo();
    const CString* const pName = (undo.*step.name)();
    if (!pName) {
        return Refuse(L"", step.nothing);
    }
    const CString name = pName->IsEmpty() ? CString(L"a change") : *pName;
    if (!(undo.*step.take)()) {
        return Refuse(L"", L"This has to wait until the running command has ended.");
    }
    acutPrintf(step.done, name);
    return true;
}

bool Undo() {
    return Take(kUndo);
}

bool Redo() {
    return Take(kRedo);
}

constexpr const wchar_t* kDrawings = L"Drawings";
constexpr const wchar_t* kHistory = L"History";
constexpr int kNoGroup = ACRX_CMD_NO_UNDO_GROUP;
constexpr int kOnDrawing = ACRX_CMD_NO_UNDO_GROUP | ACRX_CMD_NEEDS_DRAWING;

constexpr HostCommand kDrawingCommands[] = {
    {L"OPEN", RunHostCommand<Open>, L"opens a drawing", kNoGroup, kDrawings},
    {L"NEW", RunHostCommand<New>, L"begins a new drawing", kNoGroup, kDrawings},
    {L"SAVE", RunHostCommand<Save>, L"writes the drawing into its file", kOnDrawing, kDrawings},
    {L"SAVEAS", RunHostCommand<SaveAs>, L"writes the drawing into another file", kOnDrawing,
     kDrawings},
    {L"CLOSE", RunHostCommand<Close>, L"closes the drawing", kOnDrawing, kDrawings},
    {L"DRAWINGS", RunHostCommand<Drawings>, L"lists the open drawings", kNoGroup, kDrawings},
    {L"SWITCH", RunHostCommand<Switch>, L"makes another drawing the current one", kOnDrawing,
     kDrawings},
    {L"UNDO", RunHostCommand<Undo>, L"takes back what the last command changed", kOnDrawing,
     kHistory},
    {L"REDO", RunHostCommand<Redo>, L"brings back what UNDO took", kOnDrawing, kHistory},
    {L"IMPORT", RunHostCommand<Import>, L"brings a file of another program into the drawing",
     ACRX_CMD_NEEDS_DRAWING, kDrawings},
};

} // namespace

std::span<const HostCommand> DrawingCommands() {
    return kDrawingCommands;
}

bool OpenDrawing(const wchar_t* path) {
    const CString file = acDocManagerPtr()->drawingPath(path);
    const bool wasOpen = acDocManagerPtr()->documentOf(file) != nullptr;
    AcApDocument* pDoc = nullptr;
    const AcDbStorageResult result =
        acDocManagerPtr()->openDocument(file, acedProgress(L"Reading " + FileNameOf(file)), pDoc);
    PrintWarnings(result.warnings);
    if (!result.ok()) {
        return Refuse(result.reason, L"Nothing was opened.");
    }
    if (wasOpen) {
        acutPrintf(L"%s is open already.\n", pDoc->title());
        TellCurrent();
    } else {
        acutPrintf(L"%s: %d entities.\n", pDoc->title(),
                   static_cast<int>(pDoc->database()->entityCount()));
    }
    return true;
}

bool AskAboutUnsavedDrawings() {
    // By place: saving tells modules, which may open and close drawings.
    for (int i = 0; i < acDocManagerPtr()->documentCount(); ++i) {
        if (!MayGo(*acDocManagerPtr()->documents()[static_cast<std::size_t>(i)])) {
            return false;
        }
    }
    return true;
}

void NameUnsavedDrawings() {
    for (const auto& document : acDocManagerPtr()->documents()) {
        if (document->isModified()) {
            acutPrintf(L"%s has changes that were not saved.\n", document->title());
        }
    }
}

} // namespace Tessaly
