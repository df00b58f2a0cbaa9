#include "plugins/common/Marks.h"

#include "platform/arx/EdDisplay.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane::Plugins {

namespace {

constexpr int kUsualColor = 4;

} // namespace

void MarkEntities(std::span<const AcDbObjectId> ids) {
    if (IDrawingDisplay* const pDisplay = DrawingDisplay()) {
        int color = kUsualColor;
        CModuleConfiguration::Instance()->GetGSValueInt(L"PT_MARK_COLOR", color);
        pDisplay->Redraw();
        pDisplay->Highlight(ids, color);
        pDisplay->Update();
    }
}

} // namespace Orvane::Plugins
