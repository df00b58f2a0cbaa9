// Says so when the undo history of a drawing has dropped steps.
#pragma once

#include "platform/arx/CommandRunner.h"

namespace Tessaly {

class UndoNotice final : ICommandWatcher {
public:
    UndoNotice();
    ~UndoNotice() override;
    UndoNotice(const UndoNotice&) = delete;
    UndoNotice& operator=(const UndoNotice&) = delete;

private:
    void CommandEnded(const CommandOrder& order, bool hasThrown) override;
};

} // namespace Tessaly
