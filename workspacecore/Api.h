// Export mark of ORVZWorkspaceCore.arx.
#pragma once

#define WORKSPACE_API __attribute__((visibility("default")))
