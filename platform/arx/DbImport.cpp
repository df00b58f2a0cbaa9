#include "platform/arx/DbImport.h"

namespace {

IDbImporter* s_pImporter = nullptr;

} // namespace

IDbImporter* acdbImporter() {
    return s_pImporter;
}

void acdbSetImporter(IDbImporter* pImporter) {
    s_pImporter = pImporter;
}
