#include "host/DrawingCommands.h"

#include <algorithm>
#include <cwchar>
#include <filesystem>

#include "host/ImportCommand.h"
#include "host/Prompts.h"
#include "platform/arx/DbUndo.h"
#include "platform/arx/EdProgress.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

bool IsFolder(const CString& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(NativePath(path), ignored);
}

AcDbProgress WritingProgress(const CString& path) {
    return acedProgress(Text(Msg::Writing, FileNameOf(path)));
}

bool TellSaved(const AcDbStorageResult& result, const AcApDocument& document) {
    PrintWarnings(result.warnings);
    if (!result.ok()) {
        return Refuse(result.reason, Msg::NotSaved);
    }
    PrintText(Msg::Saved, document.path());
    return true;
}

/// Whether a file may be replaced; also if there is none, and if the manager will say no.
bool MayReplace(const CString& path) {
    if (!FileExists(path) || IsFolder(path) || acDocManagerPtr()->documentOf(path)) {
        return true;
    }
    return acedAskYes(Text(Msg::ReplaceFile, path));
}

bool SaveUnder(AcApDocument& document) {
    const std::optional<CString> answer = AskText(Msg::File);
    const CString path = answer ? acDocManagerPtr()->drawingPath(*answer) : CString();
    if (path.IsEmpty()) {
        return Refuse(Msg::NotSaved);
    }
    if (!MayReplace(path)) {
        return Refuse(Text(Msg::LeftUnchanged, path), Msg::NotSaved);
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
    constexpr std::size_t kYes = 0;
    constexpr std::size_t kNo = 1;
    constexpr std::size_t kCancel = 2;
    const auto choice = acedAskChoice({Text(Msg::SaveChanges, document.title()),
                                       {YesChoice(), NoChoice(), CancelChoice()},
                                       kCancel});
    return choice == kNo || (choice == kYes && SaveDrawing(document));
}

void TellCurrent() {
    if (const AcApDocument* const pDoc = acDocManagerPtr()->curDocument()) {
        PrintText(Msg::CurrentDrawing, pDoc->title());
    } else {
        PrintText(Msg::NoDrawing);
    }
}

bool Open() {
    const std::optional<CString> path = AskText(Msg::File);
    return path ? OpenDrawing(*path) : Refuse(Msg::NothingOpened);
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
        return Refuse(Msg::DrawingStaysOpen);
    }
    const CString title = pDoc->title();
    if (!acDocManagerPtr()->closeDocument(pDoc)) {
        return Refuse(Text(Msg::DrawingInUse, title), Msg::DrawingStaysOpen);
    }
    PrintText(Msg::DrawingClosed, title);
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
                   document->isModified() ? Text(Msg::IsModified) : CString());
    }
    return true;
}

/// By number in the list of drawings, by name, or by file. Prints a message and returns null if
/// there is no such drawing.
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
        PrintText(Msg::NoSuchDrawing, answer);
        return nullptr;
    }
    if (std::find_if(hit + 1, documents.end(), isCalled) != documents.end()) {
        PrintText(Msg::SeveralDrawings, answer);
        return nullptr;
    }
    return hit->get();
}

bool Switch() {
    if (!CurrentDrawing()) {
        return false;
    }
    const std::optional<CString> answer = AskText(Msg::WhichDrawing);
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
    Msg done;
    Msg nothing;
};
constexpr Step kUndo = {&AcDbUndo::undoName, &AcDbUndo::undo, Msg::Undone, Msg::NothingToUndo};
constexpr Step kRedo = {&AcDbUndo::redoName, &AcDbUndo::redo, Msg::Redone, Msg::NothingToRedo};

bool Take(const Step& step) {
    AcApDocument* const pDoc = CurrentDrawing();
    if (!pDoc) {
        return false;
    }
    AcDbUndo& undo = pDoc->database()->undo();
    const CString* const pName = (undo.*step.name)();
    if (!pName) {
        return Refuse(step.nothing);
    }
    const CString name = pName->IsEmpty() ? Text(Msg::AChange) : *pName;
    if (!(undo.*step.take)()) {
        return Refuse(Msg::CommandRuns);
    }
    PrintText(step.done, name);
    return true;
}

bool Undo() {
    return Take(kUndo);
}

bool Redo() {
    return Take(kRedo);
}

constexpr Msg kDrawings = Msg::OfDrawings;
constexpr Msg kHistory = Msg::OfHistory;
constexpr int kNoGroup = ACRX_CMD_NO_UNDO_GROUP;
constexpr int kOnDrawing = ACRX_CMD_NO_UNDO_GROUP | ACRX_CMD_NEEDS_DRAWING;

constexpr HostCommand kDrawingCommands[] = {
    {L"OPEN", RunHostCommand<Open>, Msg::OpenDoes, kNoGroup, kDrawings},
    {L"NEW", RunHostCommand<New>, Msg::NewDoes, kNoGroup, kDrawings},
    {L"SAVE", RunHostCommand<Save>, Msg::SaveDoes, kOnDrawing, kDrawings},
    {L"SAVEAS", RunHostCommand<SaveAs>, Msg::SaveAsDoes, kOnDrawing, kDrawings},
    {L"CLOSE", RunHostCommand<Close>, Msg::CloseDoes, kOnDrawing, kDrawings},
    {L"DRAWINGS", RunHostCommand<Drawings>, Msg::DrawingsDoes, kNoGroup, kDrawings},
    {L"SWITCH", RunHostCommand<Switch>, Msg::SwitchDoes, kOnDrawing, kDrawings},
    {L"UNDO", RunHostCommand<Undo>, Msg::UndoDoes, kOnDrawing, kHistory},
    {L"REDO", RunHostCommand<Redo>, Msg::RedoDoes, kOnDrawing, kHistory},
    {L"IMPORT", RunHostCommand<Import>, Msg::ImportDoes, ACRX_CMD_NEEDS_DRAWING, kDrawings},
};

} // namespace

std::span<const HostCommand> DrawingCommands() {
    return kDrawingCommands;
}

bool OpenDrawing(const wchar_t* path) {
    const CString file = acDocManagerPtr()->drawingPath(path);
    const bool wasOpen = acDocManagerPtr()->documentOf(file) != nullptr;
    AcApDocument* pDoc = nullptr;
    const AcDbStorageResult result = acDocManagerPtr()->openDocument(
        file, acedProgress(Text(Msg::Reading, FileNameOf(file))), pDoc);
    PrintWarnings(result.warnings);
    if (!result.ok()) {
        return Refuse(result.reason, Msg::NothingOpened);
    }
    if (wasOpen) {
        PrintText(Msg::AlreadyOpen, pDoc->title());
        TellCurrent();
    } else {
        PrintText(Msg::EntityCount, pDoc->title(),
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
            PrintText(Msg::HasUnsavedChanges, document->title());
        }
    }
}

} // namespace Tessaly
