#include "host/desktop/FrameDisplay.h"

#include <QPointer>

#include "host/Texts.h"
#include "host/desktop/CommandPane.h"
#include "host/desktop/DesktopPort.h"
#include "host/desktop/Frame.h"
#include "host/desktop/QtTexts.h"
#include "host/desktop/view/DrawingView.h"
#include "platform/arx/EdPrompt.h"
#include "platform/mfc/WinApp.h"

namespace Tessaly {

/// A pick in progress.
struct FrameDisplay::Pick {
    QPointer<DrawingView> view;
    Question question;
    PickOutcome outcome = PickOutcome::Cancelled;

    void Start() const {
        if (view) {
            view->StartPick();
            view->setFocus();
        }
    }
};

FrameDisplay::FrameDisplay(Frame& frame, DesktopPort& port)
    : m_frame(frame), m_port(port), m_pBefore(SetDrawingDisplay(this)) {}

FrameDisplay::~FrameDisplay() {
    SetDrawingDisplay(m_pBefore);
}

PickOutcome FrameDisplay::PickEntity(const wchar_t* prompt, AcDbObjectId& id, AcGePoint3d& place) {
    DrawingView* const pView = m_frame.CurrentView();
    if (!pView || m_port.IsScripted()) {
        // A script identifies entities by number.
        SetDrawingDisplay(nullptr);
        const int status = acedEntSel(prompt, id, place);
        SetDrawingDisplay(this);
        return status == RTNORM    ? PickOutcome::Picked
               : status == RTERROR ? PickOutcome::Missed
                                   : PickOutcome::Cancelled;
    }
    if (!AfxIsDesktopMode()) {
        return PickOutcome::Cancelled; // there is no user to pick
    }
    Pick pick;
    pick.view = pView;
    pick.question.takesText = false;
    const auto ended = [&](PickOutcome how, AcDbObjectId picked, double x, double y) {
        // Clicks go to the innermost pick.
        if (m_picks.back() == &pick) {
            pick.outcome = how;
            id = picked;
            place = {x, y};
            pick.question.loop.quit();
        }
    };
    QObject::connect(pView, &DrawingView::PickEnded, &pick.question.loop, ended);
    QObject::connect(pView, &QObject::destroyed, &pick.question.loop, &QEventLoop::quit);
    m_picks.push_back(&pick);
    pick.Start();
    m_port.Wait(pick.question, ToQt(prompt));
    if (pick.view && pick.view->IsPicking()) {
        pick.view->CancelPick(); // cancelled elsewhere; the last one, so no other pick ends
    }
    std::erase(m_picks, &pick);
    if (!m_picks.empty()) {
        m_picks.back()->Start();
    }
    m_frame.Pane().FocusInput();
    Report(prompt, pick.outcome, id);
    return pick.outcome;
}

void FrameDisplay::Report(const wchar_t* prompt, PickOutcome outcome, AcDbObjectId id) {
    const CString text = outcome == PickOutcome::Picked   ? FormatText(L"%u", id.number())
                         : outcome == PickOutcome::Missed ? Text(Msg::MissedAnswer)
                                                          : Text(Msg::CancelledAnswer);
    m_port.PrintLine((CString(prompt) + text).View());
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
