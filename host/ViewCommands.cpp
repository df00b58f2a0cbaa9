#include "host/ViewCommands.h"

#include "host/Prompts.h"
#include "platform/arx/EdDisplay.h"
#include "platform/win/CodePage.h"
#include "platform/win/Number.h"

namespace Tessaly {

namespace {

/// Prints a message and returns null if there is no drawing or no view of it.
IDrawingDisplay* View() {
    if (!CurrentDrawing()) {
        return nullptr;
    }
    if (!DrawingDisplay()) {
        Refuse(Msg::NoView);
    }
    return DrawingDisplay();
}

bool ZoomToPicked(IDrawingDisplay& view) {
    AcDbObjectId id;
    AcGePoint3d place;
    constexpr double kRoom = 1.5;
    if (acedEntSel(Text(Msg::PickEntity), id, place) != RTNORM) {
        return Refuse(Msg::NothingPicked);
    }
    return view.ZoomTo({&id, 1}, kRoom) || Refuse(Msg::HasNoPosition);
}

bool Zoom() {
    IDrawingDisplay* const pView = View();
    if (!pView) {
        return false;
    }
    constexpr std::size_t kExtents = 0;
    const ChoicePrompt prompt = {
        Text(Msg::ZoomFactor),
        {{L"Extents", Text(Msg::ZoomExtents)}, {L"Object", Text(Msg::ZoomObject)}},
        kExtents,
        true};
    std::size_t choice = kExtents;
    CString answer;
    const int result = acedGetChoice(prompt, choice, answer);
    if (result != RTERROR && choice == kExtents) {
        pView->ZoomExtents();
        return true;
    }
    if (result == RTNORM) {
        return ZoomToPicked(*pView);
    }
    const std::optional<double> factor = TextToReal(WideToUtf8(answer.View()));
    if (!factor || *factor <= 0) {
        PrintText(Msg::NotAZoom, answer);
        return false;
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

constexpr Msg kView = Msg::OfView;
constexpr int kOnDrawing = ACRX_CMD_NO_UNDO_GROUP | ACRX_CMD_NEEDS_DRAWING;

constexpr HostCommand kViewCommands[] = {
    {L"ZOOM", RunHostCommand<Zoom>, Msg::ZoomDoes, kOnDrawing, kView},
    {L"REDRAW", RunHostCommand<Redraw>, Msg::RedrawDoes, kOnDrawing, kView},
};

} // namespace

std::span<const HostCommand> ViewCommands() {
    return kViewCommands;
}

} // namespace Tessaly
