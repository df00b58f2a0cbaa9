#include "tests/mfc/WindowTest.h"

// The toolkit's font library keeps its caches to the end of the process.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}
