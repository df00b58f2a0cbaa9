// Export mark of ORVZConversion.arx.
#pragma once

#define CONVERSION_API __attribute__((visibility("default")))
