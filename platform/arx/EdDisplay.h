// The view of the current drawing, as modules reach it.
#pragma once

#include <span>

#include "platform/arx/DbEntity.h"

/// How pointing at an entity ended.
enum class PickOutcome {
    Picked,
    Missed,    ///< the user pointed at nothing
    Cancelled, ///< Escape, no more input, or the drawing went
};

/// Implemented by a host that shows drawings. All operations are about the current drawing;
/// entities that are no more are passed over.
class PLATFORM_API IDrawingDisplay {
public:
    virtual ~IDrawingDisplay() = default;
    /// Waits until the user has pointed, while the host's own events go on.
    /// \param place where they pointed, in drawing units
    virtual PickOutcome PickEntity(const wchar_t* prompt, AcDbObjectId& id, AcGePoint3d& place) = 0;
    /// Shows entities whole, in the middle; a factor of 1.05 leaves five per cent of margin.
    /// False, and the view stays, if none of them has a place.
    virtual bool ZoomTo(std::span<const AcDbObjectId> ids, double factor) = 0;
    virtual void ZoomExtents() = 0;
    /// Shows more of the drawing, or less: 2 shows half as much to each side.
    virtual void ZoomBy(double factor) = 0;
    /// In a colour of the 255-colour table, until the view is drawn anew.
    virtual void Highlight(std::span<const AcDbObjectId> ids, int colorIndex) = 0;
    virtual void Mark(std::span<const AcDbObjectId> ids, int colorIndex) = 0;
    /// Draws all anew, without marks and highlights.
    virtual void Redraw() = 0;
    /// Shows at once what has changed.
    virtual void Update() = 0;
};

/// Makes a display the one in force and returns the one before. Not owned. Null: there is
/// none, as in a console; pointing then asks for the entity's number at the prompt, and the
/// rest does nothing.
PLATFORM_API IDrawingDisplay* SetDrawingDisplay(IDrawingDisplay* pDisplay);
/// Null if there is none.
PLATFORM_API IDrawingDisplay* DrawingDisplay();

/// Lets the user pick an entity. RTNORM, RTERROR if they pointed at nothing, or RTCAN.
PLATFORM_API int acedEntSel(const wchar_t* prompt, AcDbObjectId& id, AcGePoint3d& place);
/// Modes of acedRedraw.
inline constexpr int kRedrawHighlight = 3;
inline constexpr int kRedrawUnhighlight = 4;
/// Highlights an entity; any other mode, and null, draws the whole view anew without
/// highlights and marks.
PLATFORM_API void acedRedraw(const AcDbObjectId* pId, int mode);
PLATFORM_API void acedUpdateDisplay();
