#include "host/ViewCommands.h"

#include "host/Dialog.h"
#include "platform/arx/EdDisplay.h"
#include "platform/win/CodePage.h"
#include "platform/win/Number.h"

namespace Tessaly {

namespace {

/// Null, and said so, without a drawing or a view of it.
IDrawingDisplay* View() {
    if (!CurrentDrawing()) {
        return nullptr;
    }
    if (!DrawingDisplay()) {
        Refuse(L"", L"The console shows no drawing.");
    }
    return DrawingDisplay();
}

bool IsBeginOf(const CString& answer, const wchar_t* word) {
    return CString(word).Left(answer.GetLength()).CompareNoCase(answer) == 0;
}

bool ZoomToPicked(IDrawingDisplay& view) {
    AcDbObjectId id;
    AcGePoint3d place;
    constexpr double kRoom = 1.5;
    if (acedEntSel(L"Point at an entity: ", id, place) != RTNORM) {
        return Refuse(L"", L"No entity was picked.");
    }
    return view.ZoomTo({&id, 1}, kRoom) || Refuse(L"", L"The entity has no place.");
}

bool Zoom() {
    IDrawingDisplay* const pView = View();
    if (!pView) {
        return false;
    }
    const CString answer =
        AskText(L"[Extents/Object] or a factor, as 2 or 0.5 <Extents>: ").value_or(CString());
    if (IsBeginOf(answer, L"Extents")) {
        pView->ZoomExtents();
        return true;
    }
    if (IsBeginOf(answer, L"Object")) {
        return ZoomToPicked(*pView);
    }
    const std::optional<double> factor = TextToReal(WideToUtf8(answer.View()));
    if (!factor || *factor <= 0) {
        return Refuse(answer, L"This is neither a choice nor a factor.");
    }
    pView->ZoomBy(*factor);
    return true;
}

bool Redraw() {
    IDrawingDisplay* const pView = View();
    if (pView) {
        pView->Redraw();
    }
    return pView != nullptr;
}

constexpr const wchar_t* kView = L"View";
constexpr int kOnDrawing = ACRX_CMD_NO_UNDO_GROUP | ACRX_CMD_NEEDS_DRAWING;

constexpr HostCommand kViewCommands[] = {
    {L"ZOOM", RunHostCommand<Zoom>, L"shows more or less of the drawing", kOnDrawing, kView},
    {L"REDRAW", RunHostCommand<Redraw>, L"draws anew, without marks", kOnDrawing, kView},
};

} // namespace

std::span<const HostCommand> ViewCommands() {
    return kViewCommands;
}

} // namespace Tessaly
