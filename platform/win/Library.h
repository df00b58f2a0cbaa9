// Loading of shared libraries.
#pragma once

#include <type_traits>

#include "platform/win/String.h"
#include "platform/win/Types.h"

/// Loads a library; null on failure, with LastErrorText (ErrorText.h) set.
/// The file's length is compared with what its own headers announce first: mapping a
/// library that was cut short would kill the process instead of failing.
PLATFORM_API HINSTANCE LoadLibrary(const wchar_t* path);

/// Address of an entry that this very library exports; null if it has none of that name.
PLATFORM_API void* GetProcAddress(HINSTANCE library, const char* name);

/// Name of the file, without its folder, that an address in the process was loaded from; empty
/// if it is in none.
PLATFORM_API CString LibraryOfAddress(const void* address);
/// Where the tables of an object's class are, an address in the library that brought the class.
/// It stays valid when the object is gone.
template <class Object>
const void* ClassAddress(const Object& object) {
    static_assert(std::is_polymorphic_v<Object>);
    return *reinterpret_cast<const void* const*>(&object);
}

/// Gives up one reference to the library. Returns false for a handle that is not loaded.
PLATFORM_API bool FreeLibrary(HINSTANCE library);
