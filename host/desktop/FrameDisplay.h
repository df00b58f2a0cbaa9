// Gives modules access to the frame's view.
#pragma once

#include <vector>

#include "platform/arx/EdDisplay.h"

namespace Tessaly {

class DesktopPort;
class Frame;

/// Forwards everything to the view of the current drawing. Installed for its lifetime.
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
