// Export mark of ORVZCADWrapper.arx.
#pragma once

#define CADWRAPPER_API __attribute__((visibility("default")))
