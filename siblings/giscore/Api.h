// Export mark of ORVZGisCore.arx.
#pragma once

#define GISCORE_API __attribute__((visibility("default")))
