#include "host/desktop/FrameDisplay.h"

#include <QEventLoop>
#include <QPointer>

#include "host/desktop/CommandPane.h"
#include "host/desktop/Frame.h"
#include "host/desktop/QtTexts.h"
#include "host/desktop/view/DrawingView.h"
#include "platform/arx/EdPrompt.h"

namespace Tessaly {

FrameDisplay::FrameDisplay(Frame& frame) : m_frame(frame), m_pBefore(SetDrawingDisplay(this)) {}

FrameDisplay::~FrameDisplay() {
    SetDrawingDisplay(m_pBefore);
}

PickOutcome FrameDisplay::PickEntity(const wchar_t* prompt, AcDbObjectId& id, AcGePoint3d& place) {
    DrawingView* const pView = m_frame.CurrentView();
    if (!pView || m_frame.IsScripted()) {
        // A script points by number.
        SetDrawingDisplay(nullptr);
        const int status = acedEntSel(prompt, id, place);
        SetDrawingDisplay(this);
        return status == RTNORM    ? PickOutcome::Picked
               : status == RTERROR ? PickOutcome::Missed
                                   : PickOutcome::Cancelled;
    }
    PickOutcome outcome = PickOutcome::Cancelled;
    QEventLoop loop;
    const auto ended = [&](PickEnd how, AcDbObjectId picked, double x, double y) {
        outcome = how == PickEnd::Picked   ? PickOutcome::Picked
                  : how == PickEnd::Missed ? PickOutcome::Missed
                                           : PickOutcome::Cancelled;
        id = picked;
        place = {x, y};
        loop.quit();
    };
    const QMetaObject::Connection picks =
        QObject::connect(pView, &DrawingView::PickEnded, &loop, ended);
    QObject::connect(pView, &QObject::destroyed, &loop, &QEventLoop::quit);
    m_frame.BeginPrompt(ToQt(prompt));
    pView->StartPick();
    pView->setFocus();
    loop.exec();
    QObject::disconnect(picks);
    m_frame.EndPrompt();
    m_frame.Pane().FocusInput();
    return outcome;
}

bool FrameDisplay::ZoomTo(std::span<const AcDbObjectId> ids, double factor) {
    DrawingView* const pView = m_frame.CurrentView();
    return pView && pView->ZoomTo(ids, factor);
}

void FrameDisplay::ZoomExtents() {
    if (DrawingView* const pView = m_frame.CurrentView()) {
        pView->ZoomExtents();
    }
}

void FrameDisplay::ZoomBy(double factor) {
    if (DrawingView* const pView = m_frame.CurrentView()) {
        pView->ZoomBy(factor);
    }
}

void FrameDisplay::Highlight(std::span<const AcDbObjectId> ids, int colorIndex) {
    if (DrawingView* const pView = m_frame.CurrentView()) {
        pView->Highlight(ids, colorIndex);
    }
}

void FrameDisplay::Mark(std::span<const AcDbObjectId> ids, int colorIndex) {
    if (DrawingView* const pView = m_frame.CurrentView()) {
        pView->Mark(ids, colorIndex);
    }
}

void FrameDisplay::Redraw() {
    if (DrawingView* const pView = m_frame.CurrentView()) {
        pView->Redraw();
    }
}

void FrameDisplay::Update() {
    if (DrawingView* const pView = m_frame.CurrentView()) {
        pView->UpdateDisplay();
    }
}

} // namespace Tessaly
