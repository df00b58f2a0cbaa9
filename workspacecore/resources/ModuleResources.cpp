#include "workspacecore/resources/ModuleResources.h"

#include "platform/arx/ApDocManager.h"

namespace Orvane::Workspace {

namespace {
/// Only the address is used, to identify the module.
char moduleMark;
} // namespace

ModuleResources::ModuleResources() {
    acDocManagerPtr()->pushResourceHandle(&moduleMark);
}

ModuleResources::~ModuleResources() {
    acDocManagerPtr()->popResourceHandle();
}

} // namespace Orvane::Workspace
