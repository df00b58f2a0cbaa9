#include "platform/arx/DbDatabase.h"

AcDbHostApplicationServices* acdbHostApplicationServices() {
    static auto* const services = new AcDbHostApplicationServices;
    return services;
}
