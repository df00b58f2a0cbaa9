// Export mark of libplatform.so; everything else in it is hidden.
#pragma once

#define PLATFORM_API __attribute__((visibility("default")))
