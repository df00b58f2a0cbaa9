#include "host/UndoNotice.h"

#include "host/Texts.h"
#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

namespace Tessaly {

UndoNotice::UndoNotice() {
    acedRunner().AddWatcher(this);
}

UndoNotice::~UndoNotice() {
    acedRunner().RemoveWatcher(this);
}

void UndoNotice::CommandEnded(const CommandOrder&, bool) {
    constexpr std::size_t kMegabyte = std::size_t{1} << 20;
    AcApDocument* const pDoc = acDocManagerPtr()->curDocument();
    const std::size_t dropped = pDoc ? pDoc->database()->undo().takeDropped() : 0;
    const auto limit = static_cast<int>(AcDbUndo::memoryLimit() / kMegabyte);
    if (dropped == 1) {
        PrintText(Msg::UndoStepDropped, limit);
    } else if (dropped > 1) {
        PrintText(Msg::UndoStepsDropped, limit, static_cast<int>(dropped));
    }
}

} // namespace Tessaly
