#include "host/DrawingCommands.h"

#include <algorithm>
#include <cwchar>
#include <filesystem>

#include "host/ImportCommand.h"
#include "host/Prompts.h"
#include "host/SaveConflict.h"
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

/// Whether a file may be written, asking if it exists. Does not ask where saving fails anyway.
bool MayReplace(const AcApDocument& document, const CString& path) {
    if (!FileExists(path) || IsFolder(path)) {
        return true;
    }
    if (const AcApDocument* const pOwner = acDocManagerPtr()->documentOf(path)) {
        return pOwner != &document || MayReplaceOwnFile(document);
    }
    TellOthersWith(path);
    return acedAskYes(Text(Msg::ReplaceFile, path));
}

bool SaveUnder(AcApDocument& document) {
    const std::optional<CString> answer = AskText(Msg::File);
    const CString path = answer ? acDocManagerPtr()->drawingPath(*answer) : CString();
    if (path.IsEmpty()) {
        return Refuse(Msg::NotSaved);
    }
    if (!MayReplace(document, path)) {
        return Refuse(Text(Msg::LeftUnchanged, path), Msg::NotSaved);
    }
    return TellSaved(acDocManagerPtr()->saveDocumentAs(&document, path, WritingProgress(path)),
                     document);
}

bool SaveDrawing(AcApDocument& document) {
    if (!document.hasFile()) {
        return SaveUnder(document);
    }
    ConflictChoice choice = ConflictChoice::SaveAgain;
    if (document.isReadOnly()) {
        choice = SettleReadOnly(document);
    }
    while (choice == ConflictChoice::SaveAgain) {
        const AcDbStorageResult result =
            acDocManagerPtr()->saveDocument(&document, WritingProgress(document.path()));
        if (!result.conflict) {
            return TellSaved(result, document);
        }
        acutPrintf(L"%s\n", result.reason);
        choice = SettleConflict(document, result.conflict);
    }
    return choice == ConflictChoice::SaveAs ? SaveUnder(document) : Refuse(Msg::NotSaved);
}

/// Whether the drawing may be closed: it has been saved, or the user discards its changes.
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
    return path ? OpenDrawing(*path, true) : Refuse(Msg::NothingOpened);
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
                   (document->isModified() ? Text(Msg::IsModified) : CString()) +
                       (document->isReadOnly() ? Text(Msg::IsReadOnly) : CString()));
    }
    return true;
}

/// Finds a drawing by its number in the list, its name or its file. Prints a message and returns
/// null if there is no such drawing.
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

/// Undo or redo.
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

bool OpenDrawing(const wchar_t* path, bool mayAsk) {
    const CString file = acDocManagerPtr()->drawingPath(path);
    const bool wasOpen = acDocManagerPtr()->documentOf(file) != nullptr;
    const bool isShared = !wasOpen && TellOthersWith(file);
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
        if (pDoc->isReadOnly()) {
            PrintText(Msg::OpenReadOnly, pDoc->title(), pDoc->readOnlyReason());
        } else if (isShared) {
            OfferReadOnly(*pDoc, mayAsk);
        }
    }
    return true;
}

bool AskAboutUnsavedDrawings() {
    // By index: saving raises events, and their handlers may open and close drawings.
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
