// The view of the frame, as modules reach it.
#pragma once

#include <vector>

#include "platform/arx/EdDisplay.h"

namespace Tessaly {

class DesktopPort;
class Frame;

/// Hands everything on to the view of the current drawing. In force while it lives.
class FrameDisplay final : public IDrawingDisplay {
public:
    FrameDisplay(Frame& frame, DesktopPort& port);
    ~FrameDisplay() override;
    FrameDisplay(const FrameDisplay&) = delete;
    FrameDisplay& operator=(const FrameDisplay&) = delete;

    PickOutcome PickEntity(const wchar_t* prompt, AcDbObjectId& id, AcGePoint3d& place) override;
    bool ZoomTo(std::span<const AcDbObjectId> ids, double factor) override;
    void ZoomExtents() override;
    void ZoomBy(double factor) override;
    void Highlight(std::span<const AcDbObjectId> ids, int colorIndex) override;
    void Mark(std::span<const AcDbObjectId> ids, int colorIndex) override;
    void Redraw() override;
    void Update() override;

private:
    struct Pick;
    void Report(const wchar_t* prompt, PickOutcome outcome, AcDbObjectId id);

    Frame& m_frame;
    DesktopPort& m_port;
    std::vector<Pick*> m_picks; ///< the innermost last
    IDrawingDisplay* m_pBefore;
};

} // namespace Tessaly
