// Loading of shared libraries.
#pragma once

#include <type_traits>

#include "platform/win/String.h"
#include "platform/win/Types.h"

/// Loads a library; null on failure, with LastErrorText (ErrorText.h) set. First checks the file's
/// size against its own headers: mapping a truncated library would kill the process instead of
/// failing.
PLATFORM_API HINSTANCE LoadLibrary(const wchar_t* path);

/// Address of an entry exported by this library itself; null if it does not exist.
PLATFORM_API void* GetProcAddress(HINSTANCE library, const char* name);

/// File name, without folder, of the library that contains an address; empty if none does.
PLATFORM_API CString LibraryOfAddress(const void* address);
/// Address of an object's virtual table, which lies in the library that defines its class. Remains
/// valid after the object was destroyed.
template <class Object>
const void* ClassAddress(const Object& object) {
    static_assert(std::is_polymorphic_v<Object>);
    return *reinterpret_cast<const void* const*>(&object);
}

/// Releases one reference to the library. Returns false for an unknown handle.
PLATFORM_API bool FreeLibrary(HINSTANCE library);
