// Opaque handles that travel through interfaces and files. Nobody outside the
// platform looks into what they point at.
#pragma once

using HINSTANCE = void*; ///< a loaded library; see Library.h
using HICON = void*;     ///< an icon owned by the icon cache of the configuration module
