// Export mark of ORVZLogging.arx.
#pragma once

#define LOGGING_API __attribute__((visibility("default")))
