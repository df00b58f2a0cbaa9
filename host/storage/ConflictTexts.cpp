#include "host/storage/ConflictTexts.h"

#include "host/Texts.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

CString Headline(AcDbConflict::Kind kind) {
    switch (kind) {
    case AcDbConflict::Kind::SavedByOthers:
        return Text(Msg::SavedByOthers);
    case AcDbConflict::Kind::Older:
        return Text(Msg::FileReplaced);
    case AcDbConflict::Kind::Replaced:
        return Text(Msg::OtherDrawing);
    default:
        return {};
    }
}

} // namespace

CString SaverText(const AcDbSaveNote& note) {
    return Text(Msg::Saver, note.user, note.host, note.program, note.time);
}

CString ConflictReason(const AcDbConflict& conflict) {
    CString reason = Headline(conflict.kind);
    if (!conflict.saves.empty()) {
        // Of many saves the last one says who to talk to.
        reason = Text(Msg::LastSave, reason, SaverText(conflict.saves.back()));
    }
    return reason;
}

CString LockedReason(const std::string& program) {
    const CString locked = Text(Msg::IsLocked);
    return program.empty() ? locked : locked + FormatText(L": %s", CString(Utf8ToWide(program)));
}

CString WaitStoppedReason() {
    return Text(Msg::WaitStopped);
}

CString ReplacedMeanwhileReason() {
    return Text(Msg::ReplacedMeanwhile);
}

CString ChangedMeanwhileReason() {
    return Text(Msg::ChangedMeanwhile);
}

CString LinkLoopReason() {
    return Text(Msg::LinkLoop);
}

CString MissingTablesReason(const std::vector<std::string>& tables) {
    std::string names;
    for (const std::string& table : tables) {
        names += (names.empty() ? "" : ", ") + table;
    }
    return Text(tables.size() == 1 ? Msg::TableMissing : Msg::TablesMissing, Utf8ToWide(names));
}

CString CannotCompareReason() {
    return Text(Msg::CannotCompare);
}

CString NoConflictReason() {
    return Text(Msg::NoConflict);
}

} // namespace Tessaly
