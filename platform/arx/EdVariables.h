// The host's variables: properties of the current drawing, by name.
#pragma once

#include "platform/win/String.h"

/// Gets a variable by its name, ignoring case. Returns false and an empty value if it does not
/// exist. All values are empty while no drawing is open.
///
/// | DWGNAME   | name of the drawing as acdbDrawingName gives it            |
/// | DWGPREFIX | folder of its file, with "/" at the end; empty without one |
/// | DWGTITLED | "1" if it has a file, else "0"                             |
/// | DBMOD     | "1" if it has changes that are not in its file, else "0"   |
PLATFORM_API bool acedGetVar(const wchar_t* name, CString& value);

/// The drawing's name as modules expect it: the file name without the folder and with ".dwg" as its
/// extension. They cut off the last four characters.
PLATFORM_API CString acdbDrawingName(const wchar_t* fileName);
