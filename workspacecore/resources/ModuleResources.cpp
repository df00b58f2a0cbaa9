#include "workspacecore/resources/ModuleResources.h"

#include "platform/arx/ApDocManager.h"

namespace Orvane::Workspace {

namespace {
/// Its address tells the module from others; what it holds is of no account.
char moduleMark;
} // namespace

ModuleResources::ModuleResources() {
    acDocManagerPtr()->pushResourceHandle(&moduleMark);
}

ModuleResources::~ModuleResources() {
    acDocManagerPtr()->popResourceHandle();
}

} // namespace Orvane::Workspace
