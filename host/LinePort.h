// A host port that obeys lines of input, such as those of a script.
#pragma once

#include <optional>

#include "host/console/InputLines.h"
#include "platform/arx/HostPort.h"

namespace Tessaly {

/// Prompts take their answers from the same lines as the command line its commands.
class ILinePort : public IHostPort {
public:
    /// Input may change while the program runs: from a script to the user, say. Not owned.
    virtual void SetInput(IInputLines* pInput) = 0;
    /// One line for the command prompt; nothing at the end of the input.
    virtual std::optional<CString> NextLine(std::wstring_view prompt) = 0;
    /// Forgets the posted texts that only cancel what is open; at the command prompt nothing
    /// is.
    virtual void DropEscapes() = 0;
};

/// Thrown when a command goes on prompting although the input has long ended.
struct InputEnded {};

} // namespace Tessaly
