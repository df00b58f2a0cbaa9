#include "host/SaveConflict.h"

#include <algorithm>
#include <utility>

#include "host/Prompts.h"
#include "platform/arx/EdProgress.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

SharedOpening g_shared = SharedOpening::Open;

constexpr std::size_t kMostNamed = 20;

PromptChoice SaveAsChoice() {
    return {L"Saveas", Text(Msg::ChooseSaveAs)};
}

/// Asks for one of some ways out, of which the last one, to cancel, loses nothing. Returns it if
/// the user cancelled the prompt.
std::size_t AskWayOut(std::vector<PromptChoice> choices) {
    choices.push_back(CancelChoice());
    const std::size_t cancel = choices.size() - 1;
    return acedAskChoice({Text(Msg::WhatNow), std::move(choices), cancel}).value_or(cancel);
}

CString ListOf(const std::vector<CString>& names) {
    CString list;
    for (std::size_t i = 0; i < std::min(names.size(), kMostNamed); ++i) {
        list += (i == 0 ? L"" : L", ") + names[i];
    }
    return names.size() > kMostNamed ? list + L", ..." : list;
}

CString ListOf(const std::vector<AcDbObjectId>& ids) {
    CString list;
    for (std::size_t i = 0; i < std::min(ids.size(), kMostNamed); ++i) {
        list.AppendFormat(L"%s%u", i == 0 ? L"" : L", ", ids[i].number());
    }
    return ids.size() > kMostNamed ? list + L", ..." : list;
}

void TellSystems(Msg line, const std::vector<CString>& names) {
    if (!names.empty()) {
        acutPrintf(L"  %s\n", Text(line, ListOf(names)));
    }
}

void TellSide(Msg where, const AcDbSideChanges& changes) {
    PrintText(Msg::SideCounts, Text(where), static_cast<int>(changes.added.size()),
              static_cast<int>(changes.changed.size()), static_cast<int>(changes.removed.size()));
    TellSystems(Msg::SystemsAdded, changes.addedSystems);
    TellSystems(Msg::SystemsChanged, changes.changedSystems);
    TellSystems(Msg::SystemsRemoved, changes.removedSystems);
}

void TellBoth(const AcDbComparison& comparison) {
    if (!comparison.both.empty()) {
        PrintText(Msg::BothEntities, static_cast<int>(comparison.both.size()),
                  ListOf(comparison.both));
    }
    if (!comparison.bothNames.empty()) {
        PrintText(Msg::BothNames, ListOf(comparison.bothNames));
    }
}

AcDbProgress ReadingProgress(const AcApDocument& document) {
    return acedProgress(Text(Msg::Reading, document.title()));
}

void ShowDifferences(AcApDocument& document) {
    AcDbComparison comparison;
    const AcDbStorageResult result =
        acDocManagerPtr()->compareDocument(&document, ReadingProgress(document), comparison);
    if (!result.ok()) {
        acutPrintf(L"%s\n", result.reason);
        return;
    }
    TellSide(Msg::InThisDrawing, comparison.mine);
    TellSide(Msg::InTheFile, comparison.theirs);
    TellBoth(comparison);
}

/// Whether nothing is left that the user has to look at before it is saved.
bool TakeOver(AcApDocument& document) {
    AcDbComparison comparison;
    const AcDbStorageResult result =
        acDocManagerPtr()->takeOverDocument(&document, ReadingProgress(document), comparison);
    if (!result.ok()) {
        return Refuse(result.reason, Msg::NotSaved);
    }
    TellSide(Msg::TakenOver, comparison.theirs);
    PrintText(Msg::HistoryCleared);
    if (!comparison.HasBoth()) {
        return true;
    }
    TellBoth(comparison);
    PrintText(Msg::KeepsYours);
    return false;
}

} // namespace

ConflictChoice SettleConflict(AcApDocument& document, const AcDbConflict& conflict) {
    if (!conflict.canTakeOver) {
        return AskWayOut({SaveAsChoice()}) == 0 ? ConflictChoice::SaveAs : ConflictChoice::Cancel;
    }
    for (;;) {
        switch (AskWayOut({SaveAsChoice(),
                           {L"Differences", Text(Msg::ChooseDifferences)},
                           {L"Takeover", Text(Msg::ChooseTakeOver)}})) {
        case 0:
            return ConflictChoice::SaveAs;
        case 1:
            ShowDifferences(document);
            break;
        case 2:
            return TakeOver(document) ? ConflictChoice::SaveAgain : ConflictChoice::Cancel;
        default:
            return ConflictChoice::Cancel;
        }
    }
}

ConflictChoice SettleReadOnly(AcApDocument& document) {
    PrintText(Msg::OpenReadOnly, document.title(), document.readOnlyReason());
    switch (AskWayOut({SaveAsChoice(), {L"Write", Text(Msg::ChooseWrite)}})) {
    case 0:
        return ConflictChoice::SaveAs;
    case 1:
        document.setReadOnly(L"");
        return ConflictChoice::SaveAgain;
    default:
        return ConflictChoice::Cancel;
    }
}

bool MayReplaceOwnFile(const AcApDocument& document) {
    IDbStorage* const pStorage = acDocManagerPtr()->storage();
    const AcDbConflict conflict =
        pStorage ? pStorage->FindConflict(*document.database()) : AcDbConflict();
    if (!conflict) {
        return true;
    }
    return acedAskYes(Text(Msg::ReplaceOwn, document.path()));
}

bool TellOthersWith(const CString& path) {
    IDbStorage* const pStorage = acDocManagerPtr()->storage();
    const std::vector<AcDbOpenMark> others =
        pStorage ? pStorage->OthersWith(path) : std::vector<AcDbOpenMark>();
    for (const AcDbOpenMark& mark : others) {
        PrintText(Msg::OpenInOtherProgram, FileNameOf(path), mark.user, mark.host, mark.program,
                  mark.time);
    }
    return !others.empty();
}

void OfferReadOnly(AcApDocument& document, bool isAsked) {
    bool isReadOnly = g_shared == SharedOpening::ReadOnly;
    if (g_shared == SharedOpening::Ask && isAsked) {
        constexpr std::size_t kYes = 0;
        isReadOnly =
            acedAskChoice({Text(Msg::AskReadOnly), {YesChoice(), NoChoice()}, kYes}) == kYes;
    }
    if (isReadOnly) {
        document.setReadOnly(Text(Msg::OthersHaveIt));
        PrintText(Msg::NowReadOnly, document.title());
    }
}

void SetSharedOpening(SharedOpening shared) {
    g_shared = shared;
}

} // namespace Tessaly
