// The view of the current drawing, as modules see it.
#pragma once

#include <span>

#include "platform/arx/DbEntity.h"

/// Result of picking an entity.
enum class PickOutcome {
    Picked,
    Missed,    ///< no entity at the picked point
    Cancelled, ///< Escape, end of input, or the drawing was closed
};

/// Implemented by a host that shows drawings. All operations apply to the current drawing; entities
/// that no longer exist are skipped.
class PLATFORM_API IDrawingDisplay {
public:
    virtual ~IDrawingDisplay() = default;
    /// Waits until the user has picked a point, while the host keeps processing events.
    /// \param place the picked point, in drawing units
    virtual PickOutcome PickEntity(const wchar_t* prompt, AcDbObjectId& id, AcGePoint3d& place) = 0;
    /// Fits the entities into the view, centred; a factor of 1.05 leaves a margin of five per cent.
    /// Returns false and leaves the view unchanged if none of them has a position.
    virtual bool ZoomTo(std::span<const AcDbObjectId> ids, double factor) = 0;
    virtual void ZoomExtents() = 0;
    /// Zooms the view by a factor: 2 shows half as much in each direction.
    virtual void ZoomBy(double factor) = 0;
    /// Highlights in a colour of the 255-colour table, until the next redraw.
    virtual void Highlight(std::span<const AcDbObjectId> ids, int colorIndex) = 0;
    virtual void Mark(std::span<const AcDbObjectId> ids, int colorIndex) = 0;
    /// Redraws the view without marks and highlights.
    virtual void Redraw() = 0;
    /// Shows pending changes immediately.
    virtual void Update() = 0;
};

/// Sets the display in use and returns the previous one. Not owned. Without a display (null), as in
/// a console, picking asks for the entity's number at the prompt and the other operations do
/// nothing.
PLATFORM_API IDrawingDisplay* SetDrawingDisplay(IDrawingDisplay* pDisplay);
/// Null without a display.
PLATFORM_API IDrawingDisplay* DrawingDisplay();

/// Lets the user pick an entity. Returns RTNORM, RTERROR if there is none at the picked point, or
/// RTCAN.
PLATFORM_API int acedEntSel(const wchar_t* prompt, AcDbObjectId& id, AcGePoint3d& place);
/// Modes of acedRedraw.
inline constexpr int kRedrawHighlight = 3;
inline constexpr int kRedrawUnhighlight = 4;
/// Highlights an entity. Any other mode, or null, redraws the view without highlights and marks.
PLATFORM_API void acedRedraw(const AcDbObjectId* pId, int mode);
PLATFORM_API void acedUpdateDisplay();
