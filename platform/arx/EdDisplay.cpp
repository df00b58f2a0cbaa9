#include "platform/arx/EdDisplay.h"

#include <utility>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/EdPrompt.h"
#include "platform/win/Number.h"
#include "platform/win/PlatformTexts.h"

namespace {

IDrawingDisplay* s_pDisplay = nullptr;
constexpr int kHighlightColor = 1; // red

/// Without a display, entities are identified by number.
int AskForNumber(const wchar_t* prompt, AcDbObjectId& id, AcGePoint3d& place) {
    CString answer;
    if (acedGetString(0, CString(prompt) + MessageText(PlatformMsg::EntityNumber) + L": ",
                      answer) != RTNORM) {
        return RTCAN;
    }
    const AcDbDatabase* const pDatabase = acdbHostApplicationServices()->workingDatabase();
    const int number = TextToInt(answer.View());
    const AcDbObject* const pObject =
        pDatabase && number > 0 ? pDatabase->peek(AcDbObjectId(static_cast<std::uint32_t>(number)))
                                : nullptr;
    if (!pObject || pObject->isErased() || !pObject->isEntity()) {
        return RTERROR;
    }
    const AcGeExtents2d box = static_cast<const AcDbEntity&>(*pObject).extents();
    id = pObject->objectId();
    place = {(box.minX + box.maxX) / 2, (box.minY + box.maxY) / 2};
    return RTNORM;
}

} // namespace

IDrawingDisplay* SetDrawingDisplay(IDrawingDisplay* pDisplay) {
    return std::exchange(s_pDisplay, pDisplay);
}

IDrawingDisplay* DrawingDisplay() {
    return s_pDisplay;
}

int acedEntSel(const wchar_t* prompt, AcDbObjectId& id, AcGePoint3d& place) {
    id = {};
    if (!s_pDisplay) {
        return AskForNumber(prompt, id, place);
    }
    switch (s_pDisplay->PickEntity(prompt, id, place)) {
    case PickOutcome::Picked:
        return RTNORM;
    case PickOutcome::Missed:
        return RTERROR;
    default:
        return RTCAN;
    }
}

void acedRedraw(const AcDbObjectId* pId, int mode) {
    if (!s_pDisplay) {
        return;
    }
    if (pId && mode == kRedrawHighlight) {
        s_pDisplay->Highlight({pId, 1}, kHighlightColor);
    } else {
        s_pDisplay->Redraw();
    }
}

void acedUpdateDisplay() {
    if (s_pDisplay) {
        s_pDisplay->Update();
    }
}
