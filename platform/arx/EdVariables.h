// The host's variables: what modules ask about the current drawing, by name.
#pragma once

#include "platform/win/String.h"

/// The value of a variable, whose name is taken without regard to case. False, and an empty
/// value, if there is none of the name. While no drawing is open all values are empty.
///
/// | DWGNAME   | name of the drawing as acdbDrawingName gives it            |
/// | DWGPREFIX | folder of its file, with "/" at the end; empty without one |
/// | DWGTITLED | "1" if it has a file, else "0"                             |
/// | DBMOD     | "1" if it has changes that are not in its file, else "0"   |
PLATFORM_API bool acedGetVar(const wchar_t* name, CString& value);

/// What the modules of the family call a drawing: its file name without the folder, and with
/// ".dwg" in the place of its extension. They cut off the last four characters.
PLATFORM_API CString acdbDrawingName(const wchar_t* fileName);
