// Export mark of ORVZNetworkCore.arx.
#pragma once

#define NETWORKCORE_API __attribute__((visibility("default")))
