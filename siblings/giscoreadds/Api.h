// Export mark of ORVZGisCoreAdds.arx.
#pragma once

#define GISCOREADDS_API __attribute__((visibility("default")))
